#pragma once

// Reading SVG pictures in tests: whether one is well formed, and its marks.

#include <regex>
#include <string>
#include <string_view>
#include <vector>

namespace amortix2 {

/// Empty for a well-formed text of elements, attributes in double quotes and entities; else what is wrong.
inline std::string Malformed(const std::string& text) {
  static const std::regex kTag(R"re(<(/?)([a-z]+)((?: [a-zA-Z0-9-]+="[^"<>]*")*)(/?)>)re");
  static const std::regex kEntity(R"(&(amp|lt|gt|quot|#39);)");
  std::vector<std::string> open;
  std::size_t end = 0;
  const auto plain = [&](const std::string& between) {
    const std::string left = std::regex_replace(between, kEntity, "");
    return left.find_first_of("<>&") == std::string::npos;
  };
  for (std::sregex_iterator tag(text.begin(), text.end(), kTag), none; tag != none; ++tag) {
    const auto start = static_cast<std::size_t>(tag->position());
    if (!plain(text.substr(end, start - end)) || !plain((*tag)[3])) return "near " + text.substr(end, 200);
    end = start + static_cast<std::size_t>(tag->length());
    if (tag->length(1) != 0) {
      if (open.empty() || open.back() != (*tag)[2]) return "closes " + tag->str();
      open.pop_back();
    } else if (tag->length(4) == 0) {
      open.push_back((*tag)[2]);
    }
  }
  return open.empty() && plain(text.substr(end)) ? "" : "not closed";
}

struct SvgBar {
  double x, y, width, height;
  std::string title;

  double Value() const { return std::stod(title.substr(title.rfind(' '))); }
};

/// The bars of a picture: its rectangles that have titles.
inline std::vector<SvgBar> BarsOf(const std::string& svg) {
  static const std::regex kBar(
      "<rect x=\"([^\"]*)\" y=\"([^\"]*)\" width=\"([^\"]*)\" "
      "height=\"([^\"]*)\"[^>]*><title>([^<]*)</title>");
  std::vector<SvgBar> bars;
  for (std::sregex_iterator bar(svg.begin(), svg.end(), kBar), none; bar != none; ++bar) {
    const auto number = [&](std::size_t group) { return std::stod((*bar)[group]); };
    bars.push_back({number(1), number(2), number(3), number(4), (*bar)[5]});
  }
  return bars;
}

}  // namespace amortix2
