#pragma once

// What the clients share: checks that print what failed, and calls as a late-bound C++ program makes them.

#include <cstdint>
#include <cstdio>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "amortix2/com/com_pointer.h"
#include "amortix2/com/late_bound.h"
#include "amortix2/com/owned_variant.h"
#include "amortix2/com/result_code.h"
#include "amortix2/com/text.h"
#include "amortix2/com/values.h"

namespace amortix2::com::client {

inline int failures = 0;

inline bool Check(bool holds, const char* text, int line, const std::string& about = {}) {
  if (!holds) {
    ++failures;
    std::printf("line %d: %s %s\n", line, text, about.c_str());
  }
  return holds;
}
#define CHECK(...) amortix2::com::client::Check((__VA_ARGS__), #__VA_ARGS__, __LINE__)
#define CHECK_FOR(about, ...) amortix2::com::client::Check((__VA_ARGS__), #__VA_ARGS__, __LINE__, about)

/// Runs a client's body in an apartment; the exit status says whether all checks held.
inline int Run(DWORD apartment, const std::function<void()>& body) {
  CoInitializeEx(nullptr, apartment);
  try {
    body();
  } catch (const ForeignError& error) {
    CHECK_FOR(std::to_string(error.Code()) + ToUtf8(error.Description()), false);
  } catch (const std::exception& error) {
    CHECK_FOR(error.what(), false);
  }
  CoUninitialize();
  std::puts(failures == 0 ? "done" : "failed");
  return failures == 0 ? 0 : 1;
}

inline ComPointer<IDispatch> Create(const wchar_t* programId) {
  CLSID identifier{};
  amortix2::com::Check(CLSIDFromProgID(programId, &identifier));
  ComPointer<IDispatch> object;
  amortix2::com::Check(CoCreateInstance(identifier, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                        reinterpret_cast<void**>(object.Receive())));
  return object;
}

/// A by-reference argument.
inline OwnedVariant Reference(VARTYPE type, void* place) {
  OwnedVariant argument;
  argument.Get().vt = static_cast<VARTYPE>(VT_BYREF | type);
  argument.Get().byref = place;
  return argument;
}
inline OwnedVariant Reference(OwnedVariant& variable) { return Reference(VT_VARIANT, &variable.Get()); }

/// Writes a property.
inline void PutByName(IDispatch& object, const wchar_t* name, OwnedVariant value) {
  DISPID number = DISPID_UNKNOWN;
  DISPID put = DISPID_PROPERTYPUT;
  amortix2::com::Check(object.GetIDsOfNames(IID_NULL, const_cast<LPOLESTR*>(&name), 1, 0, &number));
  DISPPARAMS parameters{&value.Get(), &put, 1, 1};
  EXCEPINFO details{};
  const HRESULT result =
      object.Invoke(number, IID_NULL, 0, DISPATCH_PROPERTYPUT, &parameters, nullptr, &details, nullptr);
  for (BSTR text : {details.bstrSource, details.bstrDescription}) SysFreeString(text);
  amortix2::com::Check(result == DISP_E_EXCEPTION ? details.scode : result);
}

/// The automation error number that an action ends in, 0 for none; `text` gets what a caller is told.
template <class Action>
int NumberOf(Action action, std::wstring* text = nullptr) {
  try {
    action();
    return 0;
  } catch (const ForeignError& error) {
    if (text != nullptr) *text = error.Description();
    return HRESULT_FACILITY(error.Code()) == 10 ? HRESULT_CODE(error.Code()) : error.Code();
  } catch (const AutomationError& error) {
    return static_cast<int>(error.Number());
  } catch (const std::bad_alloc&) {
    return static_cast<int>(ErrorNumber::OutOfMemory);
  }
}
inline int NumberOfFailure(IDispatch& object, const wchar_t* name, std::span<const OwnedVariant> arguments,
                           std::wstring* text = nullptr) {
  return NumberOf([&] { CallByName(object, name, arguments); }, text);
}

/// SimpleLoanCalculator with one amount, 12 months and 6 %; results start Empty unless given as places.
struct Loan {
  OwnedVariant results[7];

  std::vector<OwnedVariant> Arguments(OwnedVariant amount) {
    std::vector<OwnedVariant> arguments;
    arguments.push_back(MakeValue(""));
    arguments.push_back(std::move(amount));
    for (const double number : {0.0, 12.0, 6.0}) arguments.push_back(MakeValue(number));
    for (OwnedVariant& result : results) arguments.push_back(Reference(result));
    return arguments;
  }
  int Calculate(IDispatch& calculator, OwnedVariant amount) {
    return NumberOfFailure(calculator, L"SimpleLoanCalculator", Arguments(std::move(amount)));
  }
};

inline std::string Taken(BSTR text) {
  std::string utf8 = ToUtf8(View(text));
  SysFreeString(text);
  return utf8;
}

/// Bytes allocated in all heaps of the process.
inline std::int64_t MemoryInUse() {
  HANDLE heaps[64];
  const DWORD count = GetProcessHeaps(64, heaps);
  std::int64_t bytes = 0;
  for (DWORD i = 0; i < count; ++i) {
    PROCESS_HEAP_ENTRY entry{};
    HeapLock(heaps[i]);
    while (HeapWalk(heaps[i], &entry))
      bytes += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? entry.cbData : 0;
    HeapUnlock(heaps[i]);
  }
  return bytes;
}

inline DWORD HandlesInUse() {
  DWORD count = 0;
  GetProcessHandleCount(GetCurrentProcess(), &count);
  return count;
}

/// Whether repeating the body leaves memory or handles behind. A byte a call is less than any leak.
inline void CheckNothingLeaks(const char* what, long calls, const std::function<void()>& body) {
  for (long i = 0; i < 50 + calls / 10; ++i) body();
  const std::int64_t memory = MemoryInUse();
  const DWORD handles = HandlesInUse();
  for (long i = 0; i < calls; ++i) body();
  const std::int64_t grown = MemoryInUse() - memory;
  const auto more = static_cast<long>(HandlesInUse() - handles);
  std::printf("%s, %ld times: %lld of %lld bytes, %ld handles more\n", what, calls,
              static_cast<long long>(grown), static_cast<long long>(memory), more);
  CHECK_FOR(what, grown < calls && more == 0);
}

/// An object with members that scripts could have written; an empty name is the default property.
class Scripted final : public IDispatch {
 public:
  using Member = std::function<OwnedVariant(std::span<VARIANT> arguments)>;
  explicit Scripted(std::map<std::wstring, Member> members) : members_(std::move(members)) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** object) override {
    const bool known = identifier == IID_IUnknown || identifier == IID_IDispatch;
    *object = known ? this : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
  ULONG STDMETHODCALLTYPE Release() override { return --references; }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* numbers) override {
    const auto found = members_.find(names[0]);
    if (found == members_.end()) return DISP_E_UNKNOWNNAME;
    *numbers = static_cast<DISPID>(std::distance(members_.begin(), found)) + (members_.contains(L"") ? 0 : 1);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID number, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT* result,
                                   EXCEPINFO* details, UINT*) override {
    const auto place = static_cast<std::size_t>(number) - (members_.contains(L"") ? 0U : 1U);
    if (place >= members_.size()) return DISP_E_MEMBERNOTFOUND;
    try {
      *result = std::next(members_.begin(), static_cast<std::ptrdiff_t>(place))
                    ->second({parameters->rgvarg, parameters->cArgs})
                    .Take();
      return S_OK;
    } catch (...) {
      return ReportCurrentFailure({"Scripted", IID_IDispatch}, details);
    }
  }

  OwnedVariant AsArgument() {
    OwnedVariant argument;
    argument.Get().vt = VT_DISPATCH;
    argument.Get().pdispVal = this;
    AddRef();
    return argument;
  }

  ULONG references = 1;

 private:
  std::map<std::wstring, Member> members_;
};

}  // namespace amortix2::com::client
