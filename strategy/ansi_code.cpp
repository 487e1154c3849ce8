#include "amortix2/strategy/ansi_code.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace amortix2 {
namespace {

// Codes 0x80 to 0x9F; all others are those of the characters themselves. The five that stand for no printed
// character keep their place.
constexpr int kFirstOwnCode = 0x80;
constexpr std::array<char32_t, 32> kOwnCodes{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

constexpr char32_t kMalformed = 0xFFFD;

char32_t FirstCharacter(std::string_view text) noexcept {
  const auto byte = [&](std::size_t i) { return static_cast<char32_t>(static_cast<unsigned char>(text[i])); };
  const char32_t lead = byte(0);
  if (lead < 0x80) return lead;
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC0 || text.size() < length) return kMalformed;
  char32_t character = lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) character = character << 6 | (byte(i) & 0x3F);
  return character;
}

}  // namespace

int FirstAnsiCode(std::string_view text) noexcept {
  const char32_t character = FirstCharacter(text);
  const auto own = std::ranges::find(kOwnCodes, character);
  if (own != kOwnCodes.end()) return kFirstOwnCode + static_cast<int>(own - kOwnCodes.begin());
  const bool same =
      character < kFirstOwnCode || (character >= kFirstOwnCode + kOwnCodes.size() && character <= 0xFF);
  return same ? static_cast<int>(character) : '?';
}

}  // namespace amortix2
