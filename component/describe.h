#pragma once

// How a class, a record or an enumeration is described. A description is one constexpr value:
//
//   constexpr auto kDescription = describe<Calculator>("Answers ...",
//       method<&Calculator::FixedPayment>("The payment of ...", {{"vLoanType", Unit::Text, "..."}, ...}),
//       ...);
//
// Names are cut from the compiler's own spelling of the member pointer, so that they cannot differ from it;
// types and directions follow from its type. A wrong count of parameters, a forgotten field of a record, an
// empty help and a name used twice do not compile. Only the description's own .cpp files include this header;
// hosts see the tables of description.h.

#include <array>
#include <concepts>
#include <cstddef>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "amortix2/automation/standard_arithmetic.h"
#include "amortix2/component/described_calls.h"
#include "amortix2/component/described_types.h"
#include "amortix2/component/description.h"
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
  std::string_view help;
  std::array<FieldInfo, N> fields;

  constexpr RecordInfo Info() const { return {name, help, fields}; }
};

template <std::size_t N>
struct EnumerationDescription {
  std::string_view name;
  std::string_view help;
  std::array<ConstantInfo, N> constants;

  constexpr EnumerationInfo Info() const { return {name, help, constants}; }
};

template <auto F, std::size_t N>
struct MemberDescription {
  MemberKind kind;
  std::string_view help;
  std::array<ParameterInfo, N> parameters;

  constexpr MemberInfo Info() const {
    return {
        NameOf<F>(), kind, help, parameters, ResultType<F>(), Call<F>, Signature<decltype(F)>::changesObject};
  }
};

template <class C, class... Members>
struct ClassDescription {
  std::string_view help;
  std::tuple<Members...> members;

  /// The members' table. It refers to this description, which must be a static constant.
  constexpr std::array<MemberInfo, sizeof...(Members)> Table() const {
    return std::apply([](const auto&... member) { return std::array{member.Info()...}; }, members);
  }

  constexpr ClassInfo Info(std::span<const MemberInfo> table) const {
    return {TypeName<C>(), help, table,
            [](const Clock& clock) -> void* {
              const StandardArithmetic standard;
              if constexpr (std::constructible_from<C, const Clock&>) {
                return new C(clock);
              } else {
                static_cast<void>(clock);
                return new C();
              }
            },
            [](void* object) noexcept { delete static_cast<C*>(object); }};
  }
};

}  // namespace describing

/// One parameter as its description says it; direction and type follow from the member.
struct Param {
  std::string_view name;
  Unit unit;
  std::string_view help;
  bool optional = false;
};

namespace describing {

template <auto F, std::size_t N>
constexpr auto MakeMember(MemberKind kind, std::string_view help, const Param (&params)[N]) {
  using Type = decltype(F);
  static_assert(N == Signature<Type>::arity, "describe every parameter, and no other");
  MemberDescription<F, N> member{kind, help, {}};
  [&]<std::size_t... I>(std::index_sequence<I...>) {
    ((member.parameters[I] = {params[I].name, params[I].unit, params[I].help, params[I].optional,
                              kIsReferenceOut<Argument<Type, I>>,
                              &kTypeInfo<std::remove_cvref_t<Argument<Type, I>>>}),
     ...);
  }
  (std::make_index_sequence<N>{});
  if (!AllHelpful(member.parameters)) throw "a parameter has no name or no help";
  if (!AllDistinct(member.parameters)) throw "two parameters have the same name";
  return member;
}

}  // namespace describing

template <auto F, std::size_t N>
consteval auto method(std::string_view help, const Param (&params)[N]) {
  return describing::MakeMember<F>(MemberKind::Method, help, params);
}

/// A write-only property; `F` is its setter, of one parameter.
template <auto F>
consteval auto property(Unit unit, std::string_view help) {
  return describing::MakeMember<F>(MemberKind::PropertyPut, help, {{"value", unit, help}});
}

template <class C, class... Members>
consteval auto describe(std::string_view help, std::tuple<Members...> members) {
  const describing::ClassDescription<C, Members...> description{help, members};
  const auto table = description.Table();
  if (help.empty() || !describing::AllHelpful(table)) throw "a class or a member has no help";
  if (!describing::AllDistinct(table)) throw "two members have the same name";
  return description;
}

template <class C, class... Members>
consteval auto describe(std::string_view help, Members... members) {
  return describe<C>(help, std::tuple{members...});
}

template <auto F>
consteval FieldInfo field(Unit unit, std::string_view help) {
  using Signature = describing::FieldSignature<decltype(F)>;
  return {describing::NameOf<F>(), unit, help, &describing::kTypeInfo<typename Signature::Type>,
          [](void* record) -> void* { return &(static_cast<typename Signature::Record*>(record)->*F); }};
}

template <class Record, std::same_as<FieldInfo>... Fields>
consteval auto record(std::string_view help, Fields... fields) {
  static_assert(sizeof...(Fields) == describing::FieldCount<Record>(), "describe every field");
  const describing::RecordDescription<sizeof...(Fields)> description{
      describing::TypeName<Record>(), help, {fields...}};
  if (!describing::AllHelpful(description.fields)) throw "a field has no help";
  if (!describing::AllDistinct(description.fields)) throw "two fields have the same name";
  return description;
}

template <auto Value>
consteval ConstantInfo constant(std::string_view help) {
  return {describing::NameOf<Value>(), Value, help};
}

template <class Enumeration, std::same_as<ConstantInfo>... Constants>
consteval auto enumeration(std::string_view help, Constants... constants) {
  const describing::EnumerationDescription<sizeof...(Constants)> description{
      describing::TypeName<Enumeration>(), help, {constants...}};
  if (!describing::AllHelpful(description.constants)) throw "a constant has no help";
  return description;
}

}  // namespace amortix2
