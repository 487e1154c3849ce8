// What a server process sees over time: no call leaves anything behind, threads do not disturb each other,
// the DLL goes when nothing uses it, and its type library says what the component's description says.
//
//   lifetime_client CALLS  the number of calls made in search of leaks

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <thread>

#include "amortix2/automation/array.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/com/guid.h"
#include "amortix2/com/identity.h"
#include "amortix2/com/type_library.h"
#include "client.h"

using namespace amortix2;
using namespace amortix2::com;
using namespace amortix2::com::client;

namespace {

constexpr std::string_view kMarks = "~^|@{}`[";

/// Sets an image's URL of one mark throughout, draws a chart, and counts the different marks in it.
std::ptrdiff_t MarksInChart(IDispatch& chart, char mark) {
  const std::string url(2000, mark);
  OwnedVariant image = MakeValue(std::string_view(url));
  CallByName(chart, L"SetAxisGif", {&image, 1});
  OwnedVariant lines;
  std::vector<OwnedVariant> arguments(8);
  arguments[0] = MakeValue(Array({0, 1}, {0, 1}));
  for (std::size_t i = 2; i < 5; ++i) arguments[i] = MakeValue(Array(Bounds{0, 2}));
  arguments[7] = Reference(lines);
  if (!CHECK(NumberOfFailure(chart, L"StackChart", arguments) == 0)) return 0;
  std::string text;
  const Variant read = ReadValue(lines.Get());
  for (const Variant& line : read.GetArray().Cells()) text += ToText(line);
  return std::ranges::count_if(kMarks, [&](char c) { return text.find(c) != std::string::npos; });
}

/// Success, failure, objects made and dropped, texts and arrays in and out, a page's context, a chart.
void OneOfEverything(IDispatch& calculator, Scripted& context) {
  Loan loan;
  CHECK(loan.Calculate(calculator, MakeValue("1,000")) == 0);
  CHECK(loan.Calculate(calculator, MakeValue(1e308)) == 6);
  CHECK(NumberOfFailure(calculator, L"SimpleLoanCalculator", {}) == 449);
  const auto chart = Create(L"Amortix2.GifChart");
  OwnedVariant page = context.AsArgument();
  CallByName(*chart.Get(), L"OnStartPage", {&page, 1});
  CHECK(MarksInChart(*Create(L"Amortix2.BarChart").Get(), '~') == 1);
  ComPointer<ITypeInfo> type;
  CHECK(SUCCEEDED(chart->GetTypeInfo(0, 0, type.Receive())));
}

void NothingLeaks(long calls) {
  Scripted context({{L"Response", [](auto) -> OwnedVariant { Raise(ErrorNumber::ObjectNotSet); }}});
  const auto calculator = Create(L"Amortix2.Calculator");
  CheckNothingLeaks("one of everything", calls / 5, [&] { OneOfEverything(*calculator.Get(), context); });
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
      if (MarksInChart(*chart.Get(), kMarks[static_cast<std::size_t>(thread)]) > 1) ++wrong;
    }
    CoUninitialize();
  };
  std::vector<std::thread> threads;
  threads.reserve(8);
  for (int i = 0; i < 8; ++i) threads.emplace_back(work, i);
  for (std::thread& thread : threads) thread.join();
  CHECK(wrong == 0);
}

/// Only objects without state are handed to other apartments as they are.
void OnlyStatelessObjectsTravel() {
  for (const wchar_t* name : {L"Amortix2.Calculator", L"Amortix2.InvestmentStrategy"}) {
    CHECK(bool(Create(name).As<IMarshal>(IID_IMarshal)));
  }
  for (const wchar_t* name : {L"Amortix2.BarChart", L"Amortix2.GifChart", L"Amortix2.SvgChart"}) {
    CHECK(!Create(name).As<IMarshal>(IID_IMarshal));
    CHECK(!Create(name).As<IUnknown>(__uuidof(IPersist)));
  }
}

bool IsLoaded() {
  CoFreeUnusedLibrariesEx(0, 0);
  return GetModuleHandleW(L"Amortix2.dll") != nullptr;
}

/// An object keeps the DLL, and so does a lock.
void UnloadsWhenUnused() {
  {
    const auto chart = Create(L"Amortix2.BarChart");
    CHECK(IsLoaded());
  }
  CLSID identifier{};
  CLSIDFromProgID(L"Amortix2.Calculator", &identifier);
  for (const BOOL lock : {TRUE, FALSE}) {
    ComPointer<IClassFactory> factory;
    CoGetClassObject(identifier, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory,
                     reinterpret_cast<void**>(factory.Receive()));
    factory->LockServer(lock);
    factory = {};
    CHECK(IsLoaded() == (lock != FALSE));
  }
}

std::string NameOf(ITypeInfo& type, MEMBERID member) {
  BSTR name = nullptr;
  type.GetDocumentation(member, &name, nullptr, nullptr, nullptr);
  return Taken(name);
}

/// The names of a record's or an enumeration's entries, an enumeration's with their values.
template <class Entries>
void CheckEntries(ITypeLib& library, std::string_view name, const Entries& entries) {
  ComPointer<ITypeInfo> type;
  if (!CHECK(SUCCEEDED(library.GetTypeInfoOfGuid(ToGuid(IdentifierOf(name)), type.Receive())))) return;
  CHECK(NameOf(*type.Get(), MEMBERID_NIL) == name);
  UINT index = 0;
  for (const auto& entry : entries) {
    VARDESC* variable = nullptr;
    if (!CHECK_FOR(std::string(entry.name), SUCCEEDED(type->GetVarDesc(index++, &variable)))) return;
    CHECK_FOR(std::string(entry.name), NameOf(*type.Get(), variable->memid) == entry.name);
    if constexpr (requires { entry.value; }) CHECK(variable->lpvarValue->lVal == entry.value);
    type->ReleaseVarDesc(variable);
  }
}

std::string TitleAndHelp(const auto& item) {
  const std::string title(item.title);
  return item.help.empty() || item.help == title ? title : title + ": " + std::string(item.help);
}

void CheckMember(ITypeInfo& type, UINT index, const MemberInfo& member) {
  const auto number = static_cast<MEMBERID>(index) + 1;
  const bool put = member.kind == MemberKind::PropertyPut;
  FUNCDESC* function = nullptr;
  if (!CHECK_FOR(std::string(member.name), SUCCEEDED(type.GetFuncDesc(index, &function)))) return;
  CHECK(function->memid == number && function->invkind == (put ? INVOKE_PROPERTYPUT : INVOKE_FUNC));
  CHECK(function->oVft == static_cast<SHORT>((number + 6) * static_cast<MEMBERID>(sizeof(void*))));
  BSTR name = nullptr;
  BSTR help = nullptr;
  type.GetDocumentation(number, &name, &help, nullptr, nullptr);
  CHECK(SameName(Taken(name), member.name) && Taken(help) == TitleAndHelp(member));
  const std::size_t results = member.result != nullptr ? 1 : 0;
  CHECK(static_cast<std::size_t>(function->cParams) == member.parameters.size() + results);
  BSTR names[32] = {};
  UINT count = 0;
  type.GetNames(number, names, 32, &count);
  const auto custom = ComPointer<ITypeInfo>::Shared(&type).As<ITypeInfo2>(IID_ITypeInfo2);
  for (UINT i = 0; i < count; ++i) {
    const std::string parameter = Taken(names[i]);
    if (i == 0 || i > member.parameters.size()) continue;
    const ParameterInfo& info = member.parameters[i - 1];
    const USHORT flags = function->lprgelemdescParam[i - 1].paramdesc.wParamFlags;
    OwnedVariant parameterHelp;
    custom->GetParamCustData(index, i - 1, ToGuid(IdentifierOf(kParameterHelp)), &parameterHelp.Get());
    CHECK((put || SameName(parameter, info.name)) &&
          ReadValue(parameterHelp.Get()) == Variant(TitleAndHelp(info)));
    CHECK(((flags & PARAMFLAG_FOPT) != 0) == info.optional);
    CHECK(((flags & PARAMFLAG_FOUT) != 0) == info.byReference);
  }
  type.ReleaseFuncDesc(function);
}

/// The interface of a late-bound object as compiled clients know it. It takes no members but the declared.
void CheckInterface(ITypeInfo& type, const ClassInfo& described) {
  UINT index = 0;
  for (const MemberInfo& member : described.members) CheckMember(type, index++, member);
  TYPEATTR* attributes = nullptr;
  if (!CHECK(SUCCEEDED(type.GetTypeAttr(&attributes)))) return;
  CHECK(attributes->cFuncs == described.members.size() && attributes->wTypeFlags & TYPEFLAG_FNONEXTENSIBLE);
  type.ReleaseTypeAttr(attributes);
}

void TypeLibrarySaysWhatTheDescriptionSays() {
  ComPointer<ITypeLib> library;
  for (const ClassInfo* described : Classes()) {
    const auto object = Create(ToWide(ProgramId(described->name)).c_str());
    ComPointer<ITypeInfo> dispatch;
    ComPointer<ITypeInfo> dual;
    ComPointer<ITypeInfo> named;
    HREFTYPE reference = 0;
    const auto provider = object.As<IProvideClassInfo>(IID_IProvideClassInfo);
    if (!CHECK(SUCCEEDED(object->GetTypeInfo(0, 0, dispatch.Receive())) &&
               SUCCEEDED(dispatch->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference)) &&
               SUCCEEDED(dispatch->GetRefTypeInfo(reference, dual.Receive())) &&
               SUCCEEDED(provider->GetClassInfo(named.Receive())))) {
      continue;
    }
    CheckInterface(*dual.Get(), *described);
    CHECK(NameOf(*named.Get(), MEMBERID_NIL) == described->name);
    UINT index = 0;
    library = {};
    named->GetContainingTypeLib(library.Receive(), &index);
  }
  for (const RecordInfo* record : Records()) CheckEntries(*library.Get(), record->name, record->fields);
  for (const EnumerationInfo* type : Enumerations())
    CheckEntries(*library.Get(), type->name, type->constants);
}

}  // namespace

int main(int count, char** arguments) {
  return Run(COINIT_MULTITHREADED, [&] {
    CHECK(!IsLoaded());
    TypeLibrarySaysWhatTheDescriptionSays();
    NothingLeaks(count > 1 ? std::atol(arguments[1]) : 4000);
    ThreadsDoNotDisturbEachOther();
    OnlyStatelessObjectsTravel();
    UnloadsWhenUnused();
  });
}
