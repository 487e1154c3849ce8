#include "amortix2/json/request.h"

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

}  // namespace

Request ReadRequest(const Tree& tree) {
  const Fields* fields = FieldsOf(tree);
  if (!fields) throw RequestError("a request is a JSON object");
  const auto [id, call, arguments, settings] =
      TakeFields(*fields, "a request", {"id", "call", "args", "with"});
  if (!call || !TextOf(*call)) throw RequestError("a request says what to \"call\": \"CLASS.METHOD\"");
  return {*TextOf(*call), NamedValues(arguments, "args"), NamedValues(settings, "with")};
}

}  // namespace amortix2::json
