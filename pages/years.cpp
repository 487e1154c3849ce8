#include "amortix2/pages/years.h"

#include "amortix2/automation/conversion.h"
#include "amortix2/component/call_values.h"

namespace amortix2::pages {

const HeadingInfo* ColumnHeading(const TableInfo& table, std::int32_t column) {
  const std::int64_t count = std::ssize(table.columns);
  const std::int64_t place = std::int64_t{column} - table.firstColumn;
  return place >= 0 && place < count ? &table.columns[static_cast<std::size_t>(place)] : nullptr;
}

std::optional<Date> DayOf(const TableInfo& table, const Array& lines, std::int32_t line) {
  if (lines.Rank() != 2 || !lines.Dimension(1).Contains(line)) return std::nullopt;
  for (std::int32_t column = table.firstColumn; column <= lines.Dimension(2).upper; ++column) {
    const HeadingInfo* heading = ColumnHeading(table, column);
    if (!heading || heading->unit != Unit::Date || !lines.Dimension(2).Contains(column)) continue;
    const Variant& cell = lines.At(line, column);
    if (cell.Type() == VariantType::Date) return cell.GetDate();
    const auto day = cell.Type() == VariantType::String ? ParseDate(cell.GetString()) : std::nullopt;
    if (day) return day;
  }
  return std::nullopt;
}

std::vector<YearOfLines> YearsOf(const TableInfo& table, const Array& lines) {
  std::vector<YearOfLines> years;
  const std::int32_t first = table.firstRow + (table.isSchedule ? 1 : 0);
  for (std::int32_t line = first; line <= lines.Dimension(1).upper; ++line) {
    const auto day = DayOf(table, lines, line);
    if (!day) continue;
    const int year = ToCivil(*day).year;
    if (years.empty() || years.back().year != year) years.push_back({year, line, line, *day});
    years.back().last = line;
    years.back().end = *day;
  }
  return years;
}

Variant CellOfYear(const TableInfo& table, const Array& lines, const YearOfLines& year, std::int32_t column) {
  const HeadingInfo* heading = ColumnHeading(table, column);
  if (!heading || heading->yearly == Yearly::Nothing) return {};
  if (heading->yearly == Yearly::Last) return lines.At(year.last, column);
  double sum = 0;
  bool isGiven = false;
  for (std::int32_t line = year.first; line <= year.last; ++line) {
    isGiven = isGiven || IsGiven(lines.At(line, column));
    sum += NumericOrZero(lines.At(line, column));
  }
  return isGiven ? Variant(sum) : Variant();
}

}  // namespace amortix2::pages
