#include "amortix2/component/notes.h"

#include <algorithm>
#include <cmath>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/number_format.h"
#include "amortix2/component/answer.h"
#include "amortix2/component/note_writer.h"
#include "amortix2/engine/records.h"

namespace amortix2 {

std::string Note::Text() const {
  const std::string name(parameter->name);
  return given.empty() ? name + ": " + sentence : name + "=" + given + " " + sentence;
}

void NoteWriter::OnInput(std::string_view code, const ParameterInfo& parameter, const Variant& given,
                         std::string sentence) {
  notes_.push_back({code, &parameter, GivenText(given), std::move(sentence)});
}

void NoteWriter::OnInput(std::string_view code, std::string_view name, std::string sentence) {
  OnInput(code, *FindParameter(Member(), name), inputs_.At(name), std::move(sentence));
}

void NoteWriter::About(std::string_view code, std::string_view name, std::string sentence) {
  notes_.push_back({code, FindParameter(Member(), name), {}, std::move(sentence)});
}

std::string GivenText(const Variant& value) {
  constexpr std::size_t kLongest = 40;
  if (value.Type() == VariantType::Array) return "a list";
  if (!IsGiven(value)) return "nothing";
  if (value.Type() != VariantType::String) return ToText(value);
  std::string text(value.GetString());
  if (text.size() > kLongest) {
    std::size_t end = kLongest;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) --end;  // not within a letter
    text = text.substr(0, end) + "...";
  }
  return '"' + text + '"';
}

std::string MoneyText(double amount) {
  static const NumberPattern kMoney("#,##0.00");
  return kMoney.FormatFigure(amount);
}

void Apply(std::span<const Rule> rules, NoteWriter& notes) {
  for (const Rule& rule : rules) {
    if (rule.member.empty() || rule.member == notes.Member().name) rule.note(notes);
  }
}

std::string_view FoundInput(const NoteWriter& notes) {
  const FindInfo* found = FoundBy(notes.In());
  return found ? found->input : std::string_view();
}

double Cents(double amount) { return std::floor(amount * 100 + 0.5) / 100; }

bool IsFrequency(double code) { return code >= double{dailymode} && code <= double{continuousMode}; }

namespace {

bool IsMonths(Unit unit) { return unit == Unit::Months || unit == Unit::Years || unit == Unit::Periods; }

/// What an input counts as that counts as 0.
std::string AsZero(const NoteWriter& notes, const ParameterInfo& parameter) {
  if (parameter.name == notes.Member().horizon) return "counts as 0: the whole term";
  if (parameter.unit == Unit::Code && !parameter.choices->otherwise.empty()) {
    return "counts as 0: " + std::string(parameter.choices->otherwise);
  }
  return "counts as 0";
}

void NoteNumber(NoteWriter& notes, const ParameterInfo& parameter, const Variant& given) {
  if (!IsNumeric(given)) {
    const bool isDate = IsMonths(parameter.unit) && IsDate(given);
    notes.OnInput(isDate ? "date-for-number" : "no-number", parameter, given,
                  (isDate ? "is a date where " + std::string(UnitName(parameter.unit)) + " are wanted and "
                          : "is no number and ") +
                      AsZero(notes, parameter));
    return;
  }
  const double number = NumericOrZero(given);
  if (number < 0 && parameter.range.IsGiven() && parameter.range.least >= 0) {
    notes.OnInput("negative", parameter, given, "is negative");
  } else if (IsMonths(parameter.unit) && number >= 1 && number != std::floor(number)) {
    const bool isRounded = parameter.unit == Unit::Months;
    const double used = isRounded ? std::nearbyint(number) : std::floor(number);
    const std::string_view word = isRounded ? "is rounded to " : "is cut down to ";
    notes.OnInput("no-whole-number", parameter, given, std::string(word) + NumberText(used));
  }
}

void NoteDate(NoteWriter& notes, const ParameterInfo& parameter, const Variant& given) {
  if (IsDate(given)) return;
  if (parameter.omitted == Omitted::Today) {
    notes.OnInput("no-date", parameter, given, "is no date and counts as today");
  } else if (parameter.omitted == Omitted::Nothing) {
    notes.OnInput("no-date", parameter, given, "is no date and counts as not given");
  } else if (given.Type() == VariantType::String || !IsNumeric(given)) {
    notes.OnInput("no-date", parameter, given, "is no date");
  } else {
    notes.OnInput("day-count", parameter, given, "is a number, which counts the days since 12/30/1899");
  }
}

bool IsChoice(const ChoicesInfo& choices, Unit unit, const Variant& given) {
  if (unit == Unit::Flag) return true;
  const bool isCode = unit == Unit::Code;
  const std::string text = isCode ? NumberText(std::nearbyint(NumericOrZero(given))) : ToText(given);
  return std::ranges::any_of(choices.choices, [&](const ChoiceInfo& choice) {
    return choices.anyCase ? SameName(choice.text, text) : choice.text == text;
  });
}

void NoteChoice(NoteWriter& notes, const ParameterInfo& parameter, const Variant& given) {
  const ChoicesInfo& choices = *parameter.choices;
  if (given.Type() == VariantType::Array || IsChoice(choices, parameter.unit, given)) return;
  std::string sentence = "is none of the choices";
  if (!choices.otherwise.empty()) sentence += " and counts as " + std::string(choices.otherwise);
  notes.OnInput("no-choice", parameter, given, sentence);
}

void NoteOmitted(NoteWriter& notes, const ParameterInfo& parameter) {
  if (parameter.omitted != Omitted::Required || parameter.type->kind != TypeKind::Variant) return;
  if (parameter.unit == Unit::Date) {
    notes.About("start-not-given", parameter.name, "Not given, so the plan starts on 12/30/1899.");
  } else if (IsNumber(parameter.unit)) {
    notes.About("not-given", parameter.name, "Not given, so it " + AsZero(notes, parameter) + ".");
  }
}

void NoteGiven(NoteWriter& notes, const ParameterInfo& parameter, const Variant& given) {
  if (parameter.unit == Unit::Date) NoteDate(notes, parameter, given);
  if (IsNumber(parameter.unit)) NoteNumber(notes, parameter, given);
  const bool isCode = parameter.unit == Unit::Code;
  if (parameter.choices && (!isCode || IsNumeric(given))) NoteChoice(notes, parameter, given);
}

bool IsList(const MemberInfo& member, std::string_view input) {
  return std::ranges::any_of(member.lists, [&](const ListInfo& list) {
    return std::ranges::find(list.inputs, input) != list.inputs.end();
  });
}

/// What the member finds although the input for it was given, or does not find although it was left out.
void NoteFound(NoteWriter& notes) {
  const std::span<const FindInfo> finds = notes.Member().finds;
  if (finds.empty() || finds.front().input.empty()) return;
  const FindInfo* found = FoundBy(notes.In());
  if (!found) {
    const auto asked =
        std::ranges::find_if(finds, [&](const FindInfo& find) { return notes.Number(find.input) == 0; });
    notes.About("nothing-found", asked->input, "Nothing is found: too few of the others are given.");
    return;
  }
  if (notes.Number(found->input) != 0) {
    notes.OnInput("found-anew", found->input, "is not used: with everything given, it is found anew");
    return;
  }
  for (const FindInfo& find : finds) {
    const ParameterInfo& input = *FindParameter(notes.Member(), find.input);
    const bool isZeroRate = input.unit == Unit::AnnualPercent && notes.Number(find.input) == 0;
    if (&find == found || !isZeroRate || !IsNumeric(notes.In().At(find.input))) continue;
    notes.About("rate-is-zero", find.input,
                "Counts as 0 %, as \"" + std::string(FindParameter(notes.Member(), found->input)->title) +
                    "\" is what is found.");
  }
}

}  // namespace

void NoteInputs(NoteWriter& notes) {
  const std::span<const ParameterInfo> parameters = notes.Member().parameters;
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    const ParameterInfo& parameter = parameters[i];
    const Variant& given = notes.In().At(i);
    if (!parameter.IsInput()) continue;
    if (!IsGiven(given)) {
      NoteOmitted(notes, parameter);
    } else if (IsList(notes.Member(), parameter.name)) {
      for (const Variant& item : ElementsOf(given)) {
        if (IsGiven(item)) NoteGiven(notes, parameter, item);
      }
    } else {
      NoteGiven(notes, parameter, given);
    }
  }
  NoteFound(notes);
}

std::vector<Note> NotesOn(const Inputs& inputs, const Results& results, Date today) {
  NoteWriter writer(inputs, results, today);
  NoteInputs(writer);
  NoteLoans(writer);
  NotePlans(writer);
  std::vector<Note> notes = writer.Take();
  std::ranges::stable_sort(notes, {}, &Note::parameter);  // parameters of one member lie in one array
  return notes;
}

}  // namespace amortix2
