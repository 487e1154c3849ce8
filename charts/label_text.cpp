#include "amortix2/charts/label_text.h"

#include <cstddef>

#include "amortix2/charts/text_width.h"

namespace amortix2 {
namespace {

using Tenths = std::int64_t;  // of a pixel, at a font size of ten pixels hundredths of it

constexpr Tenths kReference = 77;  // most stand for a letter
constexpr Tenths kEllipsis = 100;

// A part of a label that is never divided: a character, a character reference, or a tag.
struct Unit {
  std::string_view text;
  Tenths width;
};

// The first unit of a text that is not empty.
Unit FirstUnit(std::string_view text) {
  constexpr std::size_t kLongestReference = 10;
  if (text.front() == '<') {
    const std::size_t end = text.find('>');
    if (end != std::string_view::npos) return {text.substr(0, end + 1), 0};
  }
  if (text.front() == '&') {
    const std::size_t end = text.substr(0, kLongestReference).find(';');
    if (end != std::string_view::npos) return {text.substr(0, end + 1), kReference};
  }
  const CodePoint first = FirstCodePoint(text);
  return {text.substr(0, first.length), CharacterWidth(first.value)};
}

Tenths Width(std::string_view text) {
  Tenths width = 0;
  while (!text.empty()) {
    const Unit unit = FirstUnit(text);
    width += unit.width;
    text.remove_prefix(unit.text.size());
  }
  return width;
}

// Takes what stands in front of the first of `separators`; the separator stays.
std::string_view TakeUpTo(std::string_view& text, std::string_view separators) {
  const std::string_view part = text.substr(0, text.find_first_of(separators));
  text.remove_prefix(part.size());
  return part;
}

// As much of a text as fits; cut, it ends in an ellipsis.
void AppendCut(std::string& out, std::string_view text, Tenths room) {
  if (Width(text) <= room) {
    out += text;
    return;
  }
  for (room -= kEllipsis; !text.empty();) {
    const Unit unit = FirstUnit(text);
    if (unit.width > room) break;
    room -= unit.width;
    out += unit.text;
    text.remove_prefix(unit.text.size());
  }
  out += "&hellip;";
}

// A word in lines, each of as many parts as fit with the separators between them.
void AppendInLines(std::string& out, std::string_view word, Tenths room) {
  constexpr std::string_view kSeparators = "-/";
  Tenths used = 0;
  std::string_view separator;
  while (true) {
    const std::string_view part = TakeUpTo(word, kSeparators);
    const Tenths width = Width(separator) + Width(part);
    if (used > 0 && used + width > room) {
      out += "<BR>";
      used = 0;
    } else {
      out += separator;
    }
    AppendCut(out, part, room);
    used += width;
    if (word.empty()) return;
    separator = word.substr(0, 1);
    word.remove_prefix(1);
  }
}

}  // namespace

std::int64_t LabelWidth(std::string_view label) { return (Width(label) + 9) / 10; }

std::string FittedLabel(std::string_view label, std::int64_t width) {
  constexpr std::int64_t kNarrowest = 24;
  constexpr Tenths kBeyond = 40;  // two pixels on either side, which the margins let the text have
  if (width < kNarrowest || LabelWidth(label) <= width ||
      label.find_first_of("<\"") != std::string_view::npos) {
    return std::string(label);
  }
  std::string fitted;
  fitted.reserve(64 + 2 * label.size());
  fitted.append("<DIV STYLE=\"margin:0 -2px\" TITLE=\"").append(label).append("\">");
  bool fits = true;
  for (std::string_view rest = label; !rest.empty();) {
    const std::string_view word = TakeUpTo(rest, " ");
    if (Width(word) <= 10 * width) {
      fitted += word;
    } else {
      AppendInLines(fitted, word, 10 * width + kBeyond);
      fits = false;
    }
    const std::string_view blanks = rest.substr(0, rest.find_first_not_of(' '));
    fitted += blanks;
    rest.remove_prefix(blanks.size());
  }
  return fits ? std::string(label) : fitted.append("</DIV>");
}

}  // namespace amortix2
