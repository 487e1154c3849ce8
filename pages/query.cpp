#include "amortix2/pages/query.h"

#include <algorithm>
#include <cstdint>

#include "amortix2/automation/text_scanner.h"
#include "amortix2/json/tree.h"

namespace amortix2::pages {
namespace {

constexpr std::string_view kHexDigits = "0123456789ABCDEF";

int HexDigit(char c) {
  if (c >= 'a' && c <= 'f') c = static_cast<char>(c - 'a' + 'A');
  const std::size_t digit = kHexDigits.find(c);
  return digit == std::string_view::npos ? -1 : static_cast<int>(digit);
}

std::optional<std::string> Decode(std::string_view text) {
  std::string decoded;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '+') {
      decoded += ' ';
    } else if (text[i] != '%') {
      decoded += text[i];
    } else {
      const int high = i + 2 < text.size() ? HexDigit(text[i + 1]) : -1;
      const int low = high < 0 ? -1 : HexDigit(text[i + 2]);
      if (low < 0) return std::nullopt;
      decoded += static_cast<char>(high * 16 + low);
      i += 2;
    }
  }
  return decoded;
}

void AppendEncoded(std::string& out, std::string_view text) {
  constexpr std::string_view kPlain = "-._~";
  for (const char c : text) {
    if (IsLetter(c) || IsDigit(c) || kPlain.find(c) != std::string_view::npos) {
      out += c;
    } else {
      const auto byte = static_cast<std::uint8_t>(c);
      out += {'%', kHexDigits[byte >> 4], kHexDigits[byte & 15]};
    }
  }
}

bool IsControl(char c) { return (c >= 0 && c < ' ' && c != '\t' && c != '\n' && c != '\r') || c == '\x7f'; }

bool IsText(std::string_view text) { return std::ranges::none_of(text, IsControl) && json::IsUtf8(text); }

}  // namespace

std::optional<Query> Query::Read(std::string_view text) {
  Query query;
  while (!text.empty()) {
    const std::size_t end = text.find('&');
    const std::string_view field = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (field.empty()) continue;
    const std::size_t equals = field.find('=');
    auto name = Decode(field.substr(0, equals));
    auto value = Decode(equals == std::string_view::npos ? std::string_view{} : field.substr(equals + 1));
    if (!name || !value || !IsText(*name) || !IsText(*value)) return std::nullopt;
    query.fields_.push_back({std::move(*name), std::move(*value)});
  }
  return query;
}

const std::string* Query::Find(std::string_view name) const noexcept {
  const auto field = std::ranges::find(fields_, name, &Field::name);
  return field == fields_.end() ? nullptr : &field->value;
}

std::string_view Query::Get(std::string_view name) const noexcept {
  const std::string* value = Find(name);
  return value ? std::string_view(*value) : std::string_view{};
}

std::vector<std::string_view> Query::All(std::string_view name) const {
  std::vector<std::string_view> values;
  for (const Field& field : fields_) {
    if (field.name == name) values.push_back(field.value);
  }
  return values;
}

void Query::Append(std::string_view name, std::string_view value) {
  fields_.push_back({std::string(name), std::string(value)});
}

void Query::Set(std::string_view name, std::string_view value) {
  const auto first = std::ranges::find(fields_, name, &Field::name);
  if (first == fields_.end()) {
    fields_.push_back({std::string(name), std::string(value)});
    return;
  }
  first->value = value;
  fields_.erase(
      std::remove_if(first + 1, fields_.end(), [&](const Field& field) { return field.name == name; }),
      fields_.end());
}

void Query::Remove(std::string_view name) {
  std::erase_if(fields_, [&](const Field& field) { return field.name == name; });
}

std::string Query::Text() const {
  std::string text;
  for (const auto& [name, value] : fields_) {
    if (!text.empty()) text += '&';
    AppendEncoded(text, name);
    text += '=';
    AppendEncoded(text, value);
  }
  return text;
}

}  // namespace amortix2::pages
