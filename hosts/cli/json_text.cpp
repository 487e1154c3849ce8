#include "amortix2/cli/json_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>

#include "amortix2/automation/checked.h"

namespace amortix2::cli {
namespace {

bool NeedsNoEscape(char c) noexcept { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; }

template <class Number, class... Format>
void AppendDigits(std::string& out, Number value, Format... format) {
  std::array<char, 64> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, format...).ptr;
  out.append(digits.data(), end);
}

}  // namespace

void AppendText(std::string& out, std::string_view text) {
  if (std::ranges::all_of(text, NeedsNoEscape)) {
    out += '"';
    out += text;
    out += '"';
  } else {
    out += nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
  }
}

bool IsUtf8(std::string_view text) {
  if (std::ranges::all_of(text, NeedsNoEscape)) return true;
  try {
    static_cast<void>(nlohmann::json(text).dump());
    return true;
  } catch (const nlohmann::json::type_error&) {
    return false;
  }
}

void AppendNumber(std::string& out, double value) {
  const double size = std::abs(Finite(value));
  if (size == 0) {
    out += std::signbit(value) ? "-0.0" : "0";
  } else if (size >= 1e-4 && size < 1e16) {
    AppendDigits(out, value, std::chars_format::fixed);
  } else {
    AppendDigits(out, value, std::chars_format::scientific);
  }
}

void AppendNumber(std::string& out, std::int64_t value) { AppendDigits(out, value); }

void AppendJson(std::string& out, const Json& value) {
  if (const bool* boolean = value.Boolean()) {
    out += *boolean ? "true" : "false";
  } else if (const std::int64_t* integer = value.Integer()) {
    AppendNumber(out, *integer);
  } else if (const double* decimal = value.Decimal()) {
    AppendNumber(out, *decimal);
  } else if (const std::string* text = value.Text()) {
    AppendText(out, *text);
  } else if (const Json::Items* items = value.Array()) {
    out += '[';
    AppendSeparated(out, *items, [&](const Json& item) { AppendJson(out, item); });
    out += ']';
  } else if (const Json::Fields* fields = value.Object()) {
    out += '{';
    AppendSeparated(out, *fields, [&](const Json::Field& field) {
      AppendText(out, field.name);
      out += ':';
      AppendJson(out, field.value);
    });
    out += '}';
  } else {
    out += "null";
  }
}

}  // namespace amortix2::cli
