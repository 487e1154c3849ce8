#pragma once

// How parameters are described: each is a value that says its name, title, unit and help, and then in chained
// words what else is known:
//
//   constexpr Param kRate = Input("vIntRate", "Interest rate", Unit::AnnualPercent, "Nominal, a year")
//                               .Span(0, 25, 0.125).Example("6.5");
//
// What recurs is said once and varied: kRate.Find() is the same rate where 0 asks for it,
// kRate.Named("vNewRate") another parameter with the same meaning. Direction and type follow from the member
// (describe.h).

#include <string_view>
#include <type_traits>

#include "amortix2/component/description.h"

namespace amortix2 {

class Param : public ParameterInfo {
  template <class T>
  constexpr Param With(T ParameterInfo::*member, std::type_identity_t<T> value) const {
    Param changed = *this;
    changed.*member = value;
    return changed;
  }

 public:
  // The same parameter, varied.
  constexpr Param Named(std::string_view newName) const { return With(&Param::name, newName); }
  constexpr Param Titled(std::string_view newTitle) const { return With(&Param::title, newTitle); }
  constexpr Param Says(std::string_view newHelp) const { return With(&Param::help, newHelp); }
  constexpr Param In(Unit newUnit) const { return With(&Param::unit, newUnit); }

  /// What makes sense, inclusive. Also the server's limit, unless Limit says another.
  constexpr Param Span(double least, double most, double step = 0) const {
    Param changed = With(&Param::range, Range{least, most, step});
    if (!limit.IsGiven() || !limit.Contains(least) || !limit.Contains(most)) changed.limit = {least, most, 0};
    return changed;
  }
  constexpr Param Limit(double least, double most) const {
    return With(&Param::limit, Range{least, most, 0});
  }

  /// An input that the member changes where it stands.
  constexpr Param ComesBack() const { return With(&Param::role, Role::InOut); }

  constexpr Param Example(std::string_view text) const { return With(&Param::example, text); }
  constexpr Param NoExample() const { return Example({}); }

  // What it means to leave the input out.
  constexpr Param Zero() const { return With(&Param::omitted, Omitted::Zero); }
  constexpr Param Today() const { return With(&Param::omitted, Omitted::Today); }
  constexpr Param WholeTerm() const { return With(&Param::omitted, Omitted::WholeTerm); }
  constexpr Param Find() const { return With(&Param::omitted, Omitted::FindIt); }
  constexpr Param Nothing() const { return With(&Param::omitted, Omitted::Nothing); }
  constexpr Param Required() const { return With(&Param::omitted, Omitted::Required); }
  /// May be left out of the call itself.
  constexpr Param Optional() const { return Nothing().With(&Param::optional, true); }

  constexpr Param Of(const ChoicesInfo& list) const { return With(&Param::choices, &list); }
  constexpr Param Of(const TableInfo& info) const { return With(&Param::table, &info); }
  constexpr Param Asks(std::span<const QuestionInfo> list) const { return With(&Param::questions, list); }
  /// A result: the input that it gives back, found or as given.
  constexpr Param Echoes(std::string_view input) const { return With(&Param::echoes, input); }
};

constexpr Param Describe(Role role, std::string_view name, std::string_view title, Unit unit,
                         std::string_view help) {
  Param param;
  param.name = name;
  param.title = title;
  param.unit = unit;
  param.help = help;
  param.role = role;
  return param;
}

/// Read by the member; required unless it says otherwise.
constexpr Param Input(std::string_view name, std::string_view title, Unit unit, std::string_view help) {
  return Describe(Role::Input, name, title, unit, help);
}

/// Written by the member.
constexpr Param Result(std::string_view name, std::string_view title, Unit unit, std::string_view help) {
  return Describe(Role::Result, name, title, unit, help);
}

/// Worked on in place.
constexpr Param InOut(std::string_view name, std::string_view title, Unit unit, std::string_view help) {
  return Describe(Role::InOut, name, title, unit, help);
}

/// Accepted and not read.
constexpr Param Ignored(std::string_view name) {
  return Describe(Role::Ignored, name, "Not used", Unit::None, "Accepted and not read").Nothing();
}

}  // namespace amortix2
