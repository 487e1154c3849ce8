#include "amortix2/charts/label_text.h"

#include <gtest/gtest.h>

namespace amortix2 {
namespace {

TEST(LabelText, MarkupAndManyBytesCountAsWhatIsSeen) {
  EXPECT_EQ(LabelWidth(""), 0);
  EXPECT_EQ(LabelWidth("2001"), 26);
  EXPECT_EQ(LabelWidth("<b>2001</b>"), 26);
  EXPECT_EQ(LabelWidth("A&amp;B"), LabelWidth("AZB"));
  EXPECT_EQ(LabelWidth("R\xC3\xA9"), LabelWidth("RK"));
  EXPECT_EQ(LabelWidth("a < b \xFF"), LabelWidth("a < b W"));  // no tag without its end
}

TEST(LabelText, FitsOrBreaksOrIsCut) {
  const auto altered = [](const std::string& label, const std::string& text) {
    return "<DIV STYLE=\"margin:0 -2px\" TITLE=\"" + label + "\">" + text + "</DIV>";
  };
  const struct {
    std::string label;
    int width;
    std::string text;
  } altering[] = {{"01-31-2001", 30, "01-31<BR>2001"},
                  {"01/31/2001", 24, "01<BR>31<BR>2001"},
                  {"2001", 24, "2001"},  // one pixel on either side is lent
                  {"September 2001", 30, "Sep&hellip; 2001"},
                  {"1,234,567", 30, "1,23&hellip;"},
                  {"Q&amp;A-sessions", 40, "Q&amp;A<BR>sessi&hellip;"}};
  for (const auto& c : altering) EXPECT_EQ(FittedLabel(c.label, c.width), altered(c.label, c.text));
  for (const char* same : {"", "May 01", "a b c d e f g h", "<b>September</b>", "say \"September\""}) {
    EXPECT_EQ(FittedLabel(same, 30), same);
  }
  EXPECT_EQ(FittedLabel("September", 23), "September");
}

}  // namespace
}  // namespace amortix2
