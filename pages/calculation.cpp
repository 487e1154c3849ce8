#include "amortix2/pages/calculation.h"

#include <algorithm>
#include <functional>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/number_format.h"
#include "amortix2/pages/typed_input.h"

namespace amortix2::pages {
namespace {

constexpr std::string_view kMissing = "Enter a value here: there is no answer without it.";

bool IsBlankText(std::string_view text) {
  return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

bool IsZero(const json::Fields& arguments, std::string_view name) {
  const auto field = arguments.find(std::string(name));
  const auto number = field == arguments.end() ? std::nullopt : json::NumberOf(field->second);
  return !number || *number == 0;
}

/// As a person would type an example's value: an amount with its thousands parted.
std::string TypedText(const ParameterInfo& parameter, std::string_view value) {
  static const NumberPattern kMoney("#,##0.##");
  const auto number = IsMoney(parameter.unit) ? ParseNumber(value) : std::nullopt;
  return number ? kMoney.FormatFigure(*number) : std::string(value);
}
std::string TypedText(const ParameterInfo& parameter, const json::Tree& value) {
  const std::string* text = json::TextOf(value);
  return TypedText(parameter, std::string_view(text ? *text : value.dump()));
}

}  // namespace

const ListInfo* ListOf(const MemberInfo& member, const ParameterInfo& parameter) {
  const auto list = std::ranges::find_if(member.lists, [&](const ListInfo& candidate) {
    return std::ranges::find(candidate.inputs, parameter.name) != candidate.inputs.end();
  });
  return list == member.lists.end() ? nullptr : &*list;
}

const FindInfo* FindAsked(const MemberInfo& member, const Query& query) {
  const std::string_view asked = query.Get("find");
  const FindInfo* first = nullptr;
  for (const FindInfo& find : member.finds) {
    if (find.input.empty()) return nullptr;
    if (SameName(find.input, asked)) return &find;
    if (!first && IsBlankText(query.Get(find.input))) first = &find;
  }
  return first;
}

Query ExampleQuery(const MemberInfo& member) {
  Query query;
  for (const ParameterInfo& parameter : member.parameters) {
    if (!parameter.IsInput() || parameter.example.empty()) continue;
    const bool isList = ListOf(member, parameter) || !parameter.questions.empty();
    const auto values = isList ? json::ParseTree(parameter.example).tree : std::nullopt;
    const json::Items* items = values ? json::ItemsOf(*values) : nullptr;
    if (!items) {
      query.Set(parameter.name, TypedText(parameter, parameter.example));
    } else if (parameter.questions.empty()) {
      for (const json::Tree& item : *items) query.Append(parameter.name, TypedText(parameter, item));
    } else {
      for (std::size_t i = 1; i < items->size(); ++i) {
        query.Append(std::string(parameter.name) + "." + std::to_string(i),
                     TypedText(parameter, (*items)[i]));
      }
    }
  }
  if (const FindInfo* find = FindAsked(member, query)) query.Set("find", find->input);
  return query;
}

Calculation::Calculation(const ClassMember& member, const Query& query, const Clock& clock)
    : member_(member), find_(FindAsked(*member.member, query)) {
  for (const ParameterInfo& parameter : Member().parameters) {
    if (!parameter.IsInput()) continue;
    if (!parameter.questions.empty()) {
      ReadSurvey(parameter, query);
    } else if (const ListInfo* list = ListOf(Member(), parameter)) {
      if (*list->inputs.begin() == parameter.name) ReadList(*list, query);
    } else {
      ReadSingle(parameter, query);
    }
  }
  CheckFind();
  // Each points into the member's parameters, which stand as the fields do.
  std::ranges::stable_sort(errors_, std::less<>(), &FieldError::parameter);
  if (!errors_.empty()) return;
  static const json::Fields kNoSettings;
  const std::string call = Call();
  execution_.emplace(json::Request{call, arguments_, kNoSettings}, clock, json::Keep::Inputs,
                     json::Caller::Stranger);
  if (execution_->Error()) RefuseFailed();
}

void Calculation::RefuseFailed() {
  const json::Failure& error = *execution_->Error();
  const auto fault = execution_->Given() ? FaultOf(In(), error.number) : std::nullopt;
  if (fault) {
    return Refuse(fault->parameter, fault->given + (fault->given.empty() ? "" : " ") + fault->sentence + ".");
  }
  const json::Cause cause = execution_->WhyFailed();
  Refuse(FindParameter(Member(), cause.parameter), "There is no answer: " + cause.text + ".");
}

std::string Calculation::Call() const {
  return std::string(member_.type->name) + "." + std::string(Member().name);
}

void Calculation::ReadSingle(const ParameterInfo& parameter, const Query& query) {
  if (find_ && find_->input == parameter.name) return;
  Typed typed = ReadTyped(parameter, query.Get(parameter.name));
  if (!typed.error.empty()) return Refuse(&parameter, std::move(typed.error));
  if (!typed.value.is_null()) {
    arguments_[std::string(parameter.name)] = std::move(typed.value);
  } else if (parameter.omitted == Omitted::Required) {
    Refuse(&parameter, std::string(kMissing));
  }
}

void Calculation::ReadList(const ListInfo& list, const Query& query) {
  std::size_t items = 0;
  for (const std::string_view name : list.inputs) items = std::max(items, query.All(name).size());
  for (std::size_t item = 0; item < items; ++item) {
    const auto text = [&](std::string_view name) {
      const auto all = query.All(name);
      return item < all.size() ? all[item] : std::string_view();
    };
    if (std::ranges::all_of(list.inputs, IsBlankText, text)) continue;
    for (const std::string_view name : list.inputs) {
      const ParameterInfo& parameter = *FindParameter(Member(), name);
      Typed typed = ReadTyped(parameter, text(name));
      if (typed.error.empty() && typed.value.is_null()) typed.error = kMissing;
      if (!typed.error.empty()) Refuse(&parameter, std::move(typed.error), item);
      arguments_[std::string(name)].push_back(std::move(typed.value));
    }
  }
  const ParameterInfo& first = *FindParameter(Member(), *list.inputs.begin());
  const auto read = arguments_.find(std::string(first.name));
  if (read == arguments_.end()) return Refuse(&first, std::string(kMissing));
  if (read->second.size() > static_cast<std::size_t>(list.most)) {
    Refuse(&first, "There may be " + std::to_string(list.most) + " of them, no more.");
  }
}

void Calculation::ReadSurvey(const ParameterInfo& parameter, const Query& query) {
  json::Tree answers = json::Tree::array();
  for (std::size_t i = 0; i < parameter.questions.size(); ++i) {
    const auto& choices = parameter.questions[i].answers;
    const std::string_view text = query.Get(std::string(parameter.name) + "." + std::to_string(i + 1));
    const ChoiceInfo* choice =
        FindChoice({.title = {}, .choices = choices, .otherwise = {}, .enumeration = nullptr}, text);
    if (!choice) Refuse(&parameter, "Choose an answer.", i);
    answers.push_back(choice ? choice->text : "");
  }
  arguments_[std::string(parameter.name)] = {{"lower", json::Tree::array({1})}, {"values", answers}};
}

/// The first quantity that is 0 is found, so what stands before the one that is asked for must be given.
void Calculation::CheckFind() {
  if (!find_) return;
  for (const FindInfo& find : Member().finds) {
    if (&find == find_) break;
    Need(find.input);
  }
  for (const std::string_view name : find_->needs) Need(name);
  if (find_->needsOne.empty()) return;
  const bool hasOne =
      std::ranges::any_of(find_->needsOne, [&](std::string_view name) { return !IsZero(arguments_, name); });
  if (!hasOne) Need(*find_->needsOne.begin());
}

void Calculation::Need(std::string_view name) {
  const ParameterInfo& parameter = *FindParameter(Member(), name);
  if (!IsZero(arguments_, name) || IsRefused(parameter)) return;
  const ParameterInfo& asked = *FindParameter(Member(), find_->input);
  Refuse(&parameter, "Enter a value above 0: \"" + std::string(asked.title) + "\" is found from it.");
}

bool Calculation::IsRefused(const ParameterInfo& parameter) const {
  return std::ranges::find(errors_, &parameter, &FieldError::parameter) != errors_.end();
}

void Calculation::Refuse(const ParameterInfo* parameter, std::string sentence, std::size_t item) {
  errors_.push_back({parameter, item, std::move(sentence)});
}

}  // namespace amortix2::pages
