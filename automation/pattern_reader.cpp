#include "amortix2/automation/pattern_reader.h"

#include <algorithm>

namespace amortix2 {

Token PatternReader::Next() noexcept {
  Token token = TakeWhateverItMeans();
  const bool isStray = (token.kind == TokenKind::Comma && (!behindPlace_ || behindPoint_)) ||
                       (token.kind == TokenKind::Point && behindPoint_);
  if (isStray) token.kind = TokenKind::Literal;
  behindPoint_ = token.kind != TokenKind::SectionEnd && (behindPoint_ || token.kind == TokenKind::Point);
  behindPlace_ = token.IsPlace() || token.kind == TokenKind::Comma;
  return token;
}

Token PatternReader::TakeWhateverItMeans() noexcept {
  switch (rest_.front()) {
    case '#':
      return Take(TokenKind::OptionalDigit, 1);
    case '0':
      return Take(TokenKind::RequiredDigit, 1);
    case '.':
      return Take(TokenKind::Point, 1);
    case ',':
      return Take(TokenKind::Comma, 1);
    case '%':
      return Take(TokenKind::Percent, 1);
    case ';':
      return Take(TokenKind::SectionEnd, 1);
    case '"':
      return TakeQuoted();
    case '\\':
      rest_.remove_prefix(1);
      return Take(TokenKind::Literal, 1);
    default:
      if (const std::size_t length = ExponentLength()) return Take(TokenKind::Exponent, length);
      return Take(TokenKind::Literal, 1);
  }
}

Token PatternReader::Take(TokenKind kind, std::size_t length) noexcept {
  const Token token{kind, rest_.substr(0, length)};
  rest_.remove_prefix(token.text.size());
  return token;
}

Token PatternReader::TakeQuoted() noexcept {
  rest_.remove_prefix(1);
  const std::size_t length = std::min(rest_.find('"'), rest_.size());
  const Token token = Take(TokenKind::Literal, length);
  if (!rest_.empty()) rest_.remove_prefix(1);
  return token;
}

std::size_t PatternReader::ExponentLength() const noexcept {
  const bool isExponent = rest_.size() > 2 && (rest_[0] == 'E' || rest_[0] == 'e') &&
                          (rest_[1] == '+' || rest_[1] == '-') && (rest_[2] == '0' || rest_[2] == '#');
  return isExponent ? std::min(rest_.find_first_not_of("0#", 2), rest_.size()) : 0;
}

}  // namespace amortix2
