#include "amortix2/pages/chart_numbers.h"

#include <algorithm>
#include <limits>
#include <map>
#include <string>

#include "amortix2/automation/array.h"
#include "amortix2/component/call_values.h"
#include "amortix2/pages/years.h"

namespace amortix2::pages {
namespace {

constexpr std::int64_t kShort = 24;  // lines that are drawn one by one

/// A series with the table that it is drawn from.
struct Source {
  const SeriesInfo* series;
  const TableInfo* table;
  const Array* lines;

  /// What stands for a year in the series' column.
  Yearly Fold() const {
    const HeadingInfo* heading = ColumnHeading(*table, series->column);
    return heading ? heading->yearly : Yearly::Nothing;
  }
};

/// What stands in one place of the chart's axis: its label, and a value of each series.
struct Point {
  Variant label;
  std::vector<Variant> values;
};

class Points {
 public:
  Points(const ChartInfo& chart, std::vector<Source> sources)
      : chart_(chart), sources_(std::move(sources)), folds_(chart.perYear && IsLong()) {
    for (std::size_t i = 0; i < sources_.size(); ++i) {
      folds_ ? AddYears(i) : AddLines(i);
    }
  }

  bool AreNone() const noexcept { return points_.empty(); }
  bool HaveDates() const {
    return std::ranges::all_of(
        points_, [](const auto& point) { return point.second.label.Type() == VariantType::Date; });
  }

  Variant Table() const {
    const auto rows = static_cast<std::int32_t>(points_.size());
    Array table({0, rows}, {0, static_cast<std::int32_t>(sources_.size())});
    table.At(0, 0) = Corner();
    for (std::size_t i = 0; i < sources_.size(); ++i) {
      table.At(0, static_cast<std::int64_t>(i) + 1) = sources_[i].series->title;
    }
    std::int64_t row = 0;
    for (const auto& [place, point] : points_) {
      table.At(++row, 0) = point.label;
      for (std::size_t i = 0; i < point.values.size(); ++i) {
        table.At(row, static_cast<std::int64_t>(i) + 1) = point.values[i];
      }
    }
    return table;
  }

 private:
  static constexpr std::int32_t kStart = std::numeric_limits<std::int32_t>::min();

  bool IsLine() const noexcept { return chart_.kind == ChartKind::Lines; }
  bool IsLong() const {
    return std::ranges::any_of(
        sources_, [](const Source& source) { return source.lines->Dimension(1).Count() > kShort; });
  }

  void Add(std::size_t series, std::int32_t place, Variant label, Variant value) {
    Point& point = points_[place];
    point.values.resize(sources_.size());
    // Where the days of two schedules differ, a year ends on the later one.
    const bool isLater = point.label.Type() != VariantType::Date || point.label.GetDate() < label.GetDate();
    if (isLater) point.label = std::move(label);
    point.values[series] = std::move(value);
  }

  void AddYears(std::size_t index) {
    const auto& [series, table, lines] = sources_[index];
    const auto start = DayOf(*table, *lines, table->firstRow);
    if (IsLine() && table->isSchedule && sources_[index].Fold() == Yearly::Last && start) {
      Add(index, kStart, *start, lines->At(table->firstRow, series->column));
    }
    for (const YearOfLines& year : YearsOf(*table, *lines)) {
      Add(index, year.year,
          IsLine() ? Variant(year.end) : Variant(std::string_view(std::to_string(year.year))),
          CellOfYear(*table, *lines, year, series->column));
    }
  }

  void AddLines(std::size_t index) {
    const auto& [series, table, lines] = sources_[index];
    const bool skipsStart = table->isSchedule && sources_[index].Fold() == Yearly::Sum;
    const std::int32_t first = table->firstRow + (skipsStart ? 1 : 0);
    for (std::int32_t line = first; line <= lines->Dimension(1).upper; ++line) {
      if (series->row >= 0 && series->row != line) continue;
      Add(index, line, LabelOf(sources_[index], line), lines->At(line, series->column));
    }
  }

  static Variant LabelOf(const Source& source, std::int32_t line) {
    const auto place = static_cast<std::size_t>(line - source.table->firstRow);
    if (place < source.table->rows.size()) return source.table->rows[place].title;
    if (const auto day = DayOf(*source.table, *source.lines, line)) return *day;
    const HeadingInfo* heading = ColumnHeading(*source.table, source.table->firstColumn);
    if (heading && heading->unit == Unit::Text) return source.lines->At(line, source.table->firstColumn);
    return std::string_view(std::to_string(line));
  }

  std::string_view Corner() const {
    if (folds_ && !IsLine()) return "Year";
    const HeadingInfo* heading = ColumnHeading(*sources_.front().table, sources_.front().table->firstColumn);
    return heading ? heading->title : sources_.front().table->title;
  }

  const ChartInfo& chart_;
  std::vector<Source> sources_;
  bool folds_;
  std::map<std::int32_t, Point> points_;
};

/// Series whose table or column is not there are left out.
std::vector<Source> SourcesOf(const Calculation& calculation, const ChartInfo& chart) {
  std::vector<Source> sources;
  for (const SeriesInfo& series : chart.series) {
    const ParameterInfo* parameter = FindParameter(calculation.Member(), series.parameter);
    const Variant* value = calculation.Out().Find({.parameter = series.parameter});
    if (!parameter || !parameter->table || !value || value->Type() != VariantType::Array) continue;
    const Array& lines = value->GetArray();
    const bool isThere = lines.Rank() == 2 && lines.Dimension(2).Contains(series.column) &&
                         lines.Dimension(1).Contains(parameter->table->firstRow);
    if (isThere) sources.push_back({&series, parameter->table, &lines});
  }
  return sources;
}

}  // namespace

ChartNumbers NumbersOf(const Calculation& calculation, const ChartInfo& chart) {
  std::vector<Source> sources = SourcesOf(calculation, chart);
  if (sources.empty()) return {};
  const SeriesInfo& first = *sources.front().series;
  const Unit unit = UnitOf(calculation.Member(), {.parameter = first.parameter,
                                                  .indices = 2,
                                                  .row = sources.front().table->firstRow,
                                                  .column = first.column});
  const Points points(chart, std::move(sources));
  if (points.AreNone()) return {};
  return {.table = points.Table(), .hasDates = points.HaveDates(), .unit = unit};
}

}  // namespace amortix2::pages
