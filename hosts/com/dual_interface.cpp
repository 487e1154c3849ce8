#include "amortix2/com/dual_interface.h"

#include <array>
#include <tuple>
#include <utility>

#include "amortix2/automation/error.h"
#include "amortix2/com/interface_members.h"

namespace amortix2::com {
namespace {

template <class F>
Function Erased(F* function) noexcept {
  return reinterpret_cast<Function>(function);
}

/// One of IDispatch's own functions.
template <auto Member>
struct Forwarded;
template <class Interface, class Result, class... Args,
          Result (STDMETHODCALLTYPE Interface::*Member)(Args...)>
struct Forwarded<Member> {
  static Result STDMETHODCALLTYPE Call(DualInterface* self, Args... arguments) {
    return (self->object->*Member)(arguments...);
  }
};

template <class Member>
struct EarlyBound;
template <class Interface, class... Args>
struct EarlyBound<HRESULT (STDMETHODCALLTYPE Interface::*)(Args...)> {
  template <std::size_t Number>
  static HRESULT STDMETHODCALLTYPE Call(DualInterface* self, Args... arguments) {
    void* const places[] = {static_cast<void*>(&arguments)...};
    return self->object->CallEarlyBound(Number, places);
  }
};

/// Chosen from its overloads.
constexpr HRESULT (STDMETHODCALLTYPE IUnknown::*kQueryInterface)(REFIID, void**) = &IUnknown::QueryInterface;

template <auto... Members>
std::span<const Function> Vtable(MemberList<Members...>) {
  static const std::array functions = []<std::size_t... I>(std::index_sequence<I...>) {
    return std::array{Erased(Forwarded<kQueryInterface>::Call),
                      Erased(Forwarded<&IDispatch::AddRef>::Call),
                      Erased(Forwarded<&IDispatch::Release>::Call),
                      Erased(Forwarded<&IDispatch::GetTypeInfoCount>::Call),
                      Erased(Forwarded<&IDispatch::GetTypeInfo>::Call),
                      Erased(Forwarded<&IDispatch::GetIDsOfNames>::Call),
                      Erased(Forwarded<&IDispatch::Invoke>::Call),
                      Erased(EarlyBound<decltype(Members)>::template Call<I>)...};
  }
  (std::make_index_sequence<sizeof...(Members)>{});
  return functions;
}

constexpr std::size_t kDispatchFunctions = 7;

}  // namespace

const Function* VtableOf(const ClassInfo& type) {
  static const auto vtables =
      std::apply([](auto... members) { return std::array{Vtable(members)...}; }, InterfaceMembers());
  for (std::size_t i = 0; i < vtables.size() && i < Classes().size(); ++i) {
    const bool matches = vtables[i].size() == kDispatchFunctions + type.members.size();
    if (Classes()[i] == &type && matches) return vtables[i].data();
  }
  Raise(ErrorNumber::InternalError);
}

}  // namespace amortix2::com
