#pragma once

// Records on their way between the platform's memory and the component's records.

#include "amortix2/com/owned_variant.h"
#include "amortix2/com/platform.h"
#include "amortix2/com/type_library.h"

namespace amortix2::com {

/// Where an argument keeps its record or array of records. Both are null when a caller that has no records
/// passed nothing.
struct RecordArgument {
  void* record = nullptr;
  SAFEARRAY** array = nullptr;
  bool byReference = false;
};

/// Follows references. Raises TypeMismatch when the argument holds anything else than what `type` describes
/// (a record or an array of records), or nothing.
RecordArgument FindRecords(const TypeLibrary& library, const TypeInfo& type, VARIANT& argument);

/// Copies the platform's record at `place` to `record`. Raises as ReadPlace does.
void ReadRecord(const TypeLibrary& library, const RecordInfo& info, void* place, void* record);

/// Copies an array, which may be null, to `records`, which `type` describes. Raises TypeMismatch for an array
/// of anything else, and as ReadPlace does.
void ReadRecords(const TypeLibrary& library, const TypeInfo& type, SAFEARRAY* array, void* records);

/// A new array with the records that `type` describes. Raises std::bad_alloc.
OwnedSafeArray MakeRecordArray(const TypeLibrary& library, const TypeInfo& type, const void* records);

}  // namespace amortix2::com
