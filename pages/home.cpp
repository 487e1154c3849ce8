#include "amortix2/pages/home.h"

#include <algorithm>
#include <string>
#include <vector>

#include "amortix2/automation/text_scanner.h"
#include "amortix2/pages/frame.h"

namespace amortix2::pages {
namespace {

/// A page with its line on the first one.
struct Entry {
  Group group;
  std::string path;
  std::string_view title;
  std::string_view help;
  std::string words;  ///< in which a search looks, all small
};

std::string Small(std::string_view text) {
  std::string small(text);
  std::ranges::transform(small, small.begin(), ToLower);
  return small;
}

Entry EntryOf(const MemberInfo& member) {
  std::string words;
  for (const std::string_view text : {GroupTitle(member.group), member.title, member.address, member.help}) {
    words.append(text).append("\n");
  }
  for (const ParameterInfo& parameter : member.parameters) {
    if (parameter.role == Role::Ignored) continue;
    words.append(parameter.title).append("\n").append(parameter.help).append("\n");
  }
  return {member.group, "/" + std::string(member.address), member.title, member.help, Small(words)};
}

std::vector<Entry> Entries() {
  std::vector<Entry> entries;
  for (const ClassMember& member : MembersInOrder()) {
    if (HasPage(member)) entries.push_back(EntryOf(*member.member));
  }
  entries.push_back({Group::Charts, "/chart", "Chart of a table",
                     "Paste a table and take the chart along, as a picture or as markup.",
                     "chart graph picture table bar line svg gif"});
  return entries;
}

/// Every word occurs, or begins with what occurs: "saving" finds "save" by its first letters.
bool Matches(const Entry& entry, std::string_view wanted) {
  constexpr std::size_t kStem = 4;
  const std::string small = Small(wanted);
  TextScanner scanner(small);
  const auto isPart = [](char c) { return IsLetter(c) || IsDigit(c) || c < 0; };
  while (!scanner.AtEnd()) {
    const std::string_view word = scanner.TakeWhile(isPart);
    if (entry.words.find(word.substr(0, std::max(kStem, word.size() * 2 / 3))) == std::string::npos)
      return false;
    scanner.TakeWhile([&](char c) { return !isPart(c); });
  }
  return true;
}

void AppendSearch(EscapedMarkup& out, std::string_view wanted) {
  out.Open("form", {{"class", "search"}, {"action", "/"}, {"role", "search"}});
  out.TextElement("label", {{"for", "q"}}, "What do you want to know?");
  out.Open("div", {{"class", "row"}});
  out.Leaf("input", {{"type", "search"}, {"id", "q"}, {"name", "q"}, {"value", wanted}});
  out.TextElement("button", {{"type", "submit"}}, "Search");
  out.Close();
  out.Close();
}

void AppendGroup(EscapedMarkup& out, const std::vector<Entry>& entries, Group group) {
  if (std::ranges::find(entries, group, &Entry::group) == entries.end()) return;
  const std::string title(GroupTitle(group));
  const std::string id = Small(title);
  out.Open("section", {{"aria-labelledby", id}});
  out.TextElement("h2", {{"id", id}}, title);
  out.Open("ul", {{"class", "cards"}});
  for (const Entry& entry : entries) {
    if (entry.group != group) continue;
    out.Open("li");
    AppendLink(out, entry.path, entry.title);
    out.TextElement("p", {}, entry.help);
    out.Close();
  }
  out.Close();
  out.Close();
}

}  // namespace

bool HasPage(const ClassMember& member) {
  return !member.member->address.empty() && !member.member->finds.empty();
}

Page HomePage(const Query& query) {
  const std::string_view wanted = query.Get("q");
  std::vector<Entry> entries = Entries();
  std::vector<Entry> found;
  std::ranges::copy_if(entries, std::back_inserter(found),
                       [&](const Entry& entry) { return Matches(entry, wanted); });
  EscapedMarkup out;
  out.Open("div", {{"class", "hero"}});
  out.TextElement("h1", {}, "Money, worked out");
  out.TextElement("p", {{"class", "lede"}},
                  "Loans, homes, savings and retirement: exact to the cent, with every payment on the page.");
  AppendSearch(out, wanted);
  out.Close();
  if (found.empty()) {
    out.TextElement("p", {{"class", "notice"}},
                    "Nothing has all of these words. Here is everything there is.");
    found = std::move(entries);
  } else if (found.size() < entries.size()) {
    out.Open("p", {{"class", "notice"}});
    out.Text(std::to_string(found.size()) + " found. ");
    AppendLink(out, "/", "Show all");
    out.Close();
  }
  for (std::size_t i = 0; i < kGroups; ++i) AppendGroup(out, found, static_cast<Group>(i));
  return Framed(wanted.empty() ? "Calculators" : "Search", "/", out);
}

}  // namespace amortix2::pages
