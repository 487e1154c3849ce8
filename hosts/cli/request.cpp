#include "amortix2/cli/request.h"

#include <algorithm>
#include <string>

#include "amortix2/cli/json_fields.h"
#include "amortix2/cli/request_error.h"

namespace amortix2::cli {
namespace {

const Json::Fields& FieldsOf(const Json* json, const char* name) {
  static const Json::Fields kNone;
  if (!json) return kNone;
  const Json::Fields* fields = json->Object();
  if (!fields) throw RequestError(std::string("\"") + name + "\" is an object of names and values");
  return *fields;
}

}  // namespace

Request ReadRequest(const Json& json) {
  const Json::Fields* fields = json.Object();
  if (!fields) throw RequestError("a request is a JSON object");
  const auto [id, call, arguments, settings] =
      TakeFields(*fields, "a request", {"id", "call", "args", "with"});
  if (!call || !call->Text()) throw RequestError("a request says what to \"call\": \"CLASS.METHOD\"");
  return {*call->Text(), FieldsOf(arguments, "args"), FieldsOf(settings, "with")};
}

const Json* FindId(const Json& json) noexcept {
  const Json::Fields* fields = json.Object();
  if (!fields) return nullptr;
  const auto id = std::ranges::find(*fields, "id", &Json::Field::name);
  return id == fields->end() ? nullptr : &id->value;
}

}  // namespace amortix2::cli
