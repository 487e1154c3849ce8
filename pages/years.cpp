#include "amortix2/pages/years.h"

#include "amortix2/automation/conversion.h"

namespace amortix2::pages {

const HeadingInfo* ColumnHeading(const TableInfo& table, std::int32_t column) {
  const std::int64_t count = std::ssize(table.columns);
  std::int64_t place = std::int64_t{column} - table.firstColumn;
  if (table.repeats && count > 0 && place >= count) place %= count;
  return place >= 0 && place < count ? &table.columns[static_cast<std::size_t>(place)] : nullptr;
}

std::optional<Date> DayOf(const TableInfo& table, const Array& lines, std::int32_t line) {
  const HeadingInfo* heading = ColumnHeading(table, table.firstColumn);
  const bool isThere = lines.Rank() == 2 && lines.Dimension(1).Contains(line) &&
                       lines.Dimension(2).Contains(table.firstColumn);
  if (!isThere || !heading || heading->unit != Unit::Date) return std::nullopt;
  const Variant& cell = lines.At(line, table.firstColumn);
  if (cell.Type() == VariantType::Date) return cell.GetDate();
  return cell.Type() == VariantType::String ? ParseDate(cell.GetString()) : std::nullopt;
}

std::vector<YearOfLines> YearsOf(const TableInfo& table, const Array& lines) {
  std::vector<YearOfLines> years;
  const std::int32_t first = table.firstRow + (table.opensWithRowZero ? 1 : 0);
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
  for (std::int32_t line = year.first; line <= year.last; ++line) {
    sum += NumericOrZero(lines.At(line, column));
  }
  return sum;
}

}  // namespace amortix2::pages
