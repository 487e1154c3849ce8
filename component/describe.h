#pragma once

// How a class, a record or an enumeration is described. A class is one constexpr value:
//
//   constexpr auto kDescription = describe<Calculator>("Calculator", "Answers ...",
//       method<&Calculator::FixedPayment>(
//           {.number = 5, .group = Group::Loans, .title = "Fixed-rate mortgage", .address = "fixed", .help =
//           "..."}, {kPurchaseAmt, kDownPayment.Example("40000"), ...}),
//       ...);
//
// in the order in which its members are shown; a member's number is its place in the interface for ever. A
// record or an enumeration is described in one specialisation of kDescribed (record_descriptions.h).
//
// Names are cut from the compiler's own spelling of the member pointer, so that they cannot differ from it;
// types and directions follow from its type. A wrong count of parameters, a forgotten field or constant, a
// number that is missing or given twice, and what description_checks.h lists do not compile. Only the
// description's own .cpp files include this header; hosts see the tables of description.h.

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "amortix2/automation/standard_arithmetic.h"
#include "amortix2/component/describe_parameters.h"
#include "amortix2/component/described_calls.h"
#include "amortix2/component/described_types.h"
#include "amortix2/component/description.h"
#include "amortix2/component/description_checks.h"
#include "amortix2/component/names.h"

namespace amortix2 {

/// What a description says of a member beside its parameters (MemberInfo says what each is).
struct About {
  int number = 0;  ///< the member's dispatch number, from 1 without gaps; never changed
  Group group{};
  std::string_view title;
  std::string_view address;
  std::string_view help;
  ShortList<FindInfo, 5> finds{};
  ShortList<ChartInfo, 3> charts{};
  ShortList<ListInfo, 1> lists{};
  ComparisonInfo comparison{};
  std::string_view horizon{};
  bool reachesFiles = false;
};

namespace describing {

template <auto F, std::size_t N>
struct MemberDescription {
  About about;
  MemberKind kind;
  std::array<ParameterInfo, N> parameters;

  /// Of the class C, which may have inherited the member.
  template <class C>
  constexpr MemberInfo Info() const {
    return {.name = NameOf<F>(),
            .title = about.title,
            .address = about.address,
            .group = about.group,
            .kind = kind,
            .help = about.help,
            .finds = about.finds,
            .charts = about.charts,
            .lists = about.lists,
            .comparison = about.comparison.IsGiven() ? &about.comparison : nullptr,
            .horizon = about.horizon,
            .parameters = parameters,
            .result = ResultType<F>(),
            .call = Call<C, F>,
            .reachesFiles = about.reachesFiles,
            .changesObject = Signature<decltype(F)>::changesObject};
  }
};

template <class C, class... Members>
struct ClassDescription {
  std::string_view title;
  std::string_view help;
  std::tuple<Members...> members;
};

/// The dispatch numbers in the order in which a class shows its members: each of 1 to their count once.
template <class C, class... Members>
consteval std::array<std::size_t, sizeof...(Members)> Numbers(
    const ClassDescription<C, Members...>& description) {
  constexpr std::size_t kCount = sizeof...(Members);
  const auto numbers = std::apply(
      [](const auto&... member) { return std::array{static_cast<std::size_t>(member.about.number)...}; },
      description.members);
  std::array<bool, kCount> taken{};
  for (const std::size_t number : numbers) {
    if (number < 1 || number > kCount) throw "the numbers of the members leave a gap";
    if (std::exchange(taken[number - 1], true)) throw "two members have the same number";
  }
  return numbers;
}

/// The tables of a class, made from its description, which must be a static constant.
template <class C, const auto& Description>
struct ClassTables {
  static constexpr auto kNumbers = Numbers(Description);
  static constexpr auto kMembers = [] {
    std::array<MemberInfo, kNumbers.size()> members{};
    std::size_t next = 0;
    std::apply(
        [&](const auto&... member) { ((members[kNumbers[next++] - 1] = member.template Info<C>()), ...); },
        Description.members);
    if (!AllDistinct(members)) throw "two members have the same name";
    return members;
  }();
  static constexpr auto kInOrder = [] {
    std::array<const MemberInfo*, kNumbers.size()> members{};
    std::ranges::transform(kNumbers, members.begin(),
                           [](std::size_t number) { return &kMembers[number - 1]; });
    return members;
  }();

  static constexpr ClassInfo Info() {
    return {.name = TypeName<C>(),
            .title = Description.title,
            .help = Description.help,
            .members = kMembers,
            .inOrder = kInOrder,
            .create = [](const Clock& clock) -> void* {
              const StandardArithmetic standard;
              if constexpr (std::constructible_from<C, const Clock&>) {
                return new C(clock);
              } else {
                static_cast<void>(clock);
                return new C();
              }
            },
            .destroy = [](void* object) noexcept { delete static_cast<C*>(object); }};
  }
};

template <auto F, std::size_t N>
consteval auto MakeMember(MemberKind kind, const About& about, const Param (&params)[N]) {
  using Type = decltype(F);
  static_assert(N == Signature<Type>::arity, "describe every parameter, and no other");
  MemberDescription<F, N> member{about, kind, {}};
  [&]<std::size_t... I>(std::index_sequence<I...>) {
    ((member.parameters[I] = params[I], member.parameters[I].byReference = kIsReferenceOut<Argument<Type, I>>,
      member.parameters[I].type = &kTypeInfo<typename HeldType<Argument<Type, I>>::Type>),
     ...);
  }
  (std::make_index_sequence<N>{});
  if (!AllHelpful(member.parameters)) throw "a parameter has no name or no help";
  if (!AllDistinct(member.parameters)) throw "two parameters have the same name";
  MemberChecks(member.parameters).Run(member.template Info<typename Signature<Type>::Class>());
  return member;
}

}  // namespace describing

template <auto F, std::size_t N>
consteval auto method(const About& about, const Param (&params)[N]) {
  return describing::MakeMember<F>(MemberKind::Method, about, params);
}

/// A write-only property; `F` is its setter, of one parameter, which has the property's title and help.
template <auto F>
consteval auto property(const About& about, const Param& value) {
  return describing::MakeMember<F>(MemberKind::PropertyPut, about,
                                   {value.Named("value").Titled(about.title).Says(about.help)});
}

template <class C, class... Members>
consteval auto describe(std::string_view title, std::string_view help, std::tuple<Members...> members) {
  if (title.empty() || help.empty()) throw "a class has no title or no help";
  return describing::ClassDescription<C, Members...>{title, help, members};
}

template <class C, class... Members>
consteval auto describe(std::string_view title, std::string_view help, Members... members) {
  return describe<C>(title, help, std::tuple{members...});
}

}  // namespace amortix2
