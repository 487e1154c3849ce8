#include "amortix2/charts/chart_words.h"

#include <algorithm>

#include "amortix2/automation/number_format.h"
#include "amortix2/charts/escaped_markup.h"

namespace amortix2 {
namespace {

class Speaker {
 public:
  Speaker(const SvgTable& table, std::string_view format) : table_(table), format_(format) {}

  void Series(std::int32_t series) {
    std::int32_t first = 0;
    std::int32_t last = 0;
    std::int32_t least = 0;
    std::int32_t largest = 0;
    const auto value = [&](std::int32_t row) { return table_.values.At(row, series); };
    for (std::int32_t row = 1; row <= table_.Rows(); ++row) {
      if (table_.IsGap(row, series)) continue;
      if (first == 0) first = least = largest = row;
      last = row;
      if (value(row) < value(least)) least = row;
      if (value(row) > value(largest)) largest = row;
    }
    text_ += table_.Name(series);
    if (first == 0) {
      text_ += ": no values.";
      return;
    }
    Value(": first ", first, series);
    Value(", last ", last, series);
    Value(", least ", least, series);
    Value(", largest ", largest, series);
    text_ += '.';
  }

  void Row(std::int32_t row) {
    text_ += table_.Label(row);
    std::string_view separator = ": ";
    for (std::int32_t series = 1; series <= table_.Series(); ++series) {
      text_ += separator;
      if (table_.Series() > 1) (text_ += table_.Name(series)) += ' ';
      table_.IsGap(row, series) ? void(text_ += "no value")
                                : format_.AppendTo(text_, table_.values.At(row, series));
      separator = ", ";
    }
  }

  std::string& Text() { return text_; }

 private:
  void Value(std::string_view word, std::int32_t row, std::int32_t series) {
    text_ += word;
    format_.AppendTo(text_, table_.values.At(row, series));
    if (!table_.Label(row).empty()) ((text_ += " (") += table_.Label(row)) += ')';
  }

  const SvgTable& table_;
  NumberPattern format_;
  std::string text_;
};

std::string_view KindOf(const SvgInput& input) {
  if (input.isLine) return "Line chart";
  switch (input.style.mode) {
    case BarMode::Stacked:
      return "Stacked bar chart";
    case BarMode::Overlapped:
      return "Overlapped bar chart";
    case BarMode::Horizontal:
      return "Horizontal bar chart";
    case BarMode::Plain:
      break;
  }
  return "Bar chart";
}

}  // namespace

std::string SeriesInWords(const SvgTable& table, std::string_view format) {
  constexpr std::int32_t kMostSeries = 8;
  Speaker speaker(table, format);
  for (std::int32_t series = 1; series <= std::min(table.Series(), kMostSeries); ++series) {
    if (series > 1) speaker.Text() += ' ';
    speaker.Series(series);
  }
  const std::int32_t more = table.Series() - kMostSeries;
  if (more > 0) speaker.Text() += " And " + std::to_string(more) + " more series.";
  return std::move(speaker.Text());
}

std::string ChartInWords(const SvgInput& input) {
  constexpr std::int64_t kMostValues = 60;
  const SvgTable& table = input.table;
  std::string text(KindOf(input));
  text += ". " + SeriesInWords(table, input.settings.altFormat);
  if (std::int64_t{table.Rows()} * table.Series() > kMostValues) return text;
  Speaker speaker(table, input.settings.altFormat);
  for (std::int32_t row = 1; row <= table.Rows(); ++row) {
    speaker.Text() += row == 1 ? " Data: " : "; ";
    speaker.Row(row);
  }
  return text + speaker.Text() + '.';
}

std::string TableAsHtml(const SvgTable& table, std::string_view corner, std::string_view caption,
                        std::string_view format) {
  const NumberPattern pattern(format);
  EscapedMarkup out;
  out.Open("table");
  if (!caption.empty()) out.TextElement("caption", {}, caption);
  out.Break();
  out.Open("thead");
  out.Open("tr");
  out.TextElement(corner.empty() ? "td" : "th", {{"scope", "col"}}, corner);
  for (const std::string& name : table.names) out.TextElement("th", {{"scope", "col"}}, name);
  out.Close();
  out.Close();
  out.Break();
  out.Open("tbody");
  for (std::int32_t row = 1; row <= table.Rows(); ++row) {
    out.Open("tr");
    out.TextElement("th", {{"scope", "row"}}, table.Label(row));
    for (std::int32_t series = 1; series <= table.Series(); ++series) {
      const bool isGap = table.IsGap(row, series);
      out.TextElement("td", {}, isGap ? std::string() : pattern.Format(table.values.At(row, series)));
    }
    out.Close();
    out.Break();
  }
  return out.Finish();
}

}  // namespace amortix2
