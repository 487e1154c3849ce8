#include "amortix2/pages/horizons.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "amortix2/automation/conversion.h"
#include "amortix2/json/result_table.h"
#include "amortix2/pages/figure_text.h"
#include "amortix2/pages/schedule.h"

namespace amortix2::pages {
namespace {

/// Both sides' figures in the row that decides.
struct Costs {
  double current = 0;
  double proposed = 0;

  double Saved() const { return current - proposed; }
};

std::optional<double> SideOf(const Calculation& calculation, const SideInfo& side) {
  Figure figure{.parameter = side.parameter, .indices = 2};
  figure.row = calculation.Member().comparison->decides;
  figure.column = side.column;
  const Variant* value = calculation.Out().Find(figure);
  return value && IsNumeric(*value) ? std::optional(NumericOrZero(*value)) : std::nullopt;
}

std::optional<Costs> CostsOf(const Calculation& calculation) {
  const ComparisonInfo& comparison = *calculation.Member().comparison;
  if (!calculation.IsAnswered()) return std::nullopt;
  const auto current = SideOf(calculation, comparison.current);
  const auto proposed = SideOf(calculation, comparison.proposed);
  if (!current || !proposed) return std::nullopt;
  return Costs{*current, *proposed};
}

/// The title of a side: its column's heading.
std::string TitleOf(const Calculation& calculation, const SideInfo& side) {
  const ParameterInfo& parameter = *FindParameter(calculation.Member(), side.parameter);
  const Variant* value = calculation.Out().Find({.parameter = side.parameter});
  const auto table = json::TableOf(calculation.In(), parameter, value->GetArray());
  const auto last = table.columns.size() - 1;
  return table.columns[side.column < 0 ? last
                                       : std::min(last, static_cast<std::size_t>(
                                                            side.column - parameter.table->firstColumn))];
}

class Horizons {
 public:
  Horizons(const Calculation& calculation, const Query& query, const Clock& clock)
      : calculation_(calculation), query_(query), clock_(clock) {
    const ComparisonInfo& comparison = *calculation.Member().comparison;
    current_ = TitleOf(calculation, comparison.current);
    proposed_ = TitleOf(calculation, comparison.proposed);
  }

  void Append(EscapedMarkup& out) const {
    const std::vector<Column> columns = Columns();
    OpenTable(out, std::string(RowTitle()) + ", by how long it is kept");
    out.Open("thead");
    out.Open("tr");
    out.TextElement("th", {{"scope", "col"}}, "Kept for");
    for (const Column& column : columns) out.TextElement("th", {{"scope", "col"}}, column.title);
    out.Close();
    out.Close();
    out.Open("tbody");
    AppendRow(out, current_, columns, [](const Costs& costs) { return costs.current; });
    AppendRow(out, proposed_, columns, [](const Costs& costs) { return costs.proposed; });
    AppendRow(out, "Saved by “" + proposed_ + "”", columns, [](const Costs& costs) { return costs.Saved(); });
    out.Close();
    CloseTable(out);
    AppendBreakEven(out);
  }

 private:
  struct Column {
    std::string title;
    double months;
    Costs costs;
  };

  /// In order of time, what was asked among them; the whole term is the longest.
  std::vector<Column> Columns() const {
    constexpr double kWhole = 1e9;
    const double given = calculation_.In().Number(calculation_.Member().horizon);
    const double asked = given == 0 ? kWhole : given;
    std::vector<Column> columns;
    for (const int months : {12, 60, 120}) {
      const auto costs = months == asked ? std::nullopt : After(months);
      if (costs)
        columns.push_back(
            {std::to_string(months / 12) + (months == 12 ? " year" : " years"), 0.0 + months, *costs});
    }
    const auto costs = CostsOf(calculation_);
    const std::string title =
        given == 0 ? "the whole term" : FigureText(Variant(given), Unit::Months) + ", as asked";
    if (costs) columns.push_back({title, asked, *costs});
    std::ranges::sort(columns, {}, &Column::months);
    return columns;
  }

  template <class FigureOf>
  static void AppendRow(EscapedMarkup& out, const std::string& title, const std::vector<Column>& columns,
                        const FigureOf& figure) {
    out.Open("tr");
    out.TextElement("th", {{"scope", "row"}}, title);
    for (const Column& column : columns) {
      out.TextElement("td", {}, FigureText(Variant(figure(column.costs)), Unit::Currency));
    }
    out.Close();
  }

  std::string_view RowTitle() const {
    const ComparisonInfo& comparison = *calculation_.Member().comparison;
    const TableInfo& table = *FindParameter(calculation_.Member(), comparison.current.parameter)->table;
    return table.rows[static_cast<std::size_t>(comparison.decides - table.firstRow)].title;
  }

  std::optional<Costs> After(int months) const {
    Query query = query_;
    query.Set(calculation_.Member().horizon, std::to_string(months));
    return CostsOf(Calculation(calculation_.Target(), query, clock_));
  }

  bool IsBetter(int months) const {
    const auto costs = After(months);
    return costs && costs->Saved() > 0;
  }

  /// The month in which the better side changes, when it does so between the first month and the last.
  void AppendBreakEven(EscapedMarkup& out) const {
    const Range& range = FindParameter(calculation_.Member(), calculation_.Member().horizon)->range;
    int before = 1;
    int after = static_cast<int>(range.most);
    const bool atFirst = IsBetter(before);
    if (IsBetter(after) == atFirst) return;
    while (after - before > 1) {
      const int middle = (before + after) / 2;
      (IsBetter(middle) == atFirst ? before : after) = middle;
    }
    out.TextElement("p", {{"class", "break-even"}},
                    "Break-even at " + FigureText(Variant(after), Unit::Months) + ": kept for less, “" +
                        (atFirst ? proposed_ : current_) + "” is the better choice, from then on “" +
                        (atFirst ? current_ : proposed_) + "”.");
  }

  const Calculation& calculation_;
  const Query& query_;
  const Clock& clock_;
  std::string current_;
  std::string proposed_;
};

}  // namespace

void AppendHorizons(EscapedMarkup& out, const Calculation& calculation, const Query& query,
                    const Clock& clock) {
  const MemberInfo& member = calculation.Member();
  if (!member.comparison || member.horizon.empty()) return;
  Horizons(calculation, query, clock).Append(out);
}

}  // namespace amortix2::pages
