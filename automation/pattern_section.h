#pragma once

// One section of a number pattern (automation/number_format.h), ready to write numbers: a row of steps, each
// for as many equal parts of the pattern as stand together. Writing a number costs what is written and not
// the places that stay empty.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "amortix2/automation/decimal.h"
#include "amortix2/automation/pattern_reader.h"

namespace amortix2 {

class PatternSection {
 public:
  /// An empty section.
  PatternSection() = default;

  /// Reads up to the section's end and past it.
  explicit PatternSection(PatternReader& reader);

  /// Does nothing at all stand in the section?
  bool IsEmpty() const noexcept { return isEmpty_; }

  /// Appends `number`, rounded to the section's places, to `text`.
  void AppendTo(std::string& text, Decimal number) const;

 private:
  class Writer;

  enum class StepKind : std::uint8_t {
    Text,            // the next `count` characters of text_
    Digits,          // a row of `count` places
    Minus,           // of the exponent, when it is negative
    Sign,            // of the exponent, always
    ExponentDigits,  // at least `count`
  };

  // Small, since a hostile pattern has a step for every character.
  struct Step {
    StepKind kind;
    std::uint8_t count;
  };
  static constexpr std::uint8_t kMostAtOnce = 255;

  void Add(const Token& token);
  void AddText(std::string_view text);
  void AddPlace(bool isRequired);
  void AddExponent(std::string_view token);
  void AddOne(StepKind kind);

  bool isEmpty_ = true;
  bool behindPoint_ = false;
  bool isGrouped_ = false;
  bool hasExponent_ = false;
  std::int64_t integerPlaces_ = 0;
  std::int64_t requiredIntegers_ = 0;  // from the first required place to the point
  std::int64_t fractionPlaces_ = 0;
  std::int64_t requiredFractions_ = 0;  // from the point to the last required place
  std::int64_t scale_ = 0;              // the power of ten that the number is multiplied by
  std::int64_t commas_ = 0;             // behind the last integer place
  std::string text_;
  std::vector<Step> steps_;
};

}  // namespace amortix2
