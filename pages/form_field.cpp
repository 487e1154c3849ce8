#include "amortix2/pages/form_field.h"

#include <algorithm>

#include "amortix2/component/description.h"

namespace amortix2::pages {
namespace {

constexpr std::string_view kDollar = "$";

/// The unit's words behind the control; a dollar's sign stands before it.
std::string_view UnitBehind(std::string_view unit) {
  return unit.starts_with(kDollar) ? unit.substr(std::min<std::size_t>(2, unit.size())) : unit;
}

std::string DescribedBy(const FormField& field) {
  std::string ids;
  const auto add = [&](bool isThere, const char* what) {
    if (isThere) ids += (ids.empty() ? "" : " ") + field.id + what;
  };
  add(!field.error.empty(), "-error");
  add(!UnitBehind(field.unit).empty(), "-unit");
  add(!field.hint.empty(), "-hint");
  return ids;
}

/// What every control has. Texts must live as long as the element is written.
struct SharedAttributes {
  explicit SharedAttributes(const FormField& field)
      : ids(DescribedBy(field)), isWrong(!field.error.empty()) {}

  Attribute DescribedByThem() const { return Attribute::If(!ids.empty(), {"aria-describedby", ids}); }
  Attribute Invalid() const { return Attribute::If(isWrong, {"aria-invalid", "true"}); }

  std::string ids;
  bool isWrong;
};

}  // namespace

void OpenField(EscapedMarkup& out, const FormField& field) {
  const bool isMoney = field.unit.starts_with(kDollar);
  out.Open("div", {{"class", field.style}});
  out.TextElement("label", {{"for", field.id}}, field.label);
  out.Open("div", {{"class", isMoney ? "control money" : "control"}});
  if (isMoney) out.TextElement("span", {{"class", "unit"}, {"aria-hidden", "true"}}, kDollar);
}

void CloseField(EscapedMarkup& out, const FormField& field) {
  const std::string_view behind = UnitBehind(field.unit);
  if (!behind.empty()) out.TextElement("span", {{"class", "unit"}, {"id", field.id + "-unit"}}, behind);
  out.Close();
  if (!field.hint.empty()) {
    out.TextElement("p", {{"class", "hint"}, {"id", field.id + "-hint"}}, field.hint);
  }
  if (!field.error.empty()) {
    out.TextElement("p", {{"class", "error"}, {"id", field.id + "-error"}}, field.error);
  }
  out.Close();
}

void AppendInput(EscapedMarkup& out, const FormField& field, std::string_view type, bool isDecimal) {
  const SharedAttributes shared(field);
  out.Leaf("input", {{"type", type},
                     {"id", field.id},
                     {"name", field.name},
                     {"value", field.value},
                     Attribute::If(isDecimal, {"inputmode", "decimal"}),
                     {"autocomplete", "off"},
                     shared.DescribedByThem(),
                     shared.Invalid()});
}

void AppendArea(EscapedMarkup& out, const FormField& field) {
  const SharedAttributes shared(field);
  out.Open("textarea", {{"id", field.id},
                        {"name", field.name},
                        {"rows", 9},
                        {"spellcheck", "false"},
                        shared.DescribedByThem(),
                        shared.Invalid()});
  out.Text("\n");  // browsers drop the first line end
  out.Text(field.value);
  out.Close();
}

void AppendSelect(EscapedMarkup& out, const FormField& field, const ChoicesInfo& choices,
                  std::string_view unlisted) {
  const SharedAttributes shared(field);
  out.Open("select", {{"id", field.id}, {"name", field.name}, shared.DescribedByThem(), shared.Invalid()});
  const ChoiceInfo* const chosen = field.value.empty() ? nullptr : FindChoice(choices, field.value);
  for (const ChoiceInfo& choice : choices.choices) {
    if (choice.text == unlisted) continue;
    out.TextElement("option", {{"value", choice.text}, Attribute::If(&choice == chosen, {"selected", ""})},
                    choice.title);
  }
  out.Close();
}

}  // namespace amortix2::pages
