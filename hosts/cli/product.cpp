#include "amortix2/cli/product.h"

#include <utility>

#include "amortix2/automation/array.h"
#include "amortix2/json/request_error.h"

namespace amortix2::cli {
namespace {

/// A text, or a list of texts as lines; nothing of any other value.
std::string TextIn(const Variant& value) {
  if (value.Type() == VariantType::String) return std::string(value.GetString()) + "\n";
  std::string lines;
  if (value.Type() != VariantType::Array || value.GetArray().Rank() != 1) return lines;
  for (const Variant& cell : value.GetArray().Cells()) {
    if (cell.Type() == VariantType::String) lines.append(cell.GetString()).append("\n");
  }
  return lines;
}

}  // namespace

Product ProductOf(const json::Execution& execution) {
  const auto response = execution.Response();
  if (!response.empty()) return {"response", std::string(response.begin(), response.end())};
  const Invocation& call = *execution.Call();
  for (std::size_t i = 0; i < call.Arguments().size(); ++i) {
    const ParameterInfo& parameter = call.Member().parameters[i];
    const bool isVariant = parameter.type->kind == TypeKind::Variant;
    if (call.Member().group != Group::Charts || parameter.role != Role::Result || !isVariant) continue;
    std::string text = TextIn(*static_cast<const Variant*>(call.Arguments()[i].Get()));
    if (!text.empty()) return {parameter.name, std::move(text)};
  }
  throw json::RequestError("nothing was made for a page, so there is nothing to write");
}

}  // namespace amortix2::cli
