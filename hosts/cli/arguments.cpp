#include "amortix2/cli/arguments.h"

#include <utility>

#include "amortix2/json/request_error.h"
#include "amortix2/json/variant_reader.h"

namespace amortix2::cli {
namespace {

bool IsUtf8(const json::Tree& text) {
  try {
    static_cast<void>(text.dump());
    return true;
  } catch (const json::Tree::type_error&) {
    return false;
  }
}

}  // namespace

json::Tree ReadValue(const std::string& value) {
  auto [tree, badByte] = json::ParseTree(value);
  if (tree) return std::move(*tree);
  if (json::ParseIsoDate(value)) return {{"type", "Date"}, {"value", value}};
  if (value.starts_with('[') || value.starts_with('{')) {
    throw json::RequestError(json::Quoted(value) + " is no JSON: byte " + std::to_string(badByte) +
                             " does not fit");
  }
  json::Tree text(value);
  if (!IsUtf8(text)) throw json::RequestError("a value is no UTF-8 text");
  return text;
}

json::Fields ReadArguments(const std::vector<std::string>& arguments) {
  json::Fields fields;
  fields.reserve(arguments.size());
  for (const std::string& argument : arguments) {
    const std::size_t equals = argument.find('=');
    if (equals == 0 || equals == std::string::npos) {
      throw json::RequestError(json::Quoted(argument) + " is no NAME=VALUE");
    }
    fields.emplace_back(argument.substr(0, equals), ReadValue(argument.substr(equals + 1)));
  }
  return fields;
}

}  // namespace amortix2::cli
