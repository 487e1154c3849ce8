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

}  // namespace amortix2
