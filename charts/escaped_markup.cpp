#include "amortix2/charts/escaped_markup.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <utility>

#include "amortix2/charts/text_width.h"

namespace amortix2 {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

bool IsXmlCharacter(char32_t c) {
  if (c < 0x20) return c == '\t' || c == '\n' || c == '\r';
  return c != 0x7F && !(c >= 0x80 && c <= 0x9F) && (c & 0xFFFE) != 0xFFFE;
}

std::string_view Entity(char c) {
  switch (c) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    case '\'':
      return "&#39;";
    default:
      return {};
  }
}

/// Characters that stand for themselves, one byte each: nearly all of a page's.
bool IsPlain(char c) { return c >= ' ' && c < '\x7F' && Entity(c).empty(); }

}  // namespace

void AppendNumber(std::string& out, double number) {
  constexpr double kLargest = 1e12;
  const auto hundredths = std::llround(std::clamp(number, -kLargest, kLargest) * 100);
  const auto size = static_cast<std::uint64_t>(std::abs(hundredths));
  if (hundredths < 0) out += '-';
  char digits[20];
  out.append(digits, std::to_chars(std::begin(digits), std::end(digits), size / 100).ptr);
  const auto rest = static_cast<char>(size % 100);
  if (rest == 0) return;
  out += '.';
  out += static_cast<char>('0' + rest / 10);
  if (rest % 10 != 0) out += static_cast<char>('0' + rest % 10);
}

void AppendEscaped(std::string& out, std::string_view text) {
  for (;;) {
    const auto plain = std::ranges::find_if_not(text, IsPlain) - text.begin();
    out += text.substr(0, static_cast<std::size_t>(plain));
    text.remove_prefix(static_cast<std::size_t>(plain));
    if (text.empty()) return;
    const CodePoint point = FirstCodePoint(text);
    const std::string_view bytes = text.substr(0, point.length);
    const std::string_view entity = Entity(text.front());
    if (!entity.empty()) {
      out += entity;
    } else {
      out += IsXmlCharacter(point.value) ? point.isValid ? bytes : kReplacement : kReplacement;
    }
    text.remove_prefix(point.length);
  }
}

void Attribute::AppendTo(std::string& out) const {
  if (name_.empty()) return;
  ((out += ' ') += name_) += "=\"";
  if (isNumber_) {
    AppendNumber(out, number_);
  } else {
    AppendEscaped(out, text_);
  }
  out += '"';
}

void EscapedMarkup::Start(std::string_view element, Attributes attributes) {
  (out_ += '<') += element;
  for (const Attribute& attribute : attributes) attribute.AppendTo(out_);
}

void EscapedMarkup::Open(std::string_view element, Attributes attributes) {
  Start(element, attributes);
  out_ += '>';
  open_.push_back(element);
}

void EscapedMarkup::Close() {
  ((out_ += "</") += open_.back()) += '>';
  open_.pop_back();
}

void EscapedMarkup::Leaf(std::string_view element, Attributes attributes) {
  Start(element, attributes);
  out_ += "/>";
}

void EscapedMarkup::TextElement(std::string_view element, Attributes attributes, std::string_view text) {
  Open(element, attributes);
  Text(text);
  Close();
}

std::string EscapedMarkup::Finish() {
  while (!open_.empty()) Close();
  return std::exchange(out_, {});
}

}  // namespace amortix2
