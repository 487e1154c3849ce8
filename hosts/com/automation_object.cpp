#include "amortix2/com/automation_object.h"

#include <algorithm>

#include "amortix2/com/guid.h"
#include "amortix2/com/identity.h"
#include "amortix2/com/text.h"

namespace amortix2::com {
namespace {

/// A class all of whose members leave the object as it is keeps no state.
bool KeepsState(const ClassInfo& type) noexcept {
  return std::ranges::any_of(type.members, &MemberInfo::changesObject);
}

class Waiting {
 public:
  explicit Waiting(CRITICAL_SECTION* section) noexcept : section_(section) {
    if (section_ != nullptr) EnterCriticalSection(section_);
  }
  Waiting(const Waiting&) = delete;
  Waiting& operator=(const Waiting&) = delete;
  ~Waiting() {
    if (section_ != nullptr) LeaveCriticalSection(section_);
  }

 private:
  CRITICAL_SECTION* section_;
};

}  // namespace

AutomationObject::AutomationObject(const ClassInfo& type)
    : object_(type, clock_),
      origin_{ProgramId(type.name), ToGuid(IdentifierOf(InterfaceName(type.name)))},
      keepsState_(KeepsState(type)) {
  InitializeCriticalSection(&calls_);
  // Without the marshaler other apartments get a proxy, which is slower and right as well.
  if (!keepsState_) CoCreateFreeThreadedMarshaler(static_cast<IDispatch*>(this), marshaler_.Receive());
}

AutomationObject::~AutomationObject() { DeleteCriticalSection(&calls_); }

HRESULT AutomationObject::QueryInterface(REFIID identifier, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (identifier == IID_IMarshal && marshaler_) return marshaler_->QueryInterface(identifier, object);
  if (identifier == IID_IUnknown || identifier == IID_IDispatch || identifier == origin_.interfaceId) {
    *object = static_cast<IDispatch*>(this);
  } else if (identifier == IID_ISupportErrorInfo) {
    *object = static_cast<ISupportErrorInfo*>(this);
  } else {
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

ULONG AutomationObject::AddRef() { return ++references_; }

ULONG AutomationObject::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT AutomationObject::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 1;
  return S_OK;
}

HRESULT AutomationObject::GetTypeInfo(UINT index, LCID, ITypeInfo** type) {
  if (type == nullptr) return E_POINTER;
  *type = nullptr;
  if (index != 0) return DISP_E_BADINDEX;
  return Guarded([&] {
    *type = TypeLibrary::Loaded().Type(InterfaceName(object_.Class().name)).Release();
    return S_OK;
  });
}

HRESULT AutomationObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* numbers) {
  if (names == nullptr || numbers == nullptr || count == 0) return E_INVALIDARG;
  return Guarded([&] {
    std::fill_n(numbers, count, DISPID_UNKNOWN);
    const ClassInfo& type = object_.Class();
    const MemberInfo* member = FindMember(type, ToUtf8(names[0]));
    if (member == nullptr) return DISP_E_UNKNOWNNAME;
    numbers[0] = static_cast<DISPID>(member - type.members.data()) + 1;
    HRESULT result = S_OK;
    for (UINT i = 1; i < count; ++i) {
      const ParameterInfo* parameter = FindParameter(*member, ToUtf8(names[i]));
      if (parameter == nullptr) {
        result = DISP_E_UNKNOWNNAME;
      } else {
        numbers[i] = static_cast<DISPID>(parameter - member->parameters.data());
      }
    }
    return result;
  });
}

const MemberInfo* AutomationObject::MemberFor(DISPID number, WORD flags) const noexcept {
  const auto members = object_.Class().members;
  if (number < 1 || static_cast<std::size_t>(number) > members.size()) return nullptr;
  const MemberInfo& member = members[static_cast<std::size_t>(number) - 1];
  const int wanted = member.kind == MemberKind::PropertyPut ? DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF
                                                            : DISPATCH_METHOD;
  return (flags & wanted) != 0 ? &member : nullptr;
}

HRESULT AutomationObject::Invoke(DISPID number, REFIID reserved, LCID, WORD flags, DISPPARAMS* parameters,
                                 VARIANT* result, EXCEPINFO* details, UINT* argument) {
  if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (parameters == nullptr) return E_INVALIDARG;
  if (result != nullptr) VariantInit(result);
  const MemberInfo* member = MemberFor(number, flags);
  if (member == nullptr) return DISP_E_MEMBERNOTFOUND;
  try {
    const Binding binding = Bind(*member, *parameters);
    if (SUCCEEDED(binding.result)) CallMember(*member, binding, result);
    if (argument != nullptr) *argument = binding.argument;
    return binding.result;
  } catch (...) {
    return ReportCurrentFailure(origin_, details);
  }
}

void AutomationObject::CallMember(const MemberInfo& member, const Binding& binding, VARIANT* result) {
  Call call(member, binding);
  try {
    const Waiting waiting(keepsState_ ? &calls_ : nullptr);
    member.call(object_.Get(), call.Values(), call.Result());
  } catch (...) {
    // What had been written by then is the caller's, whether or not it can be stored.
    try {
      call.StoreResults(nullptr);
    } catch (...) {
    }
    throw;
  }
  call.StoreResults(result);
}

HRESULT AutomationObject::InterfaceSupportsErrorInfo(REFIID identifier) {
  return identifier == IID_IDispatch || identifier == origin_.interfaceId ? S_OK : S_FALSE;
}

}  // namespace amortix2::com
