#include "amortix2/cli/page.h"

namespace amortix2::cli {
namespace {

bool TakesContextAlone(const MemberInfo& member) {
  return member.parameters.size() == 1 && member.parameters[0].type->kind == TypeKind::ScriptingContext;
}

}  // namespace

void Page::BinaryWrite(std::span<const std::uint8_t> bytes) {
  written_.insert(written_.end(), bytes.begin(), bytes.end());
}

void StartPage(Object& object, const std::shared_ptr<Page>& page) {
  for (const MemberInfo& member : object.Class().members) {
    if (!TakesContextAlone(member)) continue;
    Value context(*member.parameters[0].type);
    *static_cast<std::shared_ptr<ScriptingContext>*>(context.Get()) = page;
    void* const argument = context.Get();
    member.call(object.Get(), {&argument, 1}, nullptr);
  }
}

}  // namespace amortix2::cli
