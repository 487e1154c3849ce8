// What a server process sees over time: no call leaves anything behind, threads do not disturb each other,
// the DLL goes when nothing uses it, and its type library says what the component's description says.
//
//   lifetime_client CALLS      the number of calls made in search of leaks

#include <atomic>
#include <cstdlib>
#include <thread>

#include "automation/array.h"
#include "client.h"
#include "com/guid.h"
#include "com/identity.h"
#include "com/type_library.h"

// clang-format off: behind the platform's other headers
#include <psapi.h>
// clang-format on

using namespace amortix2;
using namespace amortix2::client;

namespace {

std::size_t MemoryInUse() {
  PROCESS_MEMORY_COUNTERS_EX counters{};
  GetProcessMemoryInfo(GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters),
                       sizeof counters);
  return counters.PrivateUsage;
}

DWORD HandlesInUse() {
  DWORD count = 0;
  GetProcessHandleCount(GetCurrentProcess(), &count);
  return count;
}

/// Success, failure, objects made and dropped, texts and arrays in and out, a page's context.
void OneOfEverything(IDispatch& calculator, Scripted& context) {
  Loan loan;
  CHECK(loan.Calculate(calculator, MakeValue("1,000")) == 0);
  CHECK(loan.Calculate(calculator, MakeValue(1e308)) == 6);
  CHECK(NumberOfFailure(calculator, L"SimpleLoanCalculator", {}) == 449);
  const auto chart = Create(L"Amortix2.GifChart");
  OwnedVariant page = context.AsArgument();
  CallByName(*chart.Get(), L"OnStartPage", {&page, 1});
  ComPointer<ITypeInfo> type;
  CHECK(SUCCEEDED(chart->GetTypeInfo(0, 0, type.Receive())));
}

void NothingLeaks(long calls) {
  Scripted context({{L"Response", [](auto) -> OwnedVariant { Raise(ErrorNumber::ObjectNotSet); }}});
  const auto calculator = Create(L"Amortix2.Calculator");
  for (int i = 0; i < 1000; ++i) OneOfEverything(*calculator.Get(), context);
  const std::size_t memory = MemoryInUse();
  const DWORD handles = HandlesInUse();
  for (long i = 0; i < calls / 4; ++i) OneOfEverything(*calculator.Get(), context);
  const std::size_t grown = MemoryInUse() - memory;
  std::printf("%ld calls: %lld bytes, %ld handles more\n", calls, static_cast<long long>(grown),
              static_cast<long>(HandlesInUse() - handles));
  CHECK(static_cast<long long>(grown) < 1 << 20);
  CHECK(HandlesInUse() == handles);
  CHECK(context.references == 1);
}

/// Threads share one calculator and one chart and fail now and then; each gets its own right answers.
void ThreadsDoNotDisturbEachOther() {
  const auto calculator = Create(L"Amortix2.Calculator");
  const auto chart = Create(L"Amortix2.BarChart");
  std::atomic<int> wrong = 0;
  const auto work = [&](int thread) {
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    for (int i = 0; i < 300; ++i) {
      const double amount = 1000 * (thread + 1) + i;
      Loan loan;
      if (loan.Calculate(*calculator.Get(), MakeValue(amount)) != 0) ++wrong;
      if (!(ReadValue(loan.results[0].Get()) == Variant(amount))) ++wrong;
      if (loan.Calculate(*calculator.Get(), MakeValue(1e308)) != 6) ++wrong;
      OwnedVariant image =
          MakeValue(std::string_view(std::to_string(thread) + " a text that is kept on the heap"));
      CallByName(*chart.Get(), L"SetAxisGif", {&image, 1});
    }
    CoUninitialize();
  };
  std::vector<std::thread> threads;
  for (int i = 0; i < 8; ++i) threads.emplace_back(work, i);
  for (std::thread& thread : threads) thread.join();
  CHECK(wrong == 0);
}

/// Only objects without state are handed to other apartments as they are.
void OnlyStatelessObjectsTravel() {
  for (const wchar_t* name : {L"Amortix2.Calculator", L"Amortix2.InvestmentStrategy"}) {
    CHECK(bool(Create(name).As<IMarshal>(IID_IMarshal)));
  }
  for (const wchar_t* name : {L"Amortix2.BarChart", L"Amortix2.GifChart"}) {
    CHECK(!Create(name).As<IMarshal>(IID_IMarshal));
    CHECK(!Create(name).As<IUnknown>(__uuidof(IPersist)));
  }
}

bool IsLoaded() { return GetModuleHandleW(L"Amortix2.dll") != nullptr; }

void UnloadsWhenUnused() {
  const auto chart = Create(L"Amortix2.BarChart");
  CoFreeUnusedLibrariesEx(0, 0);
  CHECK(IsLoaded());
}

/// A client that names the manifest creates objects that the registry does not know.
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
  DeactivateActCtx(0, cookie);
  ReleaseActCtx(context);
}

std::string Taken(BSTR text) {
  std::string utf8 = ToUtf8(View(text));
  SysFreeString(text);
  return utf8;
}

void CheckMember(ITypeInfo& type, UINT index, const MemberInfo& member) {
  FUNCDESC* function = nullptr;
  if (!CHECK_FOR(std::string(member.name), SUCCEEDED(type.GetFuncDesc(index, &function)))) return;
  CHECK(function->memid == static_cast<MEMBERID>(index) + 1);
  CHECK((function->invkind == INVOKE_PROPERTYPUT) == (member.kind == MemberKind::PropertyPut));
  BSTR name = nullptr;
  BSTR help = nullptr;
  type.GetDocumentation(function->memid, &name, &help, nullptr, nullptr);
  CHECK(SameName(Taken(name), member.name) && Taken(help) == member.help);
  CHECK(static_cast<std::size_t>(function->cParams) == member.parameters.size());
  BSTR names[32] = {};
  UINT count = 0;
  type.GetNames(function->memid, names, 32, &count);
  const auto custom = ComPointer<ITypeInfo>::Shared(&type).As<ITypeInfo2>(IID_ITypeInfo2);
  for (UINT i = 0; i < count; ++i) {
    const std::string parameter = Taken(names[i]);
    if (i == 0) continue;
    const ParameterInfo& info = member.parameters[i - 1];
    const USHORT flags = function->lprgelemdescParam[i - 1].paramdesc.wParamFlags;
    OwnedVariant parameterHelp;
    custom->GetParamCustData(index, i - 1, ToGuid(IdentifierOf(kParameterHelp)), &parameterHelp.Get());
    CHECK(SameName(parameter, info.name) && ReadValue(parameterHelp.Get()) == Variant(info.help));
    CHECK((flags & PARAMFLAG_FOPT ? true : false) == info.optional);
    CHECK((flags & PARAMFLAG_FOUT ? true : false) == info.byReference);
  }
  type.ReleaseFuncDesc(function);
}

void TypeLibrarySaysWhatTheDescriptionSays() {
  for (const ClassInfo* described : Classes()) {
    const auto object = Create(ToWide(ProgramId(described->name)).c_str());
    ComPointer<ITypeInfo> type;
    if (!CHECK(SUCCEEDED(object->GetTypeInfo(0, 0, type.Receive())))) continue;
    UINT index = 0;
    for (const MemberInfo& member : described->members) CheckMember(*type.Get(), index++, member);
  }
}

}  // namespace

int main(int count, char** arguments) {
  const std::string first = count > 1 ? arguments[1] : "4000";
  if (first.ends_with(".manifest")) {
    return Run(COINIT_APARTMENTTHREADED, [&] { NeedsNoRegistration(ToWide(first).c_str()); });
  }
  const int status = Run(COINIT_MULTITHREADED, [&] {
    CHECK(!IsLoaded());
    TypeLibrarySaysWhatTheDescriptionSays();
    NothingLeaks(std::atol(first.c_str()));
    ThreadsDoNotDisturbEachOther();
    OnlyStatelessObjectsTravel();
    UnloadsWhenUnused();
    CoFreeUnusedLibrariesEx(0, 0);
    CHECK(!IsLoaded());
  });
  return status;
}
