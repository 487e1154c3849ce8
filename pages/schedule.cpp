#include "amortix2/pages/schedule.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "amortix2/automation/conversion.h"
#include "amortix2/json/result_table.h"
#include "amortix2/pages/figure_text.h"
#include "amortix2/pages/years.h"

namespace amortix2::pages {
namespace {

/// Of a schedule's lines on a page: the payments of each day for 25 years, and a megabyte or two of markup.
constexpr std::int64_t kMostCells = 60000;
constexpr std::int64_t kCellsOfYear = 20;  // as much markup as a year's own table takes beside its cells

/// A schedule with its titles.
struct Schedule {
  const TableInfo& info;
  const Array& lines;
  json::ResultTable table;

  std::int32_t Index(std::size_t column) const {
    return info.firstColumn + static_cast<std::int32_t>(column);
  }
  const HeadingInfo& HeadingOf(std::size_t column) const {
    static constexpr HeadingInfo kNone;
    const HeadingInfo* heading = ColumnHeading(info, Index(column));
    return heading ? *heading : kNone;
  }
};

/// A column of a schedule as it is shown: one of the table's, or the running sum of one.
struct ShownColumn {
  std::size_t column;
  bool isRunning;
  std::string title;
};

std::vector<ShownColumn> ShownColumns(const Schedule& schedule) {
  std::vector<ShownColumn> shown;
  const auto& titles = schedule.table.columns;
  for (std::size_t column = 0; column < titles.size(); ++column) {
    shown.push_back({column, false, titles[column]});
    if (schedule.HeadingOf(column).runs) shown.push_back({column, true, titles[column] + " so far"});
  }
  return shown;
}

/// The rows of a schedule's tables, one after the other from the first line on.
class ScheduleRows {
 public:
  ScheduleRows(EscapedMarkup& out, const Schedule& schedule)
      : out_(out), schedule_(schedule), columns_(ShownColumns(schedule)), sums_(columns_.size()) {}

  /// By year the date's column is the year's heading.
  void Head(bool byYear) {
    out_.Open("thead");
    out_.Open("tr");
    if (byYear) out_.TextElement("th", {{"scope", "col"}}, "Year");
    for (const ShownColumn& shown : columns_) {
      if (byYear && IsLeftOut(shown)) continue;
      out_.TextElement("th", {{"scope", "col"}}, shown.title);
    }
    out_.Close();
    out_.Close();
  }

  void YearRow(const YearOfLines& year) {
    out_.Open("tr");
    out_.TextElement("th", {{"scope", "row"}}, std::to_string(year.year));
    for (const ShownColumn& shown : columns_) {
      if (!IsLeftOut(shown))
        Cell(shown, CellOfYear(schedule_.info, schedule_.lines, year, schedule_.Index(shown.column)));
    }
    out_.Close();
  }

  void Line(std::int64_t row) {
    out_.Open("tr");
    for (const ShownColumn& shown : columns_) {
      const Variant value = schedule_.table.cell(row, shown.column);
      if (shown.column == 0) {
        out_.TextElement("th", {{"scope", "row"}}, CellText(value, schedule_.HeadingOf(0).unit));
      } else {
        Cell(shown, value);
      }
    }
    out_.Close();
  }

 private:
  bool IsLeftOut(const ShownColumn& shown) const {
    const HeadingInfo& heading = schedule_.HeadingOf(shown.column);
    return heading.unit == Unit::Date || heading.yearly == Yearly::Nothing;
  }

  void Cell(const ShownColumn& shown, const Variant& value) {
    if (!shown.isRunning) {
      sums_[shown.column] += NumericOrZero(value);
      return out_.TextElement("td", {}, CellText(value, schedule_.HeadingOf(shown.column).unit));
    }
    out_.TextElement("td", {},
                     CellText(Variant(sums_[shown.column]), schedule_.HeadingOf(shown.column).unit));
  }

  EscapedMarkup& out_;
  const Schedule& schedule_;
  std::vector<ShownColumn> columns_;
  std::vector<double> sums_;  // of each column down to the row that is written
};

void AppendMonths(EscapedMarkup& out, const std::string& title, const Schedule& schedule,
                  const std::vector<YearOfLines>& years) {
  out.Open("div", {{"class", "years"}});
  ScheduleRows rows(out, schedule);
  for (const YearOfLines& year : years) {
    const std::string name = std::to_string(year.year);
    out.Open("details");
    out.TextElement("summary", {}, name);
    std::string caption = title;
    OpenTable(out, caption.append(", the payments of ").append(name));
    rows.Head(false);
    out.Open("tbody");
    for (std::int32_t line = year.first; line <= year.last; ++line) rows.Line(line);
    out.Close();
    CloseTable(out);
    out.Close();
  }
  out.Close();
}

/// `width` columns from one on, moved to where the first schedule stands.
Array ColumnsOf(const Array& array, std::int32_t from, std::int32_t to, std::int32_t width) {
  const Bounds rows = array.Dimension(1);
  Array columns(rows, {to, to + width - 1});
  for (std::int32_t row = rows.lower; row <= rows.upper; ++row) {
    for (std::int32_t i = 0; i < width; ++i) columns.At(row, to + i) = array.At(row, from + i);
  }
  return columns;
}

/// A single schedule, of one of `lines` on the page.
void AppendOneSchedule(EscapedMarkup& out, const Inputs& inputs, const ParameterInfo& parameter,
                       const Array& array, const std::string& title, std::int64_t lines) {
  const Schedule schedule{*parameter.table, array, json::TableOf(inputs, parameter, array)};
  const std::vector<YearOfLines> years = YearsOf(schedule.info, array);
  OpenTable(out, title + " by year");
  ScheduleRows rows(out, schedule);
  rows.Head(true);
  out.Open("tbody");
  for (const YearOfLines& year : years) rows.YearRow(year);
  out.Close();
  CloseTable(out);
  const std::int64_t cells = lines * std::ssize(ShownColumns(schedule));
  const bool fits = cells + kCellsOfYear * std::ssize(years) <= kMostCells;
  out.TextElement("p", {{"class", "hint"}},
                  fits ? "Open a year to see each payment."
                       : "The single payments are too many for a page; the CSV file has them all.");
  if (fits) AppendMonths(out, title, schedule, years);
}

/// The side of a comparison in one grid that is better in a row; nothing where both are equal, and elsewhere.
std::optional<std::size_t> BetterColumn(const MemberInfo& member, const ParameterInfo& parameter,
                                        const json::ResultTable& table, std::int64_t row) {
  const ComparisonInfo* comparison = member.comparison;
  const bool isCompared = comparison && comparison->current.parameter == parameter.name &&
                          comparison->proposed.parameter == parameter.name;
  const std::int64_t place = row - parameter.table->firstRow;
  if (!isCompared || place < 0 || place >= std::ssize(parameter.table->rows)) return std::nullopt;
  const Better better = parameter.table->rows[static_cast<std::size_t>(place)].better;
  const auto column = [&](const SideInfo& side) {
    return static_cast<std::size_t>(side.column - parameter.table->firstColumn);
  };
  const std::size_t sides[] = {column(comparison->current), column(comparison->proposed)};
  const double difference =
      NumericOrZero(table.cell(row, sides[1])) - NumericOrZero(table.cell(row, sides[0]));
  if (better == Better::Neither || difference == 0) return std::nullopt;
  return sides[(difference < 0) == (better == Better::Lower) ? 1 : 0];
}

/// A title of an axis, which is a number, as people read it; of other tables as it is.
std::string AxisText(const AxisInfo* axis, const std::string& title) {
  const auto number = axis ? ParseNumber(title) : std::nullopt;
  return number ? FigureText(Variant(*number), axis->unit) : title;
}

void AppendMark(EscapedMarkup& out) {
  out.Open("span", {{"class", "better"}});
  out.Text("✓");
  out.TextElement("span", {}, " better");
  out.Close();
}

}  // namespace

void OpenTable(EscapedMarkup& out, std::string_view caption) {
  out.Open("div", {{"class", "scroll"}, {"role", "region"}, {"tabindex", "0"}, {"aria-label", caption}});
  out.Open("table");
  out.Open("caption");
  out.TextElement("span", {}, caption);
  out.Close();
}

void CloseTable(EscapedMarkup& out) {
  out.Close();
  out.Close();
}

void AppendSchedule(EscapedMarkup& out, const Inputs& inputs, const ParameterInfo& parameter,
                    const Array& array) {
  const std::int64_t lines = array.Dimension(1).Count();
  if (!parameter.table->repeats) {
    return AppendOneSchedule(out, inputs, parameter, array, std::string(parameter.title), lines);
  }
  TableInfo table = *parameter.table;
  table.repeats = false;
  ParameterInfo one = parameter;
  one.table = &table;
  const auto width = static_cast<std::int32_t>(table.columns.size());
  const std::int64_t count = (std::int64_t{array.Dimension(2).upper} - table.firstColumn + 1) / width;
  for (std::int32_t i = 0; i < count; ++i) {
    const std::string title = std::string(inputs.Member().lists.front().title) + " " + std::to_string(i + 1);
    AppendOneSchedule(out, inputs, one,
                      ColumnsOf(array, table.firstColumn + i * width, table.firstColumn, width), title,
                      count * lines);
  }
}

void AppendGrid(EscapedMarkup& out, const Inputs& inputs, const ParameterInfo& parameter, const Array& array,
                Marks marks) {
  const json::ResultTable table = json::TableOf(inputs, parameter, array);
  OpenTable(out, parameter.title);
  out.Open("thead");
  out.Open("tr");
  const AxisInfo* columns = parameter.table->columnAxis;
  if (parameter.table->rowAxis) {
    out.TextElement("th", {{"scope", "col"}}, table.corner);
  } else if (!table.rowTitles.empty()) {
    out.TextElement("td", {}, {});
  }
  for (const std::string& column : table.columns) {
    out.TextElement("th", {{"scope", "col"}}, AxisText(columns, column));
  }
  out.Close();
  out.Close();
  out.Open("tbody");
  for (std::int64_t row = table.rows.lower; row <= table.rows.upper; ++row) {
    out.Open("tr");
    if (!table.rowTitles.empty()) {
      const std::string& title = table.rowTitles[static_cast<std::size_t>(row - table.rows.lower)];
      out.TextElement("th", {{"scope", "row"}}, AxisText(parameter.table->rowAxis, title));
    }
    std::optional<std::size_t> better;
    if (marks == Marks::Better) better = BetterColumn(inputs.Member(), parameter, table, row);
    for (std::size_t column = 0; column < table.columns.size(); ++column) {
      out.Open("td");
      if (better == column) AppendMark(out);
      out.Text(FigureText(inputs, table.cell(row, column), table.unit(row, column)));
      out.Close();
    }
    out.Close();
  }
  out.Close();
  CloseTable(out);
}

}  // namespace amortix2::pages
