#include "amortix2/json/json_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "amortix2/automation/error.h"

namespace amortix2::json {
namespace {

bool NeedsNoEscape(char c) noexcept { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; }

template <class Number, class... Format>
void AppendDigits(std::string& out, Number value, Format... format) {
  std::array<char, 64> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, format...).ptr;
  out.append(digits.data(), end);
}

/// Writes whole cents as an amount without needless zeros.
void AppendCents(std::string& out, std::uint64_t cents, bool isNegative) {
  std::array<char, 24> digits;
  char* const end = digits.data() + digits.size();
  char* begin = end;
  const auto put = [&](std::uint64_t digit) { *--begin = static_cast<char>('0' + digit); };
  const std::uint64_t fraction = cents % 100;
  if (fraction % 10 != 0) put(fraction % 10);
  if (fraction != 0) {
    put(fraction / 10);
    *--begin = '.';
  }
  cents /= 100;
  do {
    put(cents % 10);
    cents /= 10;
  } while (cents != 0);
  if (isNegative) *--begin = '-';
  out.append(begin, end);
}

}  // namespace

void AppendText(std::string& out, std::string_view text) {
  if (std::ranges::all_of(text, NeedsNoEscape)) {
    out += '"';
    out += text;
    out += '"';
  } else {
    out += Tree(text).dump(-1, ' ', false, Tree::error_handler_t::replace);
  }
}

void AppendNumber(std::string& out, double value) {
  if (!std::isfinite(value)) Raise(ErrorNumber::Overflow);
  const double size = std::abs(value);
  // Up to fifteen digits, no shorter decimal reads back to the same double.
  constexpr double kFifteenDigits = 1e13;
  constexpr double kNoFraction = 0x1.8p52;  // a sum with it has no room for a fraction
  const double cents = size * 100 + kNoFraction - kNoFraction;
  if (size != 0 && size < kFifteenDigits && cents / 100 == size) {
    AppendCents(out, static_cast<std::uint64_t>(cents), value < 0);
  } else if (size == 0) {
    out += std::signbit(value) ? "-0.0" : "0";
  } else if (size >= 1e-4 && size < 1e16) {
    AppendDigits(out, value, std::chars_format::fixed);
  } else {
    AppendDigits(out, value, std::chars_format::scientific);
  }
}

void AppendNumber(std::string& out, std::int64_t value) { AppendDigits(out, value); }

void AppendBase64(std::string& out, std::span<const std::uint8_t> bytes) {
  constexpr char kDigits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  out += '"';
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    const std::size_t left = bytes.size() - i;
    const unsigned second = left > 1 ? bytes[i + 1] : 0u;
    const unsigned third = left > 2 ? bytes[i + 2] : 0u;
    const unsigned group = bytes[i] * 0x10000u + second * 0x100u + third;
    out += kDigits[group >> 18];
    out += kDigits[group >> 12 & 63];
    out += left > 1 ? kDigits[group >> 6 & 63] : '=';
    out += left > 2 ? kDigits[group & 63] : '=';
  }
  out += '"';
}

void AppendTree(std::string& out, const Tree& tree) {
  if (const std::int64_t* integer = IntegerOf(tree)) {
    AppendNumber(out, *integer);
  } else if (tree.is_number()) {
    AppendNumber(out, tree.get<double>());
  } else if (const std::string* text = TextOf(tree)) {
    AppendText(out, *text);
  } else if (const Items* items = ItemsOf(tree)) {
    out += '[';
    AppendSeparated(out, *items, [&](const Tree& item) { AppendTree(out, item); });
    out += ']';
  } else if (const Fields* fields = FieldsOf(tree)) {
    ObjectWriter object(out);
    for (const auto& [name, value] : *fields) AppendTree(object.Field(name), value);
    object.Close();
  } else {
    out += tree.dump();
  }
}

}  // namespace amortix2::json
