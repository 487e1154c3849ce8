#include "amortix2/json/captured_page.h"

#include "amortix2/component/invocation.h"

namespace amortix2::json {
namespace {

bool TakesContextAlone(const MemberInfo& member) {
  return member.parameters.size() == 1 && member.parameters[0].type->kind == TypeKind::ScriptingContext;
}

}  // namespace

void CapturedPage::BinaryWrite(std::span<const std::uint8_t> bytes) {
  written_.insert(written_.end(), bytes.begin(), bytes.end());
}

void StartPage(Object& object, const std::shared_ptr<CapturedPage>& page) {
  for (const MemberInfo& member : object.Class().members) {
    if (!TakesContextAlone(member)) continue;
    Invocation start(member);
    *static_cast<std::shared_ptr<ScriptingContext>*>(start.Arguments().front().Get()) = page;
    start.Call(object);
  }
}

}  // namespace amortix2::json
