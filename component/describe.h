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

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "automation/conversion.h"
#include "automation/page.h"
#include "component/description.h"
#include "engine/records.h"

namespace amortix2 {

namespace describing {

// ---- Names

/// The part of a template argument's spelling behind its last "::" or "&".
constexpr std::string_view LastName(std::string_view spelling) {
  const std::size_t start = spelling.find("M = ") + 4;
  const std::size_t end = std::min(spelling.find(';', start), spelling.find(']', start));
  const std::string_view argument = spelling.substr(start, end - start);
  const std::size_t colon = argument.find_last_of(":&");
  return colon == std::string_view::npos ? argument : argument.substr(colon + 1);
}

template <auto M>
constexpr std::string_view NameOf() {
  return LastName(__PRETTY_FUNCTION__);
}

template <class M>
constexpr std::string_view TypeName() {
  return LastName(__PRETTY_FUNCTION__);
}

constexpr char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

constexpr bool Same(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, [](char x, char y) { return Lower(x) == Lower(y); });
}

template <class Items>
constexpr bool AllHelpful(const Items& items) {
  return std::ranges::none_of(items, [](const auto& item) { return item.name.empty() || item.help.empty(); });
}

template <class Items>
constexpr bool AllDistinct(const Items& items) {
  for (std::size_t i = 0; i < items.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      if (Same(items[i].name, items[j].name)) return false;
    }
  }
  return true;
}

// ---- Members

template <class F>
struct Signature;
template <class C, class R, class... Args>
struct Signature<R (C::*)(Args...)> {
  using Class = C;
  using Result = R;
  using Arguments = std::tuple<Args...>;
  static constexpr std::size_t arity = sizeof...(Args);
  static constexpr bool changesObject = true;
};
template <class C, class R, class... Args>
struct Signature<R (C::*)(Args...) const> : Signature<R (C::*)(Args...)> {
  static constexpr bool changesObject = false;
};

template <class F, std::size_t I>
using Argument = std::tuple_element_t<I, typename Signature<F>::Arguments>;

template <class T>
constexpr bool kIsReferenceOut =
    std::is_lvalue_reference_v<T> && !std::is_const_v<std::remove_reference_t<T>>;

// ---- Types

template <class T>
struct ElementOf {
  using Type = void;
};
template <class Record>
struct ElementOf<RecordArray<Record>> {
  using Type = Record;
};
/// A record's own list of lines starts at index 0.
template <class Record>
struct ElementOf<std::vector<Record>> {
  using Type = Record;
};

template <class T>
constexpr bool kIsRecordArray = !std::is_void_v<typename ElementOf<T>::Type>;

template <class T>
constexpr TypeKind KindOf() {
  if constexpr (std::same_as<T, Variant>) return TypeKind::Variant;
  if constexpr (std::same_as<T, double>) return TypeKind::Double;
  if constexpr (std::same_as<T, std::int16_t>) return TypeKind::Integer;
  if constexpr (std::same_as<T, std::uint8_t>) return TypeKind::Byte;
  if constexpr (std::same_as<T, std::int32_t>) return TypeKind::Long;
  if constexpr (std::same_as<T, std::string>) return TypeKind::String;
  if constexpr (std::same_as<T, Date>) return TypeKind::Date;
  if constexpr (std::same_as<T, std::shared_ptr<ScriptingContext>>) return TypeKind::ScriptingContext;
  if constexpr (std::is_enum_v<T>) return TypeKind::Enumeration;
  if constexpr (kIsRecordArray<T>) return TypeKind::RecordArray;
  if constexpr (std::is_aggregate_v<T>) return TypeKind::Record;
}

template <class T>
Variant Read(const void* value) {
  const T& typed = *static_cast<const T*>(value);
  if constexpr (std::is_enum_v<T>) {
    return static_cast<std::int32_t>(typed);
  } else if constexpr (std::same_as<T, std::string>) {
    return std::string_view(typed);
  } else {
    return typed;
  }
}

template <class T>
void Write(void* value, const Variant& from) {
  T& typed = *static_cast<T*>(value);
  if constexpr (std::same_as<T, std::int16_t>) {
    typed = ToInteger(ToDouble(from));
  } else if constexpr (std::same_as<T, std::uint8_t>) {
    typed = ToByte(ToDouble(from));
  } else if constexpr (std::same_as<T, std::int32_t> || std::is_enum_v<T>) {
    typed = static_cast<T>(ToLong(ToDouble(from)));
  } else if constexpr (std::same_as<T, double>) {
    typed = ToDouble(from);
  } else if constexpr (std::same_as<T, std::string>) {
    typed = ToText(from);
  } else if constexpr (std::same_as<T, Date>) {
    typed = ToDate(from);
  } else {
    typed = from;
  }
}

template <class Record>
Bounds BoundsOf(const RecordArray<Record>& records) {
  return {records.Lower(), records.Upper()};
}
template <class Record>
Bounds BoundsOf(const std::vector<Record>& records) {
  return {0, static_cast<std::int32_t>(records.size()) - 1};
}
template <class Record>
void ResizeTo(RecordArray<Record>& records, Bounds bounds) {
  records = RecordArray<Record>(bounds.lower, bounds.upper);
}
template <class Record>
void ResizeTo(std::vector<Record>& records, Bounds bounds) {
  if (bounds.lower != 0) Raise(ErrorNumber::SubscriptOutOfRange);
  records.assign(static_cast<std::size_t>(bounds.Count()), Record{});
}
template <class Record>
void* Element(RecordArray<Record>& records, std::int64_t index) {
  return &records.At(index);
}
template <class Record>
void* Element(std::vector<Record>& records, std::int64_t index) {
  if (!BoundsOf(records).Contains(index)) Raise(ErrorNumber::SubscriptOutOfRange);
  return &records[static_cast<std::size_t>(index)];
}

template <class T>
constexpr TypeInfo MakeTypeInfo();

template <class T>
inline constexpr TypeInfo kTypeInfo = MakeTypeInfo<T>();

}  // namespace describing

/// Where the description of a record or an enumeration stands: specialised for each in record_descriptions.h.
template <class Record>
struct DescribedRecord {
  static const RecordInfo info;
};
template <class Enumeration>
struct DescribedEnumeration {
  static const EnumerationInfo info;
};

namespace describing {

template <class T>
constexpr TypeInfo MakeTypeInfo() {
  constexpr TypeKind kind = KindOf<T>();
  TypeInfo info{};
  info.kind = kind;
  info.create = [] { return static_cast<void*>(new T{}); };
  info.destroy = [](void* value) noexcept { delete static_cast<T*>(value); };
  if constexpr (kind == TypeKind::RecordArray) {
    info.record = &DescribedRecord<typename ElementOf<T>::Type>::info;
    info.bounds = [](const void* value) { return BoundsOf(*static_cast<const T*>(value)); };
    info.resize = [](void* value, Bounds bounds) { ResizeTo(*static_cast<T*>(value), bounds); };
    info.at = [](void* value, std::int64_t index) { return Element(*static_cast<T*>(value), index); };
  } else if constexpr (kind == TypeKind::Record) {
    info.record = &DescribedRecord<T>::info;
  } else if constexpr (kind != TypeKind::ScriptingContext) {
    if constexpr (kind == TypeKind::Enumeration) info.enumeration = &DescribedEnumeration<T>::info;
    info.read = Read<T>;
    info.write = Write<T>;
  }
  return info;
}

// ---- Calls

template <auto F, std::size_t... I>
void CallWith(void* object, std::span<void* const> arguments, void* result, std::index_sequence<I...>) {
  using Type = decltype(F);
  auto& self = *static_cast<typename Signature<Type>::Class*>(object);
  using Result = typename Signature<Type>::Result;
  const auto invoke = [&] {
    return (self.*F)(*static_cast<std::remove_cvref_t<Argument<Type, I>>*>(arguments[I])...);
  };
  if constexpr (std::is_void_v<Result>) {
    invoke();
  } else {
    *static_cast<Result*>(result) = invoke();
  }
}

template <auto F>
void Call(void* object, std::span<void* const> arguments, void* result) {
  if (arguments.size() != Signature<decltype(F)>::arity) Raise(ErrorNumber::ArgumentNotOptional);
  CallWith<F>(object, arguments, result, std::make_index_sequence<Signature<decltype(F)>::arity>{});
}

template <auto F>
constexpr const TypeInfo* ResultType() {
  using Result = typename Signature<decltype(F)>::Result;
  if constexpr (std::is_void_v<Result>) {
    return nullptr;
  } else {
    return &kTypeInfo<Result>;
  }
}

// ---- Fields

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
    return {NameOf<F>(), kind, help, parameters, ResultType<F>(), Call<F>, Signature<decltype(F)>::changesObject};
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

template <auto F, std::size_t N>
consteval auto method(std::string_view help, const Param (&params)[N]) {
  using Type = decltype(F);
  static_assert(N == describing::Signature<Type>::arity, "describe every parameter, and no other");
  describing::MemberDescription<F, N> member{MemberKind::Method, help, {}};
  [&]<std::size_t... I>(std::index_sequence<I...>) {
    ((member.parameters[I] = {params[I].name, params[I].unit, params[I].help, params[I].optional,
                              describing::kIsReferenceOut<describing::Argument<Type, I>>,
                              &describing::kTypeInfo<std::remove_cvref_t<describing::Argument<Type, I>>>}),
     ...);
  }
  (std::make_index_sequence<N>{});
  if (!describing::AllHelpful(member.parameters)) throw "a parameter has no name or no help";
  if (!describing::AllDistinct(member.parameters)) throw "two parameters have the same name";
  return member;
}

/// A write-only property; `F` is its setter, of one parameter.
template <auto F>
consteval auto property(Unit unit, std::string_view help) {
  auto member = method<F>(help, {{"value", unit, help}});
  member.kind = MemberKind::PropertyPut;
  return member;
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
