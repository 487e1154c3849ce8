#include "amortix2/pages/home.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
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

/// What people say, and what the description says instead.
constexpr std::pair<std::string_view, std::string_view> kOtherWords[] = {
    {"house", "home"},
    {"house", "mortgage"},
    {"home", "mortgage"},
    {"buy", "purchase"},
    {"car", "loan"},
    {"car", "lease"},
    {"auto", "loan"},
    {"debt", "loan"},
    {"borrow", "loan"},
    {"long", "term"},
    {"early", "extra"},
    {"sooner", "extra"},
    {"ira", "retirement"},
    {"pension", "retirement"},
    {"goal", "deposit"},
    {"invest", "savings"},
    {"installment", "payment"},
};

/// What questions are made of, whatever they are about.
constexpr std::string_view kQuestionWords[] = {"and", "can",  "does",  "for",   "how",  "much",
                                               "the", "take", "takes", "until", "what", "will"};

bool IsPart(char c) { return IsLetter(c) || IsDigit(c) || c < 0; }

/// True when a word of the text begins as `word` does, whose end may differ ("saving" finds "saved"); a short
/// word must be the same.
bool Occurs(std::string_view text, std::string_view word) {
  constexpr std::size_t kShort = 3;
  constexpr std::size_t kStem = 4;
  const bool isShort = word.size() <= kShort;
  const std::string_view stem = word.substr(0, isShort ? word.size() : std::max(kStem, word.size() * 2 / 3));
  for (std::size_t at = text.find(stem); at != std::string_view::npos; at = text.find(stem, at + 1)) {
    const std::size_t end = at + stem.size();
    const bool isWhole = end == text.size() || !IsPart(text[end]);
    if ((at == 0 || !IsPart(text[at - 1])) && (!isShort || isWhole)) return true;
  }
  return false;
}

/// How many of the words occur, or another for it; the shortest and those of any question say nothing.
int Score(const Entry& entry, std::string_view wanted) {
  constexpr std::size_t kShortest = 3;
  const std::string small = Small(wanted);
  TextScanner scanner(small);
  int score = 0;
  while (!scanner.AtEnd()) {
    scanner.TakeWhile([](char c) { return !IsPart(c); });
    const std::string_view word = scanner.TakeWhile(IsPart);
    const bool isOfQuestions = std::ranges::find(kQuestionWords, word) != std::end(kQuestionWords);
    if (word.size() < kShortest || isOfQuestions) continue;
    const bool occurs = Occurs(entry.words, word) || std::ranges::any_of(kOtherWords, [&](const auto& other) {
                          return other.first == word && Occurs(entry.words, other.second);
                        });
    score += occurs ? 1 : 0;
  }
  return score;
}

/// The entries that have most of the words; none where no word occurs.
std::vector<Entry> Found(const std::vector<Entry>& entries, std::string_view wanted) {
  std::vector<Entry> found;
  int best = 1;
  for (const Entry& entry : entries) {
    const int score = Score(entry, wanted);
    if (score > best) found.clear();
    best = std::max(best, score);
    if (score == best) found.push_back(entry);
  }
  return found;
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
  const bool isSearch = wanted.find_first_not_of(' ') != std::string_view::npos;
  std::vector<Entry> found = isSearch ? Found(entries, wanted) : entries;
  EscapedMarkup out;
  out.Open("div", {{"class", "hero"}});
  out.TextElement("h1", {}, "Money, worked out");
  out.TextElement("p", {{"class", "lede"}},
                  "Loans, homes, savings and retirement: exact to the cent, with every payment on the page.");
  AppendSearch(out, wanted);
  out.Close();
  if (found.empty()) {
    out.TextElement("p", {{"class", "notice"}}, "Nothing has these words. Here is everything there is.");
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
