#include "amortix2/com/platform_records.h"

#include <new>

#include "amortix2/com/values.h"
#include "amortix2/component/invocation.h"

namespace amortix2::com {
namespace {

void RequireLayout(const RecordLayout& layout, IRecordInfo* info) {
  if (info == nullptr || !layout.Describes(*info)) Raise(ErrorNumber::TypeMismatch);
}

void RequireRecordArray(const RecordLayout& layout, SAFEARRAY* array) {
  ComPointer<IRecordInfo> info;
  if (SafeArrayGetDim(array) != 1 || FAILED(SafeArrayGetRecordInfo(array, info.Receive()))) {
    Raise(ErrorNumber::TypeMismatch);
  }
  RequireLayout(layout, info.Get());
}

bool IsNothing(VARTYPE type) noexcept { return type == VT_EMPTY || type == VT_NULL || type == VT_ERROR; }

/// Fills a record whose memory is all zero.
void FillRecord(const TypeLibrary& library, const RecordInfo& info, void* place, const void* record) {
  const RecordLayout& layout = library.Layout(info);
  for (std::size_t i = 0; i < info.fields.size(); ++i) {
    const FieldInfo& field = info.fields[i];
    const Place fieldPlace = layout.Field(place, i);
    if (field.type->kind == TypeKind::RecordArray) {
      *static_cast<SAFEARRAY**>(fieldPlace.data) =
          MakeRecordArray(library, *field.type, PlaceOf(field, record)).release();
    } else {
      OwnedVariant value = MakeValue(field.type->read(PlaceOf(field, record)), fieldPlace.type);
      Exchange(fieldPlace, value.Get());
    }
  }
}

}  // namespace

RecordArgument FindRecords(const TypeLibrary& library, const TypeInfo& type, VARIANT& argument) {
  VARIANT& value = Followed(argument);
  RecordArgument found;
  if (IsNothing(value.vt)) return found;
  const bool isReference = (value.vt & VT_BYREF) != 0;
  found.byReference = isReference || &value != &argument;
  const bool wantsArray = type.kind == TypeKind::RecordArray;
  const int wanted = wantsArray ? VT_ARRAY | VT_RECORD : VT_RECORD;
  if ((value.vt & ~VT_BYREF) != wanted || (isReference && value.byref == nullptr)) {
    Raise(ErrorNumber::TypeMismatch);
  }
  if (wantsArray) {
    found.array = isReference ? value.pparray : &value.parray;
  } else {
    RequireLayout(library.Layout(*type.record), value.pRecInfo);
    found.record = value.pvRecord;
  }
  return found;
}

void ReadRecord(const TypeLibrary& library, const RecordInfo& info, void* place, void* record) {
  if (place == nullptr) Raise(ErrorNumber::TypeMismatch);
  const RecordLayout& layout = library.Layout(info);
  for (std::size_t i = 0; i < info.fields.size(); ++i) {
    const FieldInfo& field = info.fields[i];
    const Place fieldPlace = layout.Field(place, i);
    if (field.type->kind == TypeKind::RecordArray) {
      ReadRecords(library, *field.type, *static_cast<SAFEARRAY**>(fieldPlace.data), field.in(record));
    } else {
      field.type->write(field.in(record), ReadPlace(fieldPlace));
    }
  }
}

void ReadRecords(const TypeLibrary& library, const TypeInfo& type, SAFEARRAY* array, void* records) {
  if (array == nullptr) return;
  RequireRecordArray(library.Layout(*type.record), array);
  LONG lower = 0;
  LONG upper = -1;
  SafeArrayGetLBound(array, 1, &lower);
  SafeArrayGetUBound(array, 1, &upper);
  const Bounds bounds{static_cast<std::int32_t>(lower), static_cast<std::int32_t>(upper)};
  type.resize(records, bounds);
  const SafeArrayData data(array);
  for (std::int64_t i = 0; i < bounds.Count(); ++i) {
    ReadRecord(library, *type.record, data.At(static_cast<std::size_t>(i)),
               type.at(records, bounds.lower + i));
  }
}

OwnedSafeArray MakeRecordArray(const TypeLibrary& library, const TypeInfo& type, const void* records) {
  const Bounds bounds = type.bounds(records);
  SAFEARRAYBOUND bound{static_cast<ULONG>(bounds.Count()), bounds.lower};
  OwnedSafeArray array(SafeArrayCreateEx(VT_RECORD, 1, &bound, &library.Layout(*type.record).Info()));
  if (!array) throw std::bad_alloc();
  const SafeArrayData data(array.get());
  for (std::int64_t i = 0; i < bounds.Count(); ++i) {
    FillRecord(library, *type.record, data.At(static_cast<std::size_t>(i)),
               PlaceAt(type, records, bounds.lower + i));
  }
  return array;
}

}  // namespace amortix2::com
