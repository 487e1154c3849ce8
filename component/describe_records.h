#pragma once

// How a record or an enumeration is described: in one specialisation of kDescribed.
//
//   template <>
//   inline constexpr auto kDescribed<tGoalDesc> = record<tGoalDesc>("Savings goal", "A savings goal, ...",
//       field<&tGoalDesc::amount>("Amount", Unit::Currency, "Amount wanted"), ...);
//
// A forgotten field, and a constant that is forgotten or stands twice, do not compile.

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

#include "amortix2/component/described_types.h"
#include "amortix2/component/description.h"
#include "amortix2/component/description_checks.h"
#include "amortix2/component/names.h"

namespace amortix2 {

namespace describing {

struct AnyField {
  template <class T>
  operator T() const;
};

/// How many fields an aggregate has: the most initialisers that it takes.
template <class Record, class... Fields>
constexpr std::size_t FieldCount() {
  if constexpr (requires { Record{Fields{}..., AnyField{}}; }) {
    return FieldCount<Record, Fields..., AnyField>();
  } else {
    return sizeof...(Fields);
  }
}

template <class F>
struct FieldSignature;
template <class R, class T>
struct FieldSignature<T R::*> {
  using Record = R;
  using Type = T;
};

template <std::size_t N>
struct RecordDescription {
  std::string_view name;
  std::string_view title;
  std::string_view help;
  std::array<FieldInfo, N> fields;

  constexpr RecordInfo Info() const { return {name, title, help, fields}; }
};

template <std::size_t N>
struct EnumerationDescription {
  std::string_view name;
  std::string_view title;
  std::string_view help;
  std::array<ConstantInfo, N> constants;
  std::array<ChoiceInfo, N> choices;

  constexpr EnumerationInfo Info() const { return {name, title, help, constants}; }
  constexpr ChoicesInfo Choices(const EnumerationInfo& info) const { return {title, choices, {}, &info}; }
};

/// The digits of a whole number, as a text that lives as long as the program.
template <std::int32_t Value>
struct Digits {
  static constexpr auto kText = [] {
    std::array<char, 12> text{};
    std::size_t end = text.size();
    std::int64_t rest = Value < 0 ? -std::int64_t{Value} : Value;
    do {
      text[--end] = static_cast<char>('0' + rest % 10);
      rest /= 10;
    } while (rest != 0);
    if (Value < 0) text[--end] = '-';
    return std::pair{text, end};
  }();
  static constexpr std::string_view View() {
    return {kText.first.data() + kText.second, kText.first.size() - kText.second};
  }
};

template <auto Value>
struct DescribedConstant {
  std::string_view title;
  std::string_view help;
};

/// How many of the values are constants: the compiler spells any other value as a cast, "(enumLoanType)105".
template <auto... Values>
constexpr std::size_t CountOfNamed() {
  constexpr std::string_view kSpelling = __PRETTY_FUNCTION__;
  std::size_t casts = 0;
  for (std::size_t at = kSpelling.find(')'); at != kSpelling.npos; at = kSpelling.find(')', at + 1)) {
    const char next = at + 1 < kSpelling.size() ? kSpelling[at + 1] : ' ';
    casts += (next >= '0' && next <= '9') || next == '-';
  }
  return sizeof...(Values) - casts;
}

/// How many constants an enumeration has from `Least` - 50 to `Most` + 50.
template <class Enumeration, std::int32_t Least, std::int32_t Most>
consteval std::size_t ConstantCount() {
  return []<std::int32_t... I>(std::integer_sequence<std::int32_t, I...>) {
    return CountOfNamed<static_cast<Enumeration>(Least - 50 + I)...>();
  }
  (std::make_integer_sequence<std::int32_t, Most - Least + 101>{});
}

}  // namespace describing

template <auto F>
consteval FieldInfo field(std::string_view title, Unit unit, std::string_view help) {
  using Signature = describing::FieldSignature<decltype(F)>;
  return {describing::NameOf<F>(),
          title,
          unit,
          help,
          &describing::kTypeInfo<typename Signature::Type>,
          [](void* record) -> void* { return &(static_cast<typename Signature::Record*>(record)->*F); }};
}

template <class Record, std::same_as<FieldInfo>... Fields>
consteval auto record(std::string_view title, std::string_view help, Fields... fields) {
  static_assert(sizeof...(Fields) == describing::FieldCount<Record>(), "describe every field");
  const describing::RecordDescription<sizeof...(Fields)> description{
      describing::TypeName<Record>(), title, help, {fields...}};
  if (title.empty() || help.empty()) throw "a record has no title or no help";
  if (!describing::AllHelpful(description.fields)) throw "a field has no help";
  if (!describing::AllTitled(description.fields)) throw "a field has no title";
  if (!describing::AllDistinct(description.fields)) throw "two fields have the same name";
  return description;
}

template <auto Value>
consteval auto constant(std::string_view title, std::string_view help) {
  return describing::DescribedConstant<Value>{title, help};
}

/// Every constant within 50 of the others must be described.
template <class Enumeration, auto... Values>
consteval auto enumeration(std::string_view title, std::string_view help,
                           describing::DescribedConstant<Values>... constants) {
  constexpr auto kEnds = std::minmax({static_cast<std::int32_t>(Values)...});
  static_assert(describing::ConstantCount<Enumeration, kEnds.first, kEnds.second>() == sizeof...(Values),
                "describe every constant, and each once");
  const describing::EnumerationDescription<sizeof...(Values)> description{
      describing::TypeName<Enumeration>(),
      title,
      help,
      {ConstantInfo{describing::NameOf<Values>(), Values, constants.title, constants.help}...},
      {ChoiceInfo{describing::Digits<Values>::View(), constants.title, constants.help,
                  describing::NameOf<Values>()}...}};
  if (title.empty() || help.empty()) throw "an enumeration has no title or no help";
  if (!describing::AllHelpful(description.constants)) throw "a constant has no help";
  if (!describing::AllTitled(description.constants)) throw "a constant has no title";
  if (!describing::AllDistinct(description.constants)) throw "a constant stands twice";
  return description;
}

}  // namespace amortix2
