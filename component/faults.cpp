#include <algorithm>
#include <string>
#include <utility>

#include "amortix2/automation/array.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/component/note_writer.h"

namespace amortix2 {
namespace {

/// What is wrong with one input that may be the cause of an error; empty when nothing is.
using Look = std::string (*)(const ParameterInfo& parameter, const Variant& given);

/// Of inputs that stand side by side in lists: one that is shorter than the first, by which loans are
/// counted.
std::optional<Note> ShorterList(const Inputs& inputs) {
  for (const ListInfo& list : inputs.Member().lists) {
    const std::size_t items = ElementsOf(inputs.At(*list.inputs.begin())).size();
    for (const std::string_view name : list.inputs) {
      if (ElementsOf(inputs.At(name)).size() >= items) continue;
      return Note{"fault",
                  FindParameter(inputs.Member(), name),
                  {},
                  "Has fewer elements than " + std::string(*list.inputs.begin()) + "."};
    }
  }
  return std::nullopt;
}

std::string NoDate(const ParameterInfo& parameter, const Variant& given) {
  const bool isStrict = parameter.unit == Unit::Date && parameter.omitted == Omitted::Required;
  const bool isDay = IsDate(given) || (given.Type() != VariantType::String && IsNumeric(given));
  return isStrict && IsGiven(given) && !isDay ? "is no date" : "";
}

std::string NoTable(const ParameterInfo& parameter, const Variant& given) {
  const bool isArray = given.Type() == VariantType::Array;
  if (parameter.unit == Unit::List && (!isArray || given.GetArray().Rank() != 1)) return "is no list";
  if (parameter.unit == Unit::Table && (!isArray || given.GetArray().Rank() != 2)) return "is no table";
  return {};
}

std::string NoSingleValue(const ParameterInfo& parameter, const Variant& given) {
  const bool isText = parameter.unit == Unit::Text && given.Type() == VariantType::Array;
  return isText ? "is a list where a text is wanted" : "";
}

std::string NoNumber(const ParameterInfo& parameter, const Variant& given) {
  return IsNumber(parameter.unit) && IsGiven(given) && !IsNumeric(given) ? "is no number" : "";
}

std::string NoAnswer(const ParameterInfo& parameter, const Variant& given) {
  if (parameter.questions.empty() || given.Type() != VariantType::Array || given.GetArray().Rank() != 1)
    return {};
  const Bounds bounds = given.GetArray().Dimension(1);
  if (bounds.upper < 1) return "has no answers: they count from index 1 on";
  for (std::int64_t i = std::max(bounds.lower, 1); i <= bounds.upper; ++i) {
    if (!IsGiven(given.GetArray().At(i))) return "has no answer at index " + std::to_string(i);
  }
  return {};
}

std::string OutsideLimit(const ParameterInfo& parameter, const Variant& given) {
  if (!IsNumber(parameter.unit) || !parameter.limit.IsGiven()) return {};
  const double number = NumericOrZero(given);
  if (parameter.limit.Contains(number)) return {};
  return number < parameter.limit.least ? "is too small" : "is too large";
}

std::string RequiredZero(const ParameterInfo& parameter, const Variant& given) {
  const bool isNeeded = parameter.omitted == Omitted::Required && IsNumber(parameter.unit);
  return isNeeded && parameter.unit != Unit::Code && NumericOrZero(given) == 0 ? "is 0" : "";
}

std::string WholeTax(const ParameterInfo& parameter, const Variant& given) {
  return parameter.unit == Unit::Percent && NumericOrZero(given) == 100 ? "is 100 %" : "";
}

/// What may cause an error, the surest first.
struct Cause {
  ErrorNumber error;
  Look look;
};
constexpr Cause kCauses[] = {
    {ErrorNumber::TypeMismatch, NoDate},
    {ErrorNumber::TypeMismatch, NoTable},
    {ErrorNumber::TypeMismatch, NoSingleValue},
    {ErrorNumber::TypeMismatch, NoNumber},
    {ErrorNumber::SubscriptOutOfRange, NoTable},
    {ErrorNumber::SubscriptOutOfRange, OutsideLimit},
    {ErrorNumber::InvalidProcedureCall, NoAnswer},
    {ErrorNumber::InvalidProcedureCall, OutsideLimit},
    {ErrorNumber::Overflow, NoAnswer},
    {ErrorNumber::Overflow, OutsideLimit},
    {ErrorNumber::Overflow, RequiredZero},
    {ErrorNumber::DivisionByZero, RequiredZero},
    {ErrorNumber::DivisionByZero, WholeTax},
    {ErrorNumber::OutOfMemory, OutsideLimit},
};

}  // namespace

std::optional<Note> FaultOf(const Inputs& inputs, ErrorNumber error) {
  const MemberInfo& member = inputs.Member();
  if (error == ErrorNumber::SubscriptOutOfRange) {
    if (std::optional<Note> fault = ShorterList(inputs)) return fault;
  }
  for (const Cause& cause : kCauses) {
    if (cause.error != error) continue;
    for (std::size_t i = 0; i < member.parameters.size(); ++i) {
      const ParameterInfo& parameter = member.parameters[i];
      const bool isVariant = parameter.type->kind == TypeKind::Variant;
      if (!parameter.IsInput() || !isVariant || !inputs.IsSeen(i)) continue;
      std::string sentence = cause.look(parameter, inputs.At(i));
      if (sentence.empty()) continue;
      if (!IsGiven(inputs.At(i))) return Note{"fault", &parameter, {}, "Not given."};
      return Note{"fault", &parameter, GivenText(inputs.At(i)), std::move(sentence)};
    }
  }
  return std::nullopt;
}

}  // namespace amortix2
