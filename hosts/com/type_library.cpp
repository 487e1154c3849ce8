#include "amortix2/com/type_library.h"

#include <mutex>
#include <utility>

#include "amortix2/com/guid.h"
#include "amortix2/com/identity.h"
#include "amortix2/com/module.h"
#include "amortix2/com/result_code.h"
#include "amortix2/com/text.h"

namespace amortix2::com {
namespace {

std::mutex loading;

/// Not destroyed when the process ends with objects alive: the platform's own libraries are gone by then.
constinit const TypeLibrary* kept = nullptr;

ComPointer<ITypeInfo> FindType(ITypeLib& library, std::string_view name) {
  ComPointer<ITypeInfo> type;
  Check(library.GetTypeInfoOfGuid(ToGuid(IdentifierOf(name)), type.Receive()));
  return type;
}

ULONG OffsetOf(ITypeInfo& type, std::size_t field) {
  VARDESC* description = nullptr;
  Check(type.GetVarDesc(static_cast<UINT>(field), &description));
  const ULONG offset = description->oInst;
  type.ReleaseVarDesc(description);
  return offset;
}

}  // namespace

VARTYPE PlaceType(const TypeInfo& type) noexcept {
  switch (type.kind) {
    case TypeKind::Double:
      return VT_R8;
    case TypeKind::Byte:
      return VT_UI1;
    case TypeKind::Integer:
      return VT_I2;
    case TypeKind::Long:
    case TypeKind::Enumeration:
      return VT_I4;
    case TypeKind::String:
      return VT_BSTR;
    case TypeKind::Date:
      return VT_DATE;
    case TypeKind::Record:
      return VT_RECORD;
    case TypeKind::ScriptingContext:
      return VT_DISPATCH;
    case TypeKind::RecordArray:
      return VT_ARRAY | VT_RECORD;
    case TypeKind::Variant:
      break;
  }
  return VT_VARIANT;
}

RecordLayout::RecordLayout(ITypeLib& library, const RecordInfo& record) : record_(&record) {
  const ComPointer<ITypeInfo> type = FindType(library, record.name);
  Check(GetRecordInfoFromTypeInfo(type.Get(), info_.Receive()));
  for (const FieldInfo& field : record.fields) {
    fields_.push_back({PlaceType(*field.type), OffsetOf(*type.Get(), fields_.size())});
  }
}

bool RecordLayout::Describes(IRecordInfo& info) const noexcept {
  GUID identifier{};
  return SUCCEEDED(info.GetGuid(&identifier)) && identifier == ToGuid(IdentifierOf(record_->name));
}

Place RecordLayout::Field(void* base, std::size_t field) const noexcept {
  return {fields_[field].type, static_cast<unsigned char*>(base) + fields_[field].offset};
}

TypeLibrary::TypeLibrary(ComPointer<ITypeLib> library) : library_(std::move(library)) {
  for (const RecordInfo* record : Records()) layouts_.emplace_back(*library_.Get(), *record);
}

ComPointer<ITypeInfo> TypeLibrary::Type(std::string_view name) const {
  return FindType(*library_.Get(), name);
}

const RecordLayout& TypeLibrary::Layout(const RecordInfo& record) const {
  for (const RecordLayout& layout : layouts_) {
    if (&layout.Record() == &record) return layout;
  }
  Raise(ErrorNumber::TypeMismatch);
}

const TypeLibrary& TypeLibrary::Loaded() {
  const std::scoped_lock lock(loading);
  if (kept == nullptr) {
    ComPointer<ITypeLib> library;
    Check(LoadTypeLibEx(Module::Path().c_str(), REGKIND_NONE, library.Receive()));
    kept = new TypeLibrary(std::move(library));
  }
  return *kept;
}

void TypeLibrary::Forget() noexcept {
  const std::scoped_lock lock(loading);
  if (Module::IsUnused()) delete std::exchange(kept, nullptr);
}

}  // namespace amortix2::com
