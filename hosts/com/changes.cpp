#include "amortix2/com/changes.h"

#include "amortix2/automation/array.h"
#include "amortix2/com/column_order.h"
#include "amortix2/com/platform_records.h"
#include "amortix2/com/values.h"
#include "amortix2/component/invocation.h"

namespace amortix2::com {
namespace {

bool SameShape(const Array& a, const Array& b) {
  return a.Rank() == b.Rank() && a.Dimension(1) == b.Dimension(1) &&
         (a.Rank() == 1 || a.Dimension(2) == b.Dimension(2));
}

bool BothOfSameShape(const Variant& a, const Variant& b) {
  return a.Type() == VariantType::Array && b.Type() == VariantType::Array &&
         SameShape(a.GetArray(), b.GetArray());
}

/// A variable declared with its bounds cannot take another array, nor one that is in use.
void RequireReplaceable(const SAFEARRAY* array) {
  constexpr USHORT kFixed = FADF_STATIC | FADF_FIXEDSIZE | FADF_EMBEDDED;
  if (array != nullptr && ((array->fFeatures & kFixed) != 0 || array->cLocks != 0)) {
    Raise(ErrorNumber::ArrayFixed);
  }
}

}  // namespace

void Changes::Add(Place place, const Variant& before, const Variant& after) {
  if (before == after) return;
  const VARIANT held = Peek(place);
  if ((held.vt & VT_BYREF) != 0) {
    return Add({static_cast<VARTYPE>(held.vt & ~VT_BYREF), held.byref}, before, after);
  }
  if ((held.vt & VT_ARRAY) != 0) {
    const auto elementType = static_cast<VARTYPE>(held.vt & VT_TYPEMASK);
    const bool typed = place.type != VT_VARIANT;  // only such an array must keep the type of its elements
    if ((typed || elementType == VT_VARIANT) && BothOfSameShape(before, after)) {
      return AddCells(held.parray, elementType, before.GetArray(), after.GetArray());
    }
    if (typed) RequireReplaceable(held.parray);
  }
  changes_.push_back({place, MakeValue(after, place.type)});
}

void Changes::AddCells(SAFEARRAY* array, VARTYPE elementType, const Array& before, const Array& after) {
  const SafeArrayData data(array);
  ForEachCell(after, [&](std::size_t index, std::size_t platformIndex) {
    Add({elementType, data.At(platformIndex)}, before.Cells()[index], after.Cells()[index]);
  });
}

void Changes::AddRecord(const TypeLibrary& library, const RecordInfo& record, void* place, const void* before,
                        const void* after) {
  const RecordLayout& layout = library.Layout(record);
  for (std::size_t i = 0; i < record.fields.size(); ++i) {
    const FieldInfo& field = record.fields[i];
    const Place fieldPlace = layout.Field(place, i);
    if (field.type->kind == TypeKind::RecordArray) {
      AddRecords(library, *field.type, *static_cast<SAFEARRAY**>(fieldPlace.data), PlaceOf(field, before),
                 PlaceOf(field, after));
    } else {
      Add(fieldPlace, field.type->read(PlaceOf(field, before)), field.type->read(PlaceOf(field, after)));
    }
  }
}

void Changes::AddRecords(const TypeLibrary& library, const TypeInfo& type, SAFEARRAY*& place,
                         const void* before, const void* after) {
  const Bounds bounds = type.bounds(after);
  if (type.bounds(before) == bounds) {
    if (place == nullptr) return;
    const SafeArrayData data(place);
    for (std::int64_t i = 0; i < bounds.Count(); ++i) {
      AddRecord(library, *type.record, data.At(static_cast<std::size_t>(i)),
                PlaceAt(type, before, bounds.lower + i), PlaceAt(type, after, bounds.lower + i));
    }
    return;
  }
  RequireReplaceable(place);
  OwnedVariant made;
  made.Get().parray = MakeRecordArray(library, type, after).release();
  made.Get().vt = VT_ARRAY | VT_RECORD;
  changes_.push_back({{VT_ARRAY | VT_RECORD, &place}, std::move(made)});
}

void Changes::Commit() noexcept {
  for (Change& change : changes_) Exchange(change.place, change.value.Get());
  changes_.clear();
}

}  // namespace amortix2::com
