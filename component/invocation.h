#pragma once

// One call of a described member, as every host makes it: a value per parameter, set to what a call that
// leaves it out would have, then the call, then the values as they stand. And ways to walk through records,
// and to read values without copying them. Nothing here knows where values come from or go to.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <type_traits>
#include <vector>

#include "amortix2/calculators/left_out_tables.h"
#include "amortix2/component/description.h"

namespace amortix2 {

class Invocation {
 public:
  /// Arguments are zero or Empty, Missing where they are optional; an array of records is empty, from
  /// index 1. `member` must live as long, as descriptions do.
  explicit Invocation(const MemberInfo& member);

  const MemberInfo& Member() const noexcept { return *member_; }

  /// One value per parameter, in their order.
  std::span<Value> Arguments() noexcept { return arguments_; }
  std::span<const Value> Arguments() const noexcept { return arguments_; }

  /// The table that comes back in this argument, a result, will not be read and need not be made: it may stay
  /// Empty. `lines`, which must outlive the call, gets a loan's then, before the call has succeeded.
  void LeaveOut(std::size_t argument, const calculators::LinesTaker* lines = nullptr) {
    leftOut_.push_back({arguments_[argument].Get(), lines});
  }

  /// Leaves out every table that comes back, but those of which `isRead(parameter)` is true.
  template <class IsRead>
  void LeaveOutTables(const IsRead& isRead) {
    for (std::size_t i = 0; i < arguments_.size(); ++i) {
      const ParameterInfo& parameter = member_->parameters[i];
      if (parameter.table && parameter.role == Role::Result && !isRead(parameter)) LeaveOut(i);
    }
  }

  /// Calls the member of `object`, which is of the member's class. Raises what the member raises;
  /// by-reference arguments then hold what had been written.
  void Call(Object& object);

  /// What the call returned; null when the member returns nothing, or has not returned.
  const Value* Result() const noexcept { return result_ ? &*result_ : nullptr; }

 private:
  const MemberInfo* member_;
  std::vector<Value> arguments_;
  std::vector<calculators::LeftOutTable> leftOut_;
  std::optional<Value> result_;
};

/// void or const void: a place that may be written, or only read.
template <class Place>
concept VoidPlace = std::is_void_v<Place>;

/// A field's place in a record.
template <VoidPlace Place>
Place* PlaceOf(const FieldInfo& field, Place* record) {
  return field.in(const_cast<void*>(record));
}

/// A record's place in an array of records, which `type` describes. Raises SubscriptOutOfRange.
template <VoidPlace Place>
Place* PlaceAt(const TypeInfo& type, Place* records, std::int64_t index) {
  return type.at(const_cast<void*>(records), index);
}

/// Calls `visit(field, place)` for each field of a record, in order.
template <VoidPlace Place, class Visit>
void ForEachField(const RecordInfo& info, Place* record, const Visit& visit) {
  for (const FieldInfo& field : info.fields) visit(field, PlaceOf(field, record));
}

/// Calls `visit(index, place)` for each record of an array of records, which `type` describes.
template <VoidPlace Place, class Visit>
void ForEachRecord(const TypeInfo& type, Place* records, const Visit& visit) {
  const Bounds bounds = type.bounds(records);
  for (std::int64_t index = bounds.lower; index <= bounds.upper; ++index) {
    visit(index, PlaceAt(type, records, index));
  }
}

/// Calls `visit(type, place)` for a single value (all but records and arrays of them), or for each single
/// value that records, however nested, consist of.
template <VoidPlace Place, class Visit>
void ForEachSingle(const TypeInfo& type, Place* value, const Visit& visit) {
  if (type.kind == TypeKind::Record) {
    ForEachField(*type.record, value,
                 [&](const FieldInfo& field, Place* place) { ForEachSingle(*field.type, place, visit); });
  } else if (type.kind == TypeKind::RecordArray) {
    ForEachRecord(type, value, [&](std::int64_t, Place* record) {
      ForEachField(*type.record, record,
                   [&](const FieldInfo& field, Place* place) { ForEachSingle(*field.type, place, visit); });
    });
  } else {
    visit(type, value);
  }
}

/// Returns `use(variant)` of a single value but a context: a variant itself, never a copy of it, else the
/// value as a variant, which ends with the call.
template <class Use>
decltype(auto) WithVariant(const TypeInfo& type, const void* value, const Use& use) {
  if (type.kind == TypeKind::Variant) return use(*static_cast<const Variant*>(value));
  const Variant variant = type.read(value);
  return use(variant);
}

}  // namespace amortix2
