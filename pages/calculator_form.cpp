#include "amortix2/pages/calculator_form.h"

#include <algorithm>
#include <string>

#include "amortix2/pages/typed_input.h"

namespace amortix2::pages {
namespace {

/// A field's place on the page.
struct Field {
  const ParameterInfo& parameter;
  std::string id;
  std::string_view text;  ///< as it was typed
  std::size_t item = 0;
};

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
      const std::string id = "find-" + std::string(find.input);
      out_.Open("label", {{"for", id}});
      out_.Leaf("input", {{"type", "radio"},
                          {"name", "find"},
                          {"id", id},
                          {"value", find.input},
                          Attribute::If(&find == calculation_.Find(), {"checked", ""})});
      out_.TextElement("span", {}, FindParameter(calculation_.Member(), find.input)->title);
      out_.Close();
    }
    out_.Close();
  }

  /// Each question with its answers, one of which is chosen.
  void AppendSurvey(const ParameterInfo& parameter) {
    for (std::size_t i = 0; i < parameter.questions.size(); ++i) {
      const QuestionInfo& question = parameter.questions[i];
      const std::string id = std::string(parameter.name) + "." + std::to_string(i + 1);
      const Field field{parameter, id, query_.Get(id), i};
      const std::string error = ErrorOf(field) ? id + "-error" : std::string();
      out_.Open("fieldset", {{"class", "find"},
                             {"id", id},
                             {"tabindex", -1},
                             Attribute::If(!error.empty(), {"aria-describedby", error})});
      out_.TextElement("legend", {}, question.text);
      for (const ChoiceInfo& answer : question.answers) AppendAnswer(field, answer);
      AppendError(field);
      out_.Close();
    }
  }

  void AppendAnswer(const Field& field, const ChoiceInfo& answer) {
    const std::string id = field.id + "." + std::string(answer.text);
    out_.Open("label", {{"for", id}});
    out_.Leaf("input", {{"type", "radio"},
                        {"name", field.id},
                        {"id", id},
                        {"value", answer.text},
                        Attribute::If(field.text == answer.text, {"checked", ""})});
    out_.TextElement("span", {}, answer.title);
    out_.Close();
  }

  void AppendSingle(const ParameterInfo& parameter) {
    const auto& finds = calculation_.Member().finds;
    const auto find = std::ranges::find(finds, parameter.name, &FindInfo::input);
    const std::string style =
        find == finds.end() ? "field" : "field findable-" + std::to_string(find - finds.begin() + 1);
    const Field field{parameter, std::string(parameter.name), query_.Get(parameter.name)};
    out_.Open("div", {{"class", style}});
    out_.TextElement("label", {{"for", field.id}}, parameter.title);
    AppendControl(field);
    const std::string hint = Hint(parameter);
    if (!hint.empty()) out_.TextElement("p", {{"class", "hint"}, {"id", field.id + "-hint"}}, hint);
    AppendError(field);
    out_.Close();
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
      for (const std::string_view name : list.inputs)
        AppendItem(*FindParameter(calculation_.Member(), name), item);
      out_.Close();
    }
    out_.TextElement("p", {{"class", "hint"}},
                     "Rows that stay empty are left out; there are new ones after each answer.");
  }

  void AppendItem(const ParameterInfo& parameter, std::size_t item) {
    const auto all = query_.All(parameter.name);
    const Field field{parameter, std::string(parameter.name) + "." + std::to_string(item + 1),
                      item < all.size() ? all[item] : std::string_view(), item};
    out_.Open("div", {{"class", "field"}});
    out_.TextElement("label", {{"for", field.id}}, parameter.title);
    AppendControl(field);
    AppendError(field);
    out_.Close();
  }

  void AppendControl(const Field& field) {
    const std::string_view sign = UnitSign(field.parameter.unit);
    out_.Open("div", {{"class", sign.starts_with('$') ? "control money" : "control"}});
    if (sign.starts_with('$')) out_.TextElement("span", {{"class", "unit"}, {"aria-hidden", "true"}}, "$");
    if (field.parameter.choices) {
      AppendSelect(field);
    } else {
      AppendInput(field);
    }
    const std::string_view behind =
        sign.starts_with('$') ? sign.substr(std::min<std::size_t>(2, sign.size())) : sign;
    if (!behind.empty()) out_.TextElement("span", {{"class", "unit"}, {"id", field.id + "-unit"}}, behind);
    out_.Close();
  }

  void AppendInput(const Field& field) {
    const Unit unit = field.parameter.unit;
    std::string text(field.text);
    bool isDate = unit == Unit::Date;
    if (isDate && !text.empty()) {
      // A browser empties a date's field of what is none, and what was typed would be gone.
      const Typed typed = ReadTyped(field.parameter, text);
      isDate = typed.error.empty();
      const json::Tree* iso = json::FieldNamed(typed.value, "value");
      if (iso) text = *json::TextOf(*iso);
    }
    const bool isDecimal = IsNumber(unit) && unit != Unit::Months;
    const std::string described = DescribedBy(field);
    out_.Leaf("input", {{"type", isDate ? "date" : "text"},
                        {"id", field.id},
                        {"name", field.parameter.name},
                        {"value", text},
                        Attribute::If(isDecimal, {"inputmode", "decimal"}),
                        {"autocomplete", "off"},
                        Attribute::If(!described.empty(), {"aria-describedby", described}),
                        Attribute::If(ErrorOf(field) != nullptr, {"aria-invalid", "true"})});
  }

  void AppendSelect(const Field& field) {
    const std::string described = DescribedBy(field);
    out_.Open("select", {{"id", field.id},
                         {"name", field.parameter.name},
                         Attribute::If(!described.empty(), {"aria-describedby", described}),
                         Attribute::If(ErrorOf(field) != nullptr, {"aria-invalid", "true"})});
    const ChoiceInfo* chosen =
        field.text.empty() ? nullptr : FindChoice(*field.parameter.choices, field.text);
    for (const ChoiceInfo& choice : field.parameter.choices->choices) {
      out_.TextElement("option", {{"value", choice.text}, Attribute::If(&choice == chosen, {"selected", ""})},
                       choice.title);
    }
    out_.Close();
  }

  const FieldError* ErrorOf(const Field& field) const {
    const auto error = std::ranges::find_if(calculation_.Errors(), [&](const FieldError& candidate) {
      return candidate.parameter == &field.parameter && candidate.item == field.item;
    });
    return error == calculation_.Errors().end() ? nullptr : &*error;
  }

  std::string DescribedBy(const Field& field) const {
    std::string ids;
    const auto add = [&](bool isThere, const char* what) {
      if (isThere) ids += (ids.empty() ? "" : " ") + field.id + what;
    };
    add(ErrorOf(field) != nullptr, "-error");
    const std::string_view sign = UnitSign(field.parameter.unit);
    add(!sign.empty() && sign != "$", "-unit");
    add(!ListOf(calculation_.Member(), field.parameter) && !Hint(field.parameter).empty(), "-hint");
    return ids;
  }

  void AppendError(const Field& field) {
    const FieldError* error = ErrorOf(field);
    if (error) out_.TextElement("p", {{"class", "error"}, {"id", field.id + "-error"}}, error->sentence);
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
  out.Open("section", {{"class", "card problems"}, {"id", "answer"}, {"role", "alert"}, {"tabindex", "-1"}});
  out.TextElement("h2", {}, "Please look at this again");
  out.Open("ul");
  for (const FieldError& error : calculation.Errors()) {
    out.Open("li");
    if (error.parameter) {
      const bool isItem =
          ListOf(calculation.Member(), *error.parameter) || !error.parameter->questions.empty();
      const std::string place = isItem ? "." + std::to_string(error.item + 1) : std::string();
      out.TextElement("a", {{"href", "#" + std::string(error.parameter->name) + place}},
                      error.parameter->title);
      out.Text(": ");
    }
    out.Text(error.sentence);
    out.Close();
  }
  out.Close();
  out.Close();
}

}  // namespace amortix2::pages
