#include "amortix2/strategy/ansi_code.h"

#include <gtest/gtest.h>

#include <utility>

namespace amortix2 {
namespace {

TEST(AnsiCode, IsThatOfCodePage1252) {
  const std::pair<const char*, int> rows[] = {{"€", 0x80}, {"Ÿ", 0x9F}, {"™x", 0x99}, {"\u00A0", 0xA0},
                                              {"ÿ", 0xFF}, {"Ā", '?'},  {"😀", '?'},   {"\xE2", '?'}};
  for (const auto& [text, code] : rows) EXPECT_EQ(FirstAnsiCode(text), code) << text;
}

}  // namespace
}  // namespace amortix2
