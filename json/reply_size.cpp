#include "amortix2/json/reply_size.h"

#include <string_view>

#include "amortix2/automation/array.h"

namespace amortix2::json {
namespace {

constexpr std::size_t kLeastScalar = 2;  // a digit and a comma
constexpr std::size_t kMostScalar = 25;  // a double's sign, digits, point and exponent, and a comma
constexpr std::size_t kTypeAround = std::string_view(R"({"type":"Currency","value":})").size();

void Add(ReplySize& size, const Variant& value, Form form) {
  if (value.Type() == VariantType::Array) {
    for (const Variant& cell : value.GetArray().Cells()) Add(size, cell, form);
    return;
  }
  const std::size_t text = value.Type() == VariantType::String ? value.GetString().size() : 0;
  ++size.cells;
  size.least += kLeastScalar + text;
  size.most += kMostScalar + text + (form == Form::WithTypes ? kTypeAround : 0);
}

}  // namespace

ReplySize SizeOfReply(const Execution& execution, Form form) {
  ReplySize size;
  const Invocation* call = execution.Call();
  for (std::size_t i = 0; call && i < call->Arguments().size(); ++i) {
    const ParameterInfo& parameter = call->Member().parameters[i];
    const bool isVariant = parameter.type->kind == TypeKind::Variant;
    if (!isVariant || !parameter.byReference || !execution.Wants(parameter.name)) continue;
    Add(size, *static_cast<const Variant*>(call->Arguments()[i].Get()), form);
  }
  if (execution.Wants("response")) {
    const std::size_t base64 = (execution.Response().size() + 2) / 3 * 4;
    size.least += base64;
    size.most += base64;
  }
  return size;
}

}  // namespace amortix2::json
