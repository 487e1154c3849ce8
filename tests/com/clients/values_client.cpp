// Every automation type as an argument, by value and by reference; results written back in place; objects
// that stand for their value; errors with source and description.

#include <algorithm>
#include <cstring>
#include <limits>
#include <span>

#include "amortix2/automation/array.h"
#include "client.h"

using namespace amortix2;
using namespace amortix2::com;
using namespace amortix2::com::client;

namespace {

template <class T>
OwnedVariant Raw(VARTYPE type, T value) {
  OwnedVariant raw;
  const auto bytes = std::as_bytes(std::span(&value, 1));
  std::memcpy(type == VT_DECIMAL ? static_cast<void*>(&raw.Get()) : &raw.Get().llVal, bytes.data(),
              bytes.size());
  raw.Get().vt = type;
  return raw;
}

DECIMAL Thousand() {
  DECIMAL decimal{};
  VarDecFromR8(1000, &decimal);
  return decimal;
}

double AmountOf(IDispatch& calculator, OwnedVariant amount) {
  Loan loan;
  CHECK(loan.Calculate(calculator, std::move(amount)) == 0);
  return loan.results[0].Get().vt == VT_R8 ? loan.results[0].Get().dblVal : -1;
}

void NumbersOfEveryType(IDispatch& calculator) {
  const struct {
    OwnedVariant value;
    double amount;
  } rows[] = {
      {Raw(VT_I1, static_cast<signed char>(100)), 100},
      {Raw(VT_UI1, BYTE{200}), 200},
      {Raw(VT_I2, short{1000}), 1000},
      {Raw(VT_UI2, WORD{60000}), 60000},
      {Raw(VT_I4, 70000), 70000},
      {Raw(VT_INT, 70000), 70000},
      {Raw(VT_UI4, 3000000000U), 3e9},
      {Raw(VT_UINT, 3000000000U), 3e9},
      {Raw(VT_I8, 5000000000LL), 5e9},
      {Raw(VT_UI8, 5000000000ULL), 5e9},
      {Raw(VT_R4, 0.5F), 0.5},
      {Raw(VT_R8, 1234.56), 1234.56},
      {Raw(VT_CY, 12345600LL), 1234.56},
      {Raw(VT_DECIMAL, Thousand()), 1000},
      {Raw(VT_BSTR, MakeBstr("$1,234.56")), 1234.56},
      {Raw(VT_BSTR, BSTR{nullptr}), 0},
      {Raw(VT_DATE, 36922.5), 0},
      {Raw(VT_ERROR, E_FAIL), 0},
      {Raw(VT_NULL, 0), 0},
      {Raw(VT_EMPTY, 0), 0},
      {Raw(VT_DISPATCH, static_cast<void*>(nullptr)), 0},
  };
  for (const auto& row : rows) {
    const std::string type = "type " + std::to_string(row.value.Get().vt);
    OwnedVariant copy;
    VariantCopy(&copy.Get(), const_cast<VARIANT*>(&row.value.Get()));
    CHECK_FOR(type, AmountOf(calculator, Reference(copy)) == row.amount);
    VARIANT direct = row.value.Get();
    if (direct.vt != VT_EMPTY && direct.vt != VT_NULL) {
      void* place = direct.vt == VT_DECIMAL ? static_cast<void*>(&direct) : &direct.llVal;
      CHECK_FOR(type, AmountOf(calculator, Reference(direct.vt, place)) == row.amount);
    }
    CHECK_FOR(type, AmountOf(calculator, std::move(copy)) == row.amount);
  }
}

void NotNumbers(IDispatch& calculator) {
  Loan loan;
  CHECK(loan.Calculate(calculator, Raw(VT_R8, std::numeric_limits<double>::infinity())) == 6);
  CHECK(loan.Calculate(calculator, Raw(VT_R8, std::numeric_limits<double>::quiet_NaN())) == 6);
  CHECK(loan.Calculate(calculator, Raw(VT_DATE, 1e9)) == 6);
  CHECK(loan.Calculate(calculator, Raw(VT_CLSID, 0)) == 13);
  OwnedVariant circle;
  circle.Get() = Reference(circle).Take();
  CHECK(loan.Calculate(calculator, Reference(circle)) == 13);
  circle.Take();
  CHECK(loan.results[0].Get().vt == VT_EMPTY);
}

void ObjectsStandForTheirValue(IDispatch& calculator) {
  Scripted item({{L"", [](auto) { return MakeValue("1500"); }}});
  CHECK(AmountOf(calculator, item.AsArgument()) == 1500);
  Scripted around({{L"", [&](auto) { return item.AsArgument(); }}});
  CHECK(AmountOf(calculator, around.AsArgument()) == 1500);
  Scripted without({{L"Other", [](auto) { return MakeValue(1.0); }}});
  CHECK(AmountOf(calculator, without.AsArgument()) == 0);
  Scripted failing({{L"", [](auto) -> OwnedVariant { Raise(ErrorNumber::FileNotFound); }}});
  Loan loan;
  CHECK(loan.Calculate(calculator, failing.AsArgument()) == 53);
  CHECK(item.references == 1 && around.references == 1 && without.references == 1 && failing.references == 1);
}

/// Results into variables of fixed types, as a compiled caller has them: all or none.
void TypedResults(IDispatch& calculator) {
  Loan loan;
  double payment = 0;
  CY total{};
  BSTR period = nullptr;
  short amount = 0;
  auto arguments = loan.Arguments(MakeValue(1000.0));
  arguments[6] = Reference(VT_R8, &payment);
  arguments[7] = Reference(VT_BSTR, &period);
  arguments[9] = Reference(VT_CY, &total);
  CHECK(NumberOfFailure(calculator, L"simpleLOANcalculator", arguments) == 0);
  CHECK(payment == 86.07 && View(period) == L"12" && total.int64 == 10328000);
  payment = 1;
  arguments[1] = MakeValue(100000.0);
  arguments[5] = Reference(VT_I2, &amount);
  CHECK(NumberOfFailure(calculator, L"SimpleLoanCalculator", arguments) == 6);
  CHECK(payment == 1 && amount == 0);
  SysFreeString(period);
}

/// The reversed stacked chart swaps series in its caller's arrays: in place, whatever the type of the
/// elements.
void ArraysInPlace() {
  const auto chart = Create(L"Amortix2.BarChart");
  SAFEARRAYBOUND bounds[2] = {{2, 0}, {3, 0}};
  SAFEARRAY* table = SafeArrayCreate(VT_R8, 2, bounds);
  SAFEARRAY* images = SafeArrayCreate(VT_BSTR, 1, &bounds[1]);
  SAFEARRAY* legends = SafeArrayCreate(VT_VARIANT, 1, &bounds[1]);
  const double columns[] = {1, 2, 10, 20, 100, 200};  // column after column
  std::memcpy(SafeArrayData(table).At(0), columns, sizeof columns);
  for (LONG i = 0; i < 3; ++i) {
    OwnedVariant number = Raw(VT_I8, static_cast<long long>(i));
    SafeArrayPutElement(legends, &i, &number.Get());
    SafeArrayPutElement(images, &i, Raw(VT_BSTR, MakeBstr(std::to_string(i))).Get().bstrVal);
  }
  OwnedVariant legendVariable = Raw(VT_ARRAY | VT_VARIANT, legends);
  OwnedVariant lines;
  std::vector<OwnedVariant> arguments;
  arguments.push_back(Reference(VT_ARRAY | VT_R8, &table));
  arguments.push_back(MakeValue("blank.gif"));
  arguments.push_back(Reference(VT_ARRAY | VT_BSTR, &images));
  arguments.push_back(Reference(legendVariable));
  arguments.push_back(MakeValue(Array(Bounds{0, 2})));
  for (int i = 0; i < 2; ++i) arguments.push_back(MakeValue("axis"));
  arguments.push_back(Reference(lines));
  arguments.push_back(MakeValue("SR"));
  void* const before = SafeArrayData(table).At(0);
  CHECK(NumberOfFailure(*chart.Get(), L"MakeChart", arguments) == 0);
  const double swapped[] = {1, 2, 100, 200, 10, 20};
  CHECK(SafeArrayData(table).At(0) == before &&
        std::ranges::equal(swapped, std::span(static_cast<double*>(before), 6)));
  CHECK(View(*static_cast<BSTR*>(SafeArrayData(images).At(1))) == L"2");
  const auto* cells = static_cast<VARIANT*>(SafeArrayData(legendVariable.Get().parray).At(0));
  CHECK(legendVariable.Get().parray == legends && cells[0].vt == VT_I8 && cells[1].lVal == 2);
  CHECK(lines.Get().vt == (VT_ARRAY | VT_VARIANT));
  SafeArrayDestroy(table);
  SafeArrayDestroy(images);
}

void WaysToCall(IDispatch& calculator) {
  Loan loan;
  auto arguments = loan.Arguments(MakeValue(1000.0));
  CHECK(NumberOfFailure(calculator, L"NoSuchMember", arguments) == 438);
  CHECK(NumberOfFailure(calculator, L"SimpleLoanCalculator", {arguments.data(), 11}) == 449);
  arguments.emplace_back();
  CHECK(NumberOfFailure(calculator, L"SimpleLoanCalculator", arguments) == DISP_E_BADPARAMCOUNT);

  // The last two by name, in another case and order.
  const wchar_t* names[] = {L"SimpleLoanCalculator", L"VDETARRAY", L"vTotInt"};
  DISPID numbers[3];
  CHECK(SUCCEEDED(calculator.GetIDsOfNames(IID_NULL, const_cast<LPOLESTR*>(names), 3, 0, numbers)));
  std::vector<VARIANT> reversed{arguments[11].Get(), arguments[10].Get()};
  for (std::size_t i = 10; i-- > 0;) reversed.push_back(arguments[i].Get());
  DISPPARAMS parameters{reversed.data(), numbers + 1, 12, 2};
  EXCEPINFO details{};
  CHECK(SUCCEEDED(
      calculator.Invoke(numbers[0], IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, &details, nullptr)));
  CHECK(loan.results[5].Get().dblVal > 32 && loan.results[6].Get().vt == (VT_ARRAY | VT_VARIANT));
}

void Errors(IDispatch& calculator) {
  Loan loan;
  auto arguments = loan.Arguments(MakeValue(1e308));
  try {
    CallByName(calculator, L"SimpleLoanCalculator", arguments);
    CHECK_FOR("raises", false);
  } catch (const ForeignError& error) {
    CHECK(error.Code() == static_cast<HRESULT>(0x800A0006) && error.Source() == L"Amortix2.Calculator" &&
          error.Description().size() > 10);
  }
  ComPointer<IErrorInfo> info;
  CHECK(GetErrorInfo(0, info.Receive()) == S_OK);
  BSTR source = nullptr;
  CHECK(info && SUCCEEDED(info->GetSource(&source)) && View(source) == L"Amortix2.Calculator");
  SysFreeString(source);
  // More cells than may be: out of memory, told without asking for any.
  OwnedVariant huge;
  huge.Get().parray = SafeArrayCreateVector(VT_UI1, 0, (1U << 24) + 1);
  huge.Get().vt = VT_ARRAY | VT_UI1;
  CHECK(loan.Calculate(calculator, std::move(huge)) == 7);
}

}  // namespace

int main() {
  return Run(COINIT_APARTMENTTHREADED, [] {
    const auto calculator = Create(L"Amortix2.Calculator");
    NumbersOfEveryType(*calculator.Get());
    NotNumbers(*calculator.Get());
    ObjectsStandForTheirValue(*calculator.Get());
    TypedResults(*calculator.Get());
    ArraysInPlace();
    WaysToCall(*calculator.Get());
    Errors(*calculator.Get());
  });
}
