#pragma once

// The vtables of the dual interfaces, through which compiled clients call without names and packed arguments.
// Each is IDispatch's seven functions, then one for each member of the class in the description's order. They
// are made from the made list interface_members.h; no method is named here.

#include <span>

#include "amortix2/com/platform.h"
#include "amortix2/component/description.h"

namespace amortix2::com {

/// What the functions of a vtable do, done for all of them at once.
class DualObject : public IDispatch {
 public:
  /// Calls the member with this place in the class, from 0. There is a pointer to each argument as it was
  /// passed, and behind them one to the place for the result if the member has one. Returns what the caller
  /// gets; no exception leaves it.
  virtual HRESULT CallEarlyBound(std::size_t member, std::span<void* const> arguments) noexcept = 0;

 protected:
  ~DualObject() = default;
};

using Function = void (*)();

/// What a client's pointer points to.
struct DualInterface {
  const Function* functions;
  DualObject* object;
};

/// The vtable of a class. Raises InternalError when the made list and the description differ.
const Function* VtableOf(const ClassInfo& type);

/// Members of one interface, as pointers to members of the abstract class that widl declares.
template <auto... Members>
struct MemberList {};

}  // namespace amortix2::com
