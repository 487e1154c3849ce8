#include "amortix2/pages/pasted_table.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "amortix2/automation/array.h"
#include "amortix2/automation/conversion.h"
#include "amortix2/automation/text_scanner.h"
#include "amortix2/json/csv.h"
#include "amortix2/json/request_error.h"

namespace amortix2::pages {
namespace {

using Cells = std::vector<std::string>;

/// Lines that are not blank. Blanks around columns of text are not part of them; tabs stand for cells.
std::vector<std::string_view> LinesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (!Trimmed(line).empty()) lines.push_back(line);
  }
  return lines;
}

Cells Split(std::string_view line, std::string_view separator) {
  Cells cells;
  for (;;) {
    const std::size_t end = line.find(separator);
    cells.emplace_back(Trimmed(line.substr(0, end)));
    if (end == std::string_view::npos) return cells;
    line.remove_prefix(end + separator.size());
    // Columns of text stand as many blanks apart as they need.
    while (separator.front() == ' ' && line.starts_with(' ')) line.remove_prefix(1);
  }
}

std::vector<Cells> CellsOf(std::string_view text) {
  const auto lines = LinesOf(text);
  const auto has = [&](std::string_view separator) {
    return std::ranges::any_of(lines, [&](std::string_view line) {
      return Trimmed(line).find(separator) != std::string_view::npos;
    });
  };
  constexpr std::string_view kSeparators[] = {"\t", ";", "  ", ",", " "};
  const auto separator = std::ranges::find_if(kSeparators, has);
  if (separator != std::end(kSeparators) && *separator == ",") return json::ParseCsv(text);
  std::vector<Cells> rows;
  for (const std::string_view line : lines) {
    if (separator == std::end(kSeparators)) {
      rows.push_back({std::string(Trimmed(line))});
    } else {
      rows.push_back(Split(*separator == "\t" ? line : Trimmed(line), *separator));
    }
  }
  return rows;
}

std::optional<double> NumberIn(std::string_view cell) {
  cell = Trimmed(cell);
  if (cell.ends_with('%')) cell = Trimmed(cell.substr(0, cell.size() - 1));
  return cell.empty() ? std::nullopt : ParseNumber(cell);
}

bool IsText(const std::string& cell) { return !Trimmed(cell).empty() && !NumberIn(cell); }

/// The table with its labels and names, from cells of which no line is longer than `width`.
Variant TableOf(const std::vector<Cells>& cells, std::size_t width) {
  const std::size_t labels = width > 1 ? 1 : 0;
  const bool hasNames =
      std::any_of(cells.front().begin() + static_cast<std::ptrdiff_t>(std::min(labels, cells.front().size())),
                  cells.front().end(), IsText);
  const std::size_t first = hasNames ? 1 : 0;
  Array table({0, static_cast<std::int32_t>(cells.size() - first)},
              {0, static_cast<std::int32_t>(width - labels)});
  const auto at = [&](std::size_t row, std::size_t column) {
    return column < cells[row].size() ? std::string_view(cells[row][column]) : std::string_view();
  };
  const std::string_view corner = hasNames && labels == 1 ? at(0, 0) : std::string_view();
  table.At(0, 0) = NumberIn(corner) ? std::string_view() : corner;  // a number there would mean: no labels
  for (std::size_t column = labels; column < width; ++column) {
    const auto series = static_cast<std::int64_t>(column - labels + 1);
    if (hasNames) table.At(0, series) = at(0, column);
    for (std::size_t row = first; row < cells.size(); ++row) {
      const auto place = static_cast<std::int64_t>(row - first + 1);
      if (const auto number = NumberIn(at(row, column))) table.At(place, series) = *number;
      table.At(place, 0) = labels == 1 ? at(row, 0) : std::string_view(std::to_string(place));
    }
  }
  return table;
}

bool HasNumber(const Array& table) {
  return std::ranges::any_of(table.Cells(),
                             [](const Variant& cell) { return cell.Type() == VariantType::Double; });
}

PastedTable Refused(std::string sentence) { return {{}, std::move(sentence)}; }

}  // namespace

PastedTable ReadPastedTable(std::string_view text) {
  std::vector<Cells> cells;
  const auto failure = json::Try([&] { cells = CellsOf(text); });
  if (failure) return Refused("This table cannot be read: " + failure->message + ".");
  if (cells.empty()) return Refused("Paste a table here: a line for each row, with its label first.");
  std::size_t width = 0;
  for (const Cells& row : cells) width = std::max(width, row.size());
  if (cells.size() > kMostPastedRows + 1 || width > kMostPastedSeries + 1) {
    return Refused("A chart has up to " + std::to_string(kMostPastedRows) + " rows and " +
                   std::to_string(kMostPastedSeries) + " series; this table is larger.");
  }
  PastedTable table{TableOf(cells, width)};
  if (!HasNumber(table.data.GetArray())) return Refused("There is no number in this table to draw.");
  return table;
}

}  // namespace amortix2::pages
