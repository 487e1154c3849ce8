// What hosts rely on beyond the answers: early-bound calls, whatever the floating-point state; the rules of
// class objects; errors that say which argument; what other apartments reach; who made the file.
//
//   contract_client             for the registered server
//   contract_client X.manifest  what can be had by the manifest alone

#include <amortix2.h>
#include <winver.h>
#include <xmmintrin.h>

#include <atomic>
#include <thread>

#include "amortix2/automation/array.h"
#include "client.h"

using namespace amortix2;
using namespace amortix2::com;
using namespace amortix2::com::client;

namespace {

template <class Interface>
ComPointer<Interface> CreateEarly(const wchar_t* programId) {
  return Create(programId).As<Interface>(__uuidof(Interface));
}

std::vector<Variant> Results(const Loan& loan) {
  std::vector<Variant> values;
  for (const OwnedVariant& result : loan.results) values.push_back(ReadValue(result.Get()));
  return values;
}

HRESULT CalculateEarly(_Calculator& calculator, double amount, Loan& loan) {
  const auto a = loan.Arguments(MakeValue(amount));
  const auto place = [&](std::size_t i) { return &loan.results[i].Get(); };
  return calculator.SimpleLoanCalculator(a[0].Get(), a[1].Get(), a[2].Get(), a[3].Get(), a[4].Get(), place(0),
                                         place(1), place(2), place(3), place(4), place(5), place(6));
}

constexpr HRESULT kOverflow = ResultCode(ErrorNumber::Overflow);

void EarlyBoundAnswersAsLateBound() {
  const auto late = Create(L"Amortix2.Calculator");
  const auto early = CreateEarly<_Calculator>(L"Amortix2.Calculator");
  for (const double amount : {1000.0, 0.01, 1e6, 1e15}) {
    Loan one;
    Loan other;
    CHECK(one.Calculate(*late.Get(), MakeValue(amount)) == 0);
    CHECK(CalculateEarly(*early.Get(), amount, other) == S_OK && Results(one) == Results(other));
  }
  Loan loan;
  SetErrorInfo(0, nullptr);
  ComPointer<IErrorInfo> info;
  CHECK(CalculateEarly(*early.Get(), 1e308, loan) == kOverflow && GetErrorInfo(0, info.Receive()) == S_OK);
  CHECK(early->Amortix(LoanCalculator, nullptr, nullptr, nullptr, nullptr, nullptr) == E_POINTER);

  const auto chart = CreateEarly<_BarChart>(L"Amortix2.BarChart");
  CHECK(chart->put_NegativeBars(MakeValue(1.0).Get()) == S_OK);
}

/// The control states of both units; the SSE unit's with overflow, invalid and division trapped, cut off.
struct State {
  unsigned sse;
  std::uint16_t x87;
  bool operator==(const State&) const = default;

  static State Current() noexcept {
    State state{_mm_getcsr(), 0};
    asm volatile("fnstcw %0" : "=m"(state.x87));
    return state;
  }
  void Set() const noexcept {
    _mm_setcsr(sse);
    asm volatile("fldcw %0" : : "m"(x87));
  }
};
constexpr State kTrapping{0x1F80 - 0x680 + 0x6000, 0x37F - 0xD + 0xC00};

void FloatingPointStateDoesNotMatter() {
  const auto late = Create(L"Amortix2.Calculator");
  const auto early = CreateEarly<_Calculator>(L"Amortix2.Calculator");
  Loan expected;
  CHECK(expected.Calculate(*late.Get(), MakeValue("123,456.78")) == 0);
  Loan loans[2];
  Loan failed;
  OwnedVariant text = MakeValue("1e308");
  const State usual = State::Current();
  const auto arguments = loans[0].Arguments(MakeValue("123,456.78"));
  const auto overflowing = failed.Arguments(std::move(text));
  kTrapping.Set();
  const int late0 = NumberOfFailure(*late.Get(), L"SimpleLoanCalculator", arguments);
  const HRESULT early0 = CalculateEarly(*early.Get(), 123456.78, loans[1]);
  const HRESULT early6 = CalculateEarly(*early.Get(), 1e308, failed);
  const int late6 = NumberOfFailure(*late.Get(), L"SimpleLoanCalculator", overflowing);
  const auto chart = Create(L"Amortix2.BarChart");
  const State after = State::Current();
  usual.Set();
  CHECK(after == kTrapping && late0 == 0 && early0 == S_OK && early6 == kOverflow && late6 == 6 &&
        bool(chart));
  for (const Loan& loan : loans) CHECK(Results(loan) == Results(expected));
}

void ClassObjectsKeepTheRules() {
  CLSID identifier{};
  CLSIDFromProgID(L"Amortix2.Calculator", &identifier);
  ComPointer<IClassFactory> factory;
  CHECK(SUCCEEDED(CoGetClassObject(identifier, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory,
                                   reinterpret_cast<void**>(factory.Receive()))));
  const auto outer = Create(L"Amortix2.BarChart");
  void* made = &made;
  CHECK(factory->CreateInstance(outer.Get(), IID_IUnknown, &made) == CLASS_E_NOAGGREGATION &&
        made == nullptr);
  made = &made;
  CHECK(factory->CreateInstance(nullptr, IID_IStream, &made) == E_NOINTERFACE && made == nullptr);
  CHECK(factory->CreateInstance(nullptr, IID_IUnknown, nullptr) == E_POINTER);
  CHECK(factory->LockServer(TRUE) == S_OK && factory->LockServer(FALSE) == S_OK);
}

void ErrorsSayWhichArgument() {
  const auto calculator = Create(L"Amortix2.Calculator");
  Loan loan;
  auto arguments = loan.Arguments(OwnedVariant());
  arguments[1].Get().vt = VT_CLSID;  // of no use
  std::vector<VARIANT> reversed;
  for (std::size_t i = arguments.size(); i-- > 0;) reversed.push_back(arguments[i].Get());
  DISPPARAMS parameters{reversed.data(), nullptr, 12, 0};
  EXCEPINFO details{};
  UINT wrong = 99;
  const auto invoke = [&] {
    return calculator->Invoke(3, IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, &details, &wrong);
  };
  CHECK(invoke() == DISP_E_EXCEPTION && wrong == 10);
  CHECK(Taken(details.bstrDescription).starts_with("vPurchaseAmt: "));
  SysFreeString(details.bstrSource);

  DISPID twice[] = {5, 5};
  DISPID unknown[] = {99};
  parameters.rgdispidNamedArgs = twice;
  parameters.cNamedArgs = 2;
  CHECK(invoke() == DISP_E_PARAMNOTFOUND && wrong == 1);
  parameters.rgdispidNamedArgs = unknown;
  parameters.cNamedArgs = 1;
  CHECK(invoke() == DISP_E_PARAMNOTFOUND && wrong == 0);
  arguments[1].Get().vt = VT_EMPTY;
}

/// A table declared with its bounds takes a table of those bounds, and says why it takes no other.
void ArraysOfFixedSize() {
  const auto calculator = Create(L"Amortix2.Calculator");
  const struct {
    ULONG rows;
    int number;
  } rows[] = {{13, 0}, {12, 10}};
  for (const auto& row : rows) {
    Loan loan;
    SAFEARRAYBOUND bounds[2] = {{row.rows, 0}, {6, 0}};
    SAFEARRAY* table = SafeArrayCreate(VT_VARIANT, 2, bounds);
    table->fFeatures |= FADF_FIXEDSIZE;
    auto arguments = loan.Arguments(MakeValue(1000.0));
    arguments[11] = Reference(VT_ARRAY | VT_VARIANT, &table);
    CHECK(NumberOfFailure(*calculator.Get(), L"SimpleLoanCalculator", arguments) == row.number);
    const auto* last = static_cast<VARIANT*>(SafeArrayData(table).At(3 * row.rows - 1));  // its payment
    CHECK_FOR(std::to_string(row.rows) + " " + std::to_string(last->vt),
              last->vt == (row.number == 0 ? VT_R8 : VT_EMPTY));
    table->fFeatures &= static_cast<USHORT>(~FADF_FIXEDSIZE);
    SafeArrayDestroy(table);
  }
}

void PagesAndFiles() {
  Scripted without({{L"Other", [](auto) { return OwnedVariant(); }}});
  const auto chart = Create(L"Amortix2.GifChart");
  OwnedVariant page = without.AsArgument();
  CallByName(*chart.Get(), L"OnStartPage", {&page, 1});
  std::vector<OwnedVariant> arguments(3);
  arguments[0] = MakeValue(Array({0, 1}, {0, 1}));
  arguments[1] = MakeValue(Array({0, 255}, {0, 2}));
  std::wstring text;
  CHECK(NumberOfFailure(*chart.Get(), L"LineChart", arguments, &text) == 438 && text.size() > 10);
  std::swap(arguments[0], arguments[1]);  // now a raster of one colour and its palette
  arguments[2] = std::move(arguments[0]);
  arguments[0] = MakeValue(
      "Gr\xC3\xB6\xC3\x9F"
      "e.gif");
  CHECK(NumberOfFailure(*chart.Get(), L"writeGifFile", arguments) == 0);
  CHECK(DeleteFileW(L"Gr\u00F6\u00DF"
                    L"e.gif") != 0);
}

void TheFileSaysWhoMadeIt() {
  const auto calculator = Create(L"Amortix2.Calculator");
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(GetModuleHandleW(L"Amortix2.dll"), path, MAX_PATH);
  std::vector<char> block(GetFileVersionInfoSizeW(path, nullptr));
  GetFileVersionInfoW(path, 0, static_cast<DWORD>(block.size()), block.data());
  for (const wchar_t* name : {L"CompanyName", L"LegalCopyright"}) {
    void* text = nullptr;
    UINT length = 0;
    const std::wstring entry = std::wstring(L"\\StringFileInfo\\040904B0\\") + name;
    CHECK(VerQueryValueW(block.data(), entry.c_str(), &text, &length) &&
          std::wstring_view(static_cast<wchar_t*>(text)).find(L"Amortix2") != std::wstring_view::npos);
  }
}

/// A chart of this apartment, called from another through the platform's proxy of the dual interface.
void OtherApartmentsReachTheInterface() {
  const auto chart = CreateEarly<_BarChart>(L"Amortix2.BarChart");
  IStream* stream = nullptr;
  if (!CHECK(SUCCEEDED(CoMarshalInterThreadInterfaceInStream(__uuidof(_BarChart), chart.Get(), &stream))))
    return;
  HRESULT results[2] = {E_FAIL, E_FAIL};
  std::atomic<bool> done = false;
  std::thread other([&] {
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    {
      ComPointer<_BarChart> proxy;
      results[0] = CoGetInterfaceAndReleaseStream(stream, __uuidof(_BarChart),
                                                  reinterpret_cast<void**>(proxy.Receive()));
      if (proxy) {
        results[1] = proxy->put_NegativeBars(MakeValue(1.0).Get());
      }
    }
    CoUninitialize();
    done = true;
  });
  while (!done) {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
    Sleep(1);
  }
  other.join();
  CHECK_FOR(std::to_string(results[0]), results[0] == S_OK);
  CHECK_FOR(std::to_string(results[1]), results[1] == S_OK);
}

/// The same for a client that names the manifest: objects and proxies that the registry does not know.
void NeedsNoRegistration(const wchar_t* manifest) {
  ACTCTXW description{};
  description.cbSize = sizeof description;
  description.lpSource = manifest;
  const HANDLE context = CreateActCtxW(&description);
  ULONG_PTR cookie = 0;
  if (!CHECK(context != INVALID_HANDLE_VALUE) || !CHECK(ActivateActCtx(context, &cookie))) return;
  const auto calculator = Create(L"Amortix2.Calculator");
  Loan loan;
  CHECK(loan.Calculate(*calculator.Get(), MakeValue(1000.0)) == 0);
  OtherApartmentsReachTheInterface();
  DeactivateActCtx(0, cookie);
  ReleaseActCtx(context);
}

}  // namespace

int main(int count, char** arguments) {
  if (count > 1) {
    return Run(COINIT_APARTMENTTHREADED, [&] { NeedsNoRegistration(ToWide(arguments[1]).c_str()); });
  }
  return Run(COINIT_APARTMENTTHREADED, [] {
    EarlyBoundAnswersAsLateBound();
    FloatingPointStateDoesNotMatter();
    ClassObjectsKeepTheRules();
    ErrorsSayWhichArgument();
    ArraysOfFixedSize();
    PagesAndFiles();
    TheFileSaysWhoMadeIt();
    OtherApartmentsReachTheInterface();
  });
}
