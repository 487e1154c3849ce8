#include "amortix2/cli/value_lines.h"

#include <algorithm>

#include "amortix2/cli/text_table.h"

namespace amortix2::cli {
namespace {

/// What stands in parentheses behind the help: the unit, or the name that a code has.
std::string_view Note(const Line& line) {
  if (line.enumeration) {
    const auto constant =
        std::ranges::find(line.enumeration->constants, line.value.GetLong(), &ConstantInfo::value);
    return constant == line.enumeration->constants.end() ? std::string_view{} : constant->name;
  }
  const bool plain = line.unit == Unit::Text || line.unit == Unit::Currency || line.unit == Unit::Date;
  return plain ? std::string_view{} : UnitName(line.unit);
}

std::string About(const Line& line) {
  std::string about(line.help);
  if (const auto note = Note(line); !note.empty()) about.append(" (").append(note).append(")");
  return about;
}

std::string ValueText(const Line& line) {
  const bool money = line.unit == Unit::Currency || line.unit == Unit::MonthlyCurrency;
  return PlainText(line.value, money ? 2 : 0);
}

}  // namespace

void AppendLines(std::string& out, const std::vector<Line>& lines) {
  std::size_t nameWidth = 0;
  std::size_t valueWidth = 0;
  for (const Line& line : lines) {
    nameWidth = std::max(nameWidth, line.name.size());
    if (line.value.Type() != VariantType::String) valueWidth = std::max(valueWidth, ValueText(line).size());
  }
  for (const Line& line : lines) {
    const std::string value = ValueText(line);
    out.append(line.name).append(nameWidth - line.name.size() + 2, ' ');
    if (line.value.Type() == VariantType::String) {
      out += value;
    } else {
      out.append(valueWidth - value.size(), ' ').append(value).append("  ").append(About(line));
    }
    out.erase(out.find_last_not_of(' ') + 1);
    out += '\n';
  }
}

}  // namespace amortix2::cli
