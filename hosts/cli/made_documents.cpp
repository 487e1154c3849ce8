#include "amortix2/cli/made_documents.h"

#include <algorithm>
#include <vector>

#include "amortix2/cli/reference.h"

namespace amortix2::cli {
namespace {

constexpr std::string_view kMade =
    "<!-- Made by ./dev renew from the component's description; change that. -->\n\n";

/// The members that have a page of their own, of charts or of all else.
std::vector<ClassMember> MembersWithPage(bool charts) {
  std::vector<ClassMember> members;
  std::ranges::copy_if(MembersInOrder(), std::back_inserter(members), [&](const ClassMember& member) {
    return !member.member->address.empty() && (member.member->group == Group::Charts) == charts;
  });
  return members;
}

void AppendPages(Document& document, const std::vector<ClassMember>& members) {
  const Group* group = nullptr;
  for (const ClassMember& member : members) {
    if (!group || *group != member.member->group) {
      group = &member.member->group;
      document.push_back(Heading{2, std::string(GroupTitle(*group))});
    }
    Append(document, MemberReference(*member.type, *member.member, 3));
  }
}

Document Contents(const std::vector<ClassMember>& members) {
  Document contents{Heading{2, "All at a glance"}};
  Append(contents, Overview(members, 3));
  return contents;
}

}  // namespace

std::string CalculatorsGuide() {
  const std::vector<ClassMember> members = MembersWithPage(false);
  Document document{
      Heading{1, "Calculators"},
      Paragraph{
          "What each calculator asks and gives, with an example and its answer. The same text, for one of "
          "them: amortix2 call NAME --help. An amount, rate or term that is 0 or left out is found where its "
          "text says so; names may be written in any case, and a choice may be given by its title. The day "
          "of the examples is 2026-12-01 (--today)."},
      Paragraph{
          "Calculators answer whatever they are given. Beside an answer the command line writes notes to "
          "standard error: an input that is no number counts as 0, one that is no date as today or as not "
          "given, numbers are cut to whole ones where whole ones are wanted, and a choice that is not in the "
          "list counts as its text says. Notes and errors that are special to a calculator stand on its "
          "page, each with an input that brings it about in the example."}};
  Append(document, Contents(members));
  AppendPages(document, members);
  document.push_back(Heading{2, "Record types"});
  for (const RecordInfo* record : Records()) Append(document, RecordReference(*record, 3));
  document.push_back(Heading{2, "Enumerations"});
  for (const EnumerationInfo* enumeration : Enumerations()) {
    Append(document, EnumerationReference(*enumeration, 3));
  }
  return std::string(kMade) + MarkdownText(document);
}

std::string ChartReference() {
  const std::vector<ClassMember> members = MembersWithPage(true);
  Document document{
      Heading{1, "Chart reference"},
      Paragraph{
          "The members of the chart classes and their settings. How charts look and behave is told in "
          "charts.md, svg.md and gif.md. A value that begins with @ is read from the file of that name."}};
  document.push_back(Heading{2, "Classes"});
  for (const ClassInfo* type : Classes()) {
    const bool isChart = std::ranges::any_of(
        type->members, [](const MemberInfo& member) { return member.group == Group::Charts; });
    if (isChart) Append(document, ClassReference(*type, 3));
  }
  AppendPages(document, members);
  return std::string(kMade) + MarkdownText(document);
}

std::string ManualPage(std::string_view version, const std::vector<Usage>& usage) {
  Document document{
      Heading{1, "NAME"},
      Paragraph{"amortix2 - personal-finance calculators and charts"},
      Heading{1, "SYNOPSIS"},
      Code{"amortix2 list [NAME...] [--json]\namortix2 call NAME [INPUT=VALUE...]\namortix2 batch\namortix2 "
           "serve\namortix2 rows NAME [INPUT=VALUE...] < FILE"},
      Heading{1, "DESCRIPTION"},
      Paragraph{
          "Answers questions about loans, leases, mortgages, savings and retirement, and draws charts. list "
          "shows what there is, call makes one call and shows its answer, batch answers requests in JSON by "
          "the line, serve shows everything as pages to browsers, rows makes a call for each row of a "
          "table."},
      Heading{1, "COMMANDS"},
  };
  for (const auto& [command, help] : usage) Append(document, {Heading{2, std::string(command)}, Code{help}});
  Append(document, {Heading{1, "CALCULATORS AND CHARTS"},
                    Paragraph{"amortix2 call NAME --help says of each what it asks and gives."}});
  std::vector<ClassMember> members = MembersWithPage(false);
  std::ranges::copy(MembersWithPage(true), std::back_inserter(members));
  Append(document, Overview(members, 2));
  Append(document,
         {Heading{1, "EXIT STATUS"},
          Items{{{"0", "success", {}},
                 {"1", "the component raised an error", {}},
                 {"2", "a wrong command line, an unknown name or an unreadable value", {}},
                 {"3", "reading or writing failed", {}},
                 {"11 to 110", "rows: 10 and one more for each row that failed, 100 at most", {}}}},
          Heading{1, "EXAMPLES"},
          Code{"amortix2 call loan vPurchaseAmt=200000 vPeriod=360 vIntRate=6.5\namortix2 list refinance"}});
  return ".\\\" Made by ./dev renew; change the component's description or the program's help.\n"
         ".TH AMORTIX2 1 \"\" \"amortix2 " +
         std::string(version) + "\" \"User commands\"\n" + RoffText(document);
}

}  // namespace amortix2::cli
