#include "amortix2/pages/calculator_form.h"

#include <algorithm>
#include <string>
#include <vector>

#include "amortix2/pages/form_field.h"
#include "amortix2/pages/frame.h"
#include "amortix2/pages/typed_input.h"

namespace amortix2::pages {
namespace {

std::string_view UnitSign(Unit unit) {
  switch (unit) {
    case Unit::Currency:
      return "$";
    case Unit::MonthlyCurrency:
      return "$ a month";
    case Unit::Percent:
      return "%";
    case Unit::AnnualPercent:
      return "% a year";
    case Unit::PercentagePoints:
      return "% points";
    case Unit::Days:
    case Unit::Months:
    case Unit::Years:
    case Unit::Periods:
      return UnitName(unit);
    default:
      return {};
  }
}

std::string_view WhenEmpty(Omitted omitted) {
  switch (omitted) {
    case Omitted::Zero:
      return "Empty counts as 0.";
    case Omitted::Today:
      return "Empty means today.";
    case Omitted::WholeTerm:
      return "Empty means the whole term.";
    case Omitted::Nothing:
      return "May stay empty.";
    default:
      return {};
  }
}

/// The description's help, without what it says of a 0, which nobody has to type here.
std::string Hint(const ParameterInfo& parameter) {
  std::string hint(parameter.help);
  if (parameter.choices && parameter.unit == Unit::Text) hint.clear();
  const bool isSaidBelow = parameter.omitted == Omitted::FindIt || parameter.omitted == Omitted::WholeTerm;
  if (isSaidBelow) hint.erase(std::min(hint.find(';'), hint.size()));
  if (!hint.empty()) hint += '.';
  const std::string_view empty = parameter.choices ? std::string_view() : WhenEmpty(parameter.omitted);
  if (!empty.empty()) hint.append(hint.empty() ? "" : " ").append(empty);
  if (parameter.unit == Unit::Months) hint += " “30 years” can be written, too.";
  return hint;
}

class FormWriter {
 public:
  FormWriter(EscapedMarkup& out, const Calculation& calculation, const Query& query)
      : out_(out), calculation_(calculation), query_(query) {}

  void Append() {
    const MemberInfo& member = calculation_.Member();
    AppendFind();
    for (const ParameterInfo& parameter : member.parameters) {
      if (!parameter.IsInput()) continue;
      if (!parameter.questions.empty()) {
        AppendSurvey(parameter);
      } else if (const ListInfo* list = ListOf(member, parameter)) {
        if (*list->inputs.begin() == parameter.name) AppendList(*list);
      } else {
        AppendSingle(parameter);
      }
    }
  }

 private:
  /// The choice of what to find; nothing when there is none.
  void AppendFind() {
    if (!calculation_.Find()) return;
    out_.Open("fieldset", {{"class", "find"}});
    out_.TextElement("legend", {}, "What do you want to find?");
    for (const FindInfo& find : calculation_.Member().finds) {
      AppendRadio("find", "find-", find.input, FindParameter(calculation_.Member(), find.input)->title,
                  &find == calculation_.Find());
    }
    out_.Close();
  }

  /// Each question with its answers, one of which is chosen.
  void AppendSurvey(const ParameterInfo& parameter) {
    for (std::size_t i = 0; i < parameter.questions.size(); ++i) {
      const QuestionInfo& question = parameter.questions[i];
      const std::string id = std::string(parameter.name) + "." + std::to_string(i + 1);
      const std::string_view error = ErrorOf(parameter, i);
      const std::string errorId = id + "-error";
      out_.Open("fieldset", {{"class", "find"},
                             {"id", id},
                             {"tabindex", -1},
                             Attribute::If(!error.empty(), {"aria-describedby", errorId})});
      out_.TextElement("legend", {}, question.text);
      const std::string_view chosen = query_.Get(id);
      for (const ChoiceInfo& answer : question.answers) {
        AppendRadio(id, id + ".", answer.text, answer.title, answer.text == chosen);
      }
      if (!error.empty()) out_.TextElement("p", {{"class", "error"}, {"id", errorId}}, error);
      out_.Close();
    }
  }

  /// One of the choices of a name, whose id is `before` and its value.
  void AppendRadio(std::string_view name, const std::string& before, std::string_view value,
                   std::string_view title, bool isChosen) {
    const std::string id = before + std::string(value);
    out_.Open("label", {{"for", id}});
    out_.Leaf("input", {{"type", "radio"},
                        {"name", name},
                        {"id", id},
                        {"value", value},
                        Attribute::If(isChosen, {"checked", ""})});
    out_.TextElement("span", {}, title);
    out_.Close();
  }

  void AppendSingle(const ParameterInfo& parameter) {
    FormField field = FieldOf(parameter, 0);
    field.id = parameter.name;
    field.hint = Hint(parameter);
    const auto& finds = calculation_.Member().finds;
    const auto find = std::ranges::find(finds, parameter.name, &FindInfo::input);
    if (find != finds.end()) field.style += " findable-" + std::to_string(find - finds.begin() + 1);
    Append(parameter, field);
  }

  /// A row of fields for each item, and a few empty ones.
  void AppendList(const ListInfo& list) {
    constexpr std::size_t kSpare = 2;
    std::size_t items = 0;
    for (const std::string_view name : list.inputs) items = std::max(items, query_.All(name).size());
    const auto shown = std::min(items + kSpare, static_cast<std::size_t>(list.most));
    for (std::size_t item = 0; item < std::max(shown, items); ++item) {
      out_.Open("fieldset", {{"class", "item"}});
      out_.TextElement("legend", {}, std::string(list.title) + " " + std::to_string(item + 1));
      for (const std::string_view name : list.inputs) {
        const ParameterInfo& parameter = *FindParameter(calculation_.Member(), name);
        Append(parameter, FieldOf(parameter, item));
      }
      out_.Close();
    }
    out_.TextElement("p", {{"class", "hint"}},
                     "Rows that stay empty are left out; there are new ones after each answer.");
  }

  FormField FieldOf(const ParameterInfo& parameter, std::size_t item) const {
    const auto all = query_.All(parameter.name);
    return {.id = std::string(parameter.name) + "." + std::to_string(item + 1),
            .name = parameter.name,
            .label = parameter.title,
            .value = item < all.size() ? all[item] : std::string_view(),
            .unit = UnitSign(parameter.unit),
            .error = ErrorOf(parameter, item)};
  }

  void Append(const ParameterInfo& parameter, const FormField& field) {
    OpenField(out_, field);
    if (parameter.choices) {
      AppendSelect(out_, field, *parameter.choices);
    } else if (parameter.unit == Unit::Date) {
      AppendDate(parameter, field);
    } else {
      AppendInput(out_, field, "text", IsNumber(parameter.unit) && parameter.unit != Unit::Months);
    }
    CloseField(out_, field);
  }

  /// A browser empties a date's field of what is none, and what was typed would be gone.
  void AppendDate(const ParameterInfo& parameter, FormField field) {
    const Typed typed = ReadTyped(parameter, field.value);
    if (const json::Tree* iso = json::FieldNamed(typed.value, "value")) field.value = *json::TextOf(*iso);
    AppendInput(out_, field, typed.error.empty() ? "date" : "text");
  }

  /// The sentence of what was wrong; empty when nothing was.
  std::string_view ErrorOf(const ParameterInfo& parameter, std::size_t item) const {
    const auto error = std::ranges::find_if(calculation_.Errors(), [&](const FieldError& candidate) {
      return candidate.parameter == &parameter && candidate.item == item;
    });
    return error == calculation_.Errors().end() ? std::string_view() : error->sentence;
  }

  EscapedMarkup& out_;
  const Calculation& calculation_;
  const Query& query_;
};

}  // namespace

void AppendForm(EscapedMarkup& out, const Calculation& calculation, const Query& query) {
  const std::string action = "/" + std::string(calculation.Member().address) + "#answer";
  out.Open("form", {{"class", "card inputs"}, {"action", action}, {"aria-label", "Inputs"}});
  FormWriter(out, calculation, query).Append();
  if (const std::string* with = query.Find("with")) {
    out.Leaf("input", {{"type", "hidden"}, {"name", "with"}, {"value", *with}});
  }
  out.Open("div", {{"class", "actions"}});
  out.TextElement("button", {{"type", "submit"}}, "Calculate");
  out.Close();
  out.Close();
}

void AppendErrors(EscapedMarkup& out, const Calculation& calculation) {
  std::vector<Problem> problems;
  for (const FieldError& error : calculation.Errors()) {
    const ParameterInfo* const parameter = error.parameter;
    Problem& problem = problems.emplace_back(Problem{{}, {}, error.sentence});
    if (!parameter) continue;
    const bool isItem = ListOf(calculation.Member(), *parameter) || !parameter->questions.empty();
    problem.field =
        std::string(parameter->name) + (isItem ? "." + std::to_string(error.item + 1) : std::string());
    problem.title = parameter->title;
  }
  AppendProblems(out, problems);
}

}  // namespace amortix2::pages
