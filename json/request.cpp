#include "amortix2/json/request.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>

#include "amortix2/json/request_error.h"

namespace amortix2::json {
namespace {

const Fields& NamedValues(const Tree* tree, const char* name) {
  static const Fields kNone;
  if (!tree) return kNone;
  const Fields* fields = FieldsOf(*tree);
  if (!fields) throw RequestError(std::string("\"") + name + "\" is an object of names and values");
  return *fields;
}

std::optional<std::vector<std::string_view>> NamesWanted(const Tree* tree) {
  if (!tree) return std::nullopt;
  const Items* items = ItemsOf(*tree);
  const auto isText = [](const Tree& item) { return TextOf(item) != nullptr; };
  if (!items || !std::ranges::all_of(*items, isText)) {
    throw RequestError("\"only\" is an array of the names of results");
  }
  std::vector<std::string_view> names;
  for (const Tree& item : *items) names.push_back(*TextOf(item));
  return names;
}

}  // namespace

Request ReadRequest(const Tree& tree) {
  const Fields* fields = FieldsOf(tree);
  if (!fields) throw RequestError("a request is a JSON object");
  static constexpr std::array<std::string_view, 5> kNames{"id", "call", "args", "with", "only"};
  const Tree* only = FieldNamed(tree, "only");
  std::array<const Tree*, kNames.size()> found{};
  // A request without it is told of the other four, as ever: replies to old requests keep their bytes.
  TakeFields(*fields, "a request", std::span(kNames).first(only ? 5 : 4), found);
  const auto [id, call, arguments, settings, wanted] = found;
  if (!call || !TextOf(*call)) throw RequestError("a request says what to \"call\": \"CLASS.METHOD\"");
  return {*TextOf(*call), NamedValues(arguments, "args"), NamedValues(settings, "with"), NamesWanted(wanted)};
}

}  // namespace amortix2::json
