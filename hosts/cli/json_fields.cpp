#include "amortix2/cli/json_fields.h"

#include <algorithm>

#include "amortix2/cli/request_error.h"

namespace amortix2::cli {

void TakeFields(const Json::Fields& fields, std::string_view what, std::span<const std::string_view> names,
                std::span<const Json*> found) {
  for (const Json::Field& field : fields) {
    const auto name = std::ranges::find(names, field.name);
    if (name == names.end()) {
      std::string message = std::string(what) + " has no field " + Quoted(field.name) + "; there are";
      for (const std::string_view known : names) message.append(" ").append(known);
      throw RequestError(std::move(message));
    }
    const Json*& place = found[static_cast<std::size_t>(name - names.begin())];
    if (place) throw RequestError(std::string(what) + " has the field " + Quoted(field.name) + " twice");
    place = &field.value;
  }
}

}  // namespace amortix2::cli
