#pragma once

// Names as the compiler spells them, and what all names of a description must keep to.

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace amortix2::describing {

/// The part of a template argument's spelling behind its last "::" or "&".
constexpr std::string_view LastName(std::string_view spelling) {
  const std::size_t start = spelling.find("M = ") + 4;
  const std::size_t end = std::min(spelling.find(';', start), spelling.find(']', start));
  const std::string_view argument = spelling.substr(start, end - start);
  const std::size_t colon = argument.find_last_of(":&");
  return colon == std::string_view::npos ? argument : argument.substr(colon + 1);
}

template <auto M>
constexpr std::string_view NameOf() {
  return LastName(__PRETTY_FUNCTION__);
}

template <class M>
constexpr std::string_view TypeName() {
  return LastName(__PRETTY_FUNCTION__);
}

constexpr char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

constexpr bool Same(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, [](char x, char y) { return Lower(x) == Lower(y); });
}

template <class Items>
constexpr bool AllHelpful(const Items& items) {
  return std::ranges::none_of(items, [](const auto& item) { return item.name.empty() || item.help.empty(); });
}

template <class Items>
constexpr bool AllTitled(const Items& items) {
  return std::ranges::none_of(items, [](const auto& item) { return item.title.empty(); });
}

template <class Items>
constexpr bool AllDistinct(const Items& items) {
  for (std::size_t i = 0; i < items.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      if (Same(items[i].name, items[j].name)) return false;
    }
  }
  return true;
}

}  // namespace amortix2::describing
