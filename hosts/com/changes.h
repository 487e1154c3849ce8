#pragma once

// What a call changes in its caller's variables. All new values are made first; storing them then cannot
// fail, so that a caller never sees half a result. Only what the call changed is touched: an array keeps its
// place, and in it the cells that came out as they went in keep their types.

#include <vector>

#include "amortix2/automation/variant.h"
#include "amortix2/com/owned_variant.h"
#include "amortix2/com/place.h"
#include "amortix2/com/type_library.h"

namespace amortix2::com {

class Changes {
 public:
  /// The value that a place held before the call, and after it. Raises TypeMismatch or Overflow when the
  /// place's type cannot hold it, ArrayFixed for another shape of an array of fixed size, or
  /// std::bad_alloc.
  void Add(Place place, const Variant& before, const Variant& after);

  /// The same for a record of the component; `place` is the record in memory.
  void AddRecord(const TypeLibrary& library, const RecordInfo& record, void* place, const void* before,
                 const void* after);

  /// The same for an array of records; `type` describes it.
  void AddRecords(const TypeLibrary& library, const TypeInfo& type, SAFEARRAY*& place, const void* before,
                  const void* after);

  /// Stores everything, then frees what was there.
  void Commit() noexcept;

 private:
  void AddCells(SAFEARRAY* array, VARTYPE elementType, const Array& before, const Array& after);

  struct Change {
    Place place;
    OwnedVariant value;
  };
  std::vector<Change> changes_;
};

}  // namespace amortix2::com
