#pragma once

// The TypeInfo of every C++ type that the interface uses: how hosts make, read and write its values.

#include <concepts>
#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/page.h"
#include "amortix2/component/description.h"
#include "amortix2/engine/records.h"

namespace amortix2 {

namespace describing {

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

/// What hosts hold for a parameter: its type without references, and a variant for a Number, which is read
/// from one.
template <class Parameter>
struct HeldType {
  using Type = std::remove_cvref_t<Parameter>;
};
template <>
struct HeldType<Number> {
  using Type = Variant;
};

/// The description of a record or an enumeration: specialised for each, in one place (describe_records.h).
template <class T>
inline constexpr int kDescribed = 0;

// The same as plain data.
template <class Record>
inline constexpr RecordInfo kRecordInfo = kDescribed<Record>.Info();
template <class Enumeration>
inline constexpr EnumerationInfo kEnumerationInfo = kDescribed<Enumeration>.Info();
/// An enumeration's constants as a parameter's choices.
template <class Enumeration>
inline constexpr ChoicesInfo kChoicesOf = kDescribed<Enumeration>.Choices(kEnumerationInfo<Enumeration>);

namespace describing {

template <class T>
constexpr TypeInfo MakeTypeInfo() {
  constexpr TypeKind kind = KindOf<T>();
  TypeInfo info{};
  info.kind = kind;
  info.create = [] { return static_cast<void*>(new T{}); };
  info.destroy = [](void* value) noexcept { delete static_cast<T*>(value); };
  if constexpr (kind == TypeKind::RecordArray) {
    info.record = &kRecordInfo<typename ElementOf<T>::Type>;
    info.bounds = [](const void* value) { return BoundsOf(*static_cast<const T*>(value)); };
    info.resize = [](void* value, Bounds bounds) { ResizeTo(*static_cast<T*>(value), bounds); };
    info.at = [](void* value, std::int64_t index) { return Element(*static_cast<T*>(value), index); };
  } else if constexpr (kind == TypeKind::Record) {
    info.record = &kRecordInfo<T>;
  } else if constexpr (kind != TypeKind::ScriptingContext) {
    if constexpr (kind == TypeKind::Enumeration) info.enumeration = &kEnumerationInfo<T>;
    info.read = Read<T>;
    info.write = Write<T>;
  }
  return info;
}

}  // namespace describing
}  // namespace amortix2
