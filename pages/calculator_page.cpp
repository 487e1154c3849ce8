#include "amortix2/pages/calculator_page.h"

#include <algorithm>
#include <optional>
#include <string>

#include "amortix2/automation/text_scanner.h"
#include "amortix2/pages/answer_part.h"
#include "amortix2/pages/calculation.h"
#include "amortix2/pages/calculator_form.h"
#include "amortix2/pages/downloads.h"
#include "amortix2/pages/frame.h"

namespace amortix2::pages {
namespace {

bool HasInputs(const MemberInfo& member, const Query& query) {
  return std::ranges::any_of(query.Fields(), [&](const Query::Field& field) {
    return field.name == "find" || FindParameter(member, field.name);
  });
}

void AppendTitle(EscapedMarkup& out, const MemberInfo& member, bool isExample) {
  std::string group(GroupTitle(member.group));
  std::string address = "/#" + group;
  std::ranges::transform(address, address.begin(), ToLower);
  out.Open("div", {{"class", "hero"}});
  out.Open("p", {{"class", "group"}});
  AppendLink(out, address, group);
  out.Close();
  out.TextElement("h1", {}, member.title);
  out.TextElement("p", {{"class", "lede"}}, member.help);
  if (isExample) {
    out.TextElement("p", {{"class", "notice"}}, "This is an example. Put in your own figures and calculate.");
  }
  out.Close();
}

/// The inputs without a survey's answers: nobody should be led to somebody else's profile.
Query WithoutAnswers(const MemberInfo& member, Query query) {
  for (const ParameterInfo& parameter : member.parameters) {
    for (std::size_t i = 1; i <= parameter.questions.size(); ++i) {
      query.Remove(std::string(parameter.name) + "." + std::to_string(i));
    }
  }
  return query;
}

void AppendResult(EscapedMarkup& out, const Calculation& calculation, const Query& query,
                  const Clock& clock) {
  if (!calculation.IsAnswered()) return AppendErrors(out, calculation);
  std::optional<Calculation> first;
  const std::string* with = query.Find("with");
  if (const auto other = with ? Query::Read(*with) : std::nullopt) {
    first.emplace(calculation.Target(), *other, clock);
  }
  AppendAnswer(out, calculation, query, first && first->IsAnswered() ? &*first : nullptr, clock);
}

}  // namespace

Page CalculatorPage(const ClassMember& member, const Query& query, const Clock& clock) {
  const bool isOpened = !HasInputs(*member.member, query);
  const Query inputs = isOpened ? ExampleQuery(*member.member) : query;
  const Calculation calculation(member, inputs, clock);
  if (auto taken = Download(calculation, inputs)) return std::move(*taken);
  const Query shown = isOpened ? WithoutAnswers(*member.member, inputs) : inputs;
  const bool isOpenSurvey = shown.Fields().size() != inputs.Fields().size();
  EscapedMarkup out;
  AppendTitle(out, *member.member, isOpened && !isOpenSurvey);
  out.Open("div", {{"class", "columns"}});
  AppendForm(out, calculation, shown);
  out.Open("div", {{"class", "result"}});
  if (!isOpenSurvey) AppendResult(out, calculation, inputs, clock);
  out.Close();
  out.Close();
  return Framed(member.member->title, "/" + std::string(member.member->address), out);
}

}  // namespace amortix2::pages
