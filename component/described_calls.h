#pragma once

// How a member is called through a list of untyped values, taken from its member pointer, whatever the
// floating-point state of the host.

#include <cstddef>
#include <span>
#include <tuple>
#include <type_traits>
#include <utility>

#include "amortix2/automation/error.h"
#include "amortix2/automation/standard_arithmetic.h"
#include "amortix2/component/described_types.h"

namespace amortix2::describing {

template <class F>
struct Signature;
template <class C, class R, class... Args>
struct Signature<R (C::*)(Args...)> {
  using Class = C;
  using Result = R;
  using Arguments = std::tuple<Args...>;
  static constexpr std::size_t arity = sizeof...(Args);
  static constexpr bool changesObject = true;
};
template <class C, class R, class... Args>
struct Signature<R (C::*)(Args...) const> : Signature<R (C::*)(Args...)> {
  static constexpr bool changesObject = false;
};

template <class F, std::size_t I>
using Argument = std::tuple_element_t<I, typename Signature<F>::Arguments>;

template <class T>
constexpr bool kIsReferenceOut =
    std::is_lvalue_reference_v<T> && !std::is_const_v<std::remove_reference_t<T>>;

template <class C, auto F, std::size_t... I>
void CallWith(void* object, std::span<void* const> arguments, void* result, std::index_sequence<I...>) {
  using Type = decltype(F);
  auto& self = *static_cast<C*>(object);
  using Result = typename Signature<Type>::Result;
  const auto invoke = [&] {
    return (self.*F)(*static_cast<typename HeldType<Argument<Type, I>>::Type*>(arguments[I])...);
  };
  if constexpr (std::is_void_v<Result>) {
    invoke();
  } else {
    *static_cast<Result*>(result) = invoke();
  }
}

/// `object` is a C, whose own or inherited member F is.
template <class C, auto F>
void Call(void* object, std::span<void* const> arguments, void* result) {
  if (arguments.size() != Signature<decltype(F)>::arity) Raise(ErrorNumber::ArgumentNotOptional);
  const StandardArithmetic standard;
  CallWith<C, F>(object, arguments, result, std::make_index_sequence<Signature<decltype(F)>::arity>{});
}

template <auto F>
constexpr const TypeInfo* ResultType() {
  using Result = typename Signature<decltype(F)>::Result;
  if constexpr (std::is_void_v<Result>) {
    return nullptr;
  } else {
    return &kTypeInfo<Result>;
  }
}

}  // namespace amortix2::describing
