#pragma once

// An object of the component as its clients see it: a dual interface made from the class's description. Names
// are found whatever their case; a member's dispatch number is its place in the description. Calls compute in
// the standard floating-point state, whatever the client's.
//
// Threads: an object of a class that keeps no state may be called by any number of threads at once, and is
// handed to other apartments as it is. Calls on an object that keeps settings wait for each other.

#include <atomic>

#include "amortix2/com/bound_call.h"
#include "amortix2/com/com_pointer.h"
#include "amortix2/com/dual_interface.h"
#include "amortix2/com/module.h"
#include "amortix2/com/platform.h"
#include "amortix2/com/result_code.h"
#include "amortix2/common/system_clock.h"
#include "amortix2/component/description.h"

namespace amortix2::com {

class AutomationObject final : public DualObject, public ISupportErrorInfo, public IProvideClassInfo {
 public:
  /// Starts with one reference, the caller's. Raises what the class's constructor raises.
  explicit AutomationObject(const ClassInfo& type);
  AutomationObject(const AutomationObject&) = delete;
  AutomationObject& operator=(const AutomationObject&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** type) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                                          DISPID* numbers) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID number, REFIID reserved, LCID locale, WORD flags,
                                   DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* details,
                                   UINT* argument) override;

  HRESULT CallEarlyBound(std::size_t member, std::span<void* const> arguments) noexcept override;

  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID identifier) override;

  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** type) override;

 private:
  ~AutomationObject();

  const MemberInfo* MemberFor(DISPID number, WORD flags) const noexcept;
  OwnedVariant CallMember(const MemberInfo& member, std::span<VARIANT* const> arguments);
  HRESULT TypeOf(const std::string& name, ITypeInfo** type);

  ModuleUse use_;
  SystemClock clock_;
  Object object_;
  DualInterface interface_;  // what clients see of IDispatch and of the class's interface
  ErrorOrigin origin_;
  bool keepsState_;
  CRITICAL_SECTION calls_;  // re-entrant: a page may call the chart again from within BinaryWrite
  ComPointer<IUnknown> marshaler_;
  std::atomic<ULONG> references_ = 1;
};

}  // namespace amortix2::com
