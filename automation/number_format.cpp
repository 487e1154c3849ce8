#include "amortix2/automation/number_format.h"

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/decimal.h"
#include "amortix2/automation/pattern_reader.h"

namespace amortix2 {

NumberPattern::NumberPattern(std::string_view pattern) {
  PatternReader reader(pattern);
  for (PatternSection& section : sections_) section = PatternSection(reader);
}

void NumberPattern::AppendTo(std::string& text, double value) const {
  const auto& [positive, negative, zero] = sections_;
  const PatternSection& own = value < 0 ? negative : value == 0 ? zero : positive;
  const PatternSection& section = own.IsEmpty() ? positive : own;
  if (section.IsEmpty()) {
    text += NumberText(value);
    return;
  }
  const Decimal magnitude(value);
  if (value < 0 && own.IsEmpty()) text += '-';
  section.AppendTo(text, magnitude);
}

std::string NumberPattern::Format(double value) const {
  std::string text;
  AppendTo(text, value);
  return text;
}

std::string NumberPattern::FormatFigure(double value) const {
  std::string text = Format(value);
  if (text.ends_with('.')) text.pop_back();
  DropMinusOfZero(text);
  return text;
}

void DropMinusOfZero(std::string& number) {
  if (number.starts_with('-') && number.find_first_of("123456789") == std::string::npos) number.erase(0, 1);
}

}  // namespace amortix2
