#include "amortix2/automation/pattern_section.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

// Every place stands for a power of ten, the last one in front of the point for 10 to the 0. The first row of
// places in front of the point also takes the higher digits, which have no place of their own; a point
// without such places has an empty row in front of it. Which digits a row writes then follows from three
// limits: its own places, the highest digit of the number, and the lowest that is required or not zero.

namespace amortix2 {

PatternSection::PatternSection(PatternReader& reader) {
  constexpr int kThousand = 3;
  while (!reader.AtEnd()) {
    const Token token = reader.Next();
    if (token.kind == TokenKind::SectionEnd) break;
    Add(token);
    isEmpty_ = false;
  }
  scale_ -= kThousand * commas_;
}

void PatternSection::Add(const Token& token) {
  constexpr int kPercent = 2;
  switch (token.kind) {
    case TokenKind::OptionalDigit:
    case TokenKind::RequiredDigit:
      return AddPlace(token.kind == TokenKind::RequiredDigit);
    case TokenKind::Comma:
      ++commas_;
      return;
    case TokenKind::Exponent:
      return AddExponent(token.text);
    case TokenKind::Point:
      if (integerPlaces_ == 0) steps_.push_back({StepKind::Digits, 0});
      behindPoint_ = true;
      break;
    case TokenKind::Percent:
      scale_ += kPercent;
      break;
    default:
      break;
  }
  AddText(token.text);
}

void PatternSection::AddText(std::string_view text) {
  text_ += text;
  for (std::size_t i = 0; i < text.size(); ++i) AddOne(StepKind::Text);
}

void PatternSection::AddPlace(bool isRequired) {
  if (behindPoint_) {
    ++fractionPlaces_;
    if (isRequired) requiredFractions_ = fractionPlaces_;
  } else {
    ++integerPlaces_;
    if (isRequired || requiredIntegers_ > 0) ++requiredIntegers_;
    isGrouped_ = isGrouped_ || commas_ > 0;
    commas_ = 0;
  }
  AddOne(StepKind::Digits);
}

void PatternSection::AddExponent(std::string_view token) {
  hasExponent_ = true;
  AddText(token.substr(0, 1));
  steps_.push_back({token[1] == '+' ? StepKind::Sign : StepKind::Minus, 1});
  auto required = std::ranges::count(token, '0');
  for (; required > kMostAtOnce; --required) AddText("0");  // no exponent is as long as that
  steps_.push_back({StepKind::ExponentDigits, static_cast<std::uint8_t>(required)});
}

void PatternSection::AddOne(StepKind kind) {
  const bool continues = !steps_.empty() && steps_.back().kind == kind && steps_.back().count < kMostAtOnce;
  if (!continues) steps_.push_back({kind, 0});
  ++steps_.back().count;
}

// Where the writing of one number stands.
class PatternSection::Writer {
 public:
  Writer(const PatternSection& section, const Decimal& number, std::int64_t exponent, std::string& out)
      : section_(section),
        number_(number),
        exponent_(exponent),
        highest_(std::max(number.IntegerDigits(), section.requiredIntegers_) - 1),
        lowest_(std::min(number.LowestPower(), -section.requiredFractions_)),
        end_(section.integerPlaces_),
        out_(out) {}

  void Write(Step step) {
    switch (step.kind) {
      case StepKind::Text:
        out_.append(section_.text_, textAt_, step.count);
        textAt_ += step.count;
        return;
      case StepKind::Digits:
        return WriteRow(step.count);
      case StepKind::Minus:
      case StepKind::Sign:
        if (exponent_ < 0) {
          out_ += '-';
        } else if (step.kind == StepKind::Sign) {
          out_ += '+';
        }
        return;
      case StepKind::ExponentDigits:
        return WriteExponent(step.count);
    }
  }

 private:
  void WriteRow(std::int64_t places) {
    end_ -= places;
    for (std::int64_t power = std::min(top_, highest_); power >= std::max(end_, lowest_); --power) {
      out_ += number_.DigitAt(power);
      if (section_.isGrouped_ && power > 0 && power % 3 == 0) out_ += ',';
    }
    top_ = end_ - 1;
  }

  void WriteExponent(std::size_t required) {
    const std::string digits = std::to_string(std::abs(exponent_));
    if (digits.size() < required) out_.append(required - digits.size(), '0');
    out_ += digits;
  }

  const PatternSection& section_;
  const Decimal& number_;
  std::int64_t exponent_;
  std::int64_t highest_;  // powers of the digits that may be written
  std::int64_t lowest_;
  std::int64_t top_ = std::numeric_limits<std::int64_t>::max();  // of the next row's places
  std::int64_t end_;                                             // the last row's lowest place
  std::size_t textAt_ = 0;
  std::string& out_;
};

void PatternSection::AppendTo(std::string& text, Decimal number) const {
  number.Scale(scale_);
  std::int64_t exponent = 0;
  if (hasExponent_) {
    number.RoundTo(number.IntegerDigits() - integerPlaces_ - fractionPlaces_);
    if (!number.IsZero()) exponent = number.IntegerDigits() - integerPlaces_;
    number.Scale(-exponent);
  } else {
    number.RoundTo(-fractionPlaces_);
  }
  Writer writer(*this, number, exponent, text);
  for (const Step step : steps_) writer.Write(step);
}

}  // namespace amortix2
