#pragma once

// The type library that the DLL carries, and what is read from it: the types for clients that ask, and how
// records lie in memory. It is loaded when first needed and kept while objects live.

#include <span>
#include <string_view>
#include <vector>

#include "amortix2/com/com_pointer.h"
#include "amortix2/com/place.h"
#include "amortix2/com/platform.h"
#include "amortix2/component/description.h"

namespace amortix2::com {

/// The platform's type of a place for a value of the described type, as the interface definition has it.
VARTYPE PlaceType(const TypeInfo& type) noexcept;

/// How the records of one kind lie in memory.
class RecordLayout {
 public:
  /// Raises ForeignError when the type library does not know the record.
  RecordLayout(ITypeLib& library, const RecordInfo& record);

  const RecordInfo& Record() const noexcept { return *record_; }
  IRecordInfo& Info() const noexcept { return *info_.Get(); }

  /// True when the platform's record type is this one.
  bool Describes(IRecordInfo& info) const noexcept;

  /// The place of a field, by its number in the description, in the record at `base`.
  Place Field(void* base, std::size_t field) const noexcept;

 private:
  struct FieldPlace {
    VARTYPE type;
    ULONG offset;
  };

  const RecordInfo* record_;
  ComPointer<IRecordInfo> info_;
  std::vector<FieldPlace> fields_;  // in the order of the description
};

class TypeLibrary {
 public:
  /// The library inside the DLL, loaded unless it is; the caller is an object, or something else that keeps
  /// the module in use. Raises ForeignError when it cannot be loaded.
  static const TypeLibrary& Loaded();
  /// Lets go of it unless the module is in use; it is loaded again when needed.
  static void Forget() noexcept;

  explicit TypeLibrary(ComPointer<ITypeLib> library);

  /// The type of a name that has an identifier (com/identity.h). Raises ForeignError.
  ComPointer<ITypeInfo> Type(std::string_view name) const;

  const RecordLayout& Layout(const RecordInfo& record) const;

 private:
  ComPointer<ITypeLib> library_;
  std::vector<RecordLayout> layouts_;
};

}  // namespace amortix2::com
