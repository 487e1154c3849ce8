#include "amortix2/cli/arguments.h"

#include "amortix2/cli/iso_date.h"
#include "amortix2/cli/json_text.h"
#include "amortix2/cli/request_error.h"

namespace amortix2::cli {

Json ReadValue(const std::string& value) {
  std::size_t badByte = 0;
  if (auto json = ParseJson(value, &badByte)) return std::move(*json);
  if (ParseIsoDate(value)) {
    Json::Fields date;
    date.push_back({"type", Json(std::string("Date"))});
    date.push_back({"value", Json(value)});
    return Json(std::move(date));
  }
  if (value.starts_with('[') || value.starts_with('{')) {
    throw RequestError(Quoted(value) + " is no JSON: byte " + std::to_string(badByte) + " does not fit");
  }
  if (!IsUtf8(value)) throw RequestError("a value is no UTF-8 text");
  return Json(value);
}

Json::Fields ReadArguments(const std::vector<std::string>& arguments) {
  Json::Fields fields;
  for (const std::string& argument : arguments) {
    const std::size_t equals = argument.find('=');
    if (equals == 0 || equals == std::string::npos) {
      throw RequestError(Quoted(argument) + " is no NAME=VALUE");
    }
    fields.push_back({argument.substr(0, equals), ReadValue(argument.substr(equals + 1))});
  }
  return fields;
}

}  // namespace amortix2::cli
