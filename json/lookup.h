#pragma once

// Finding what a request names, whatever the case of its letters. A name that is not there raises a
// RequestError with NoSuchMember, which says what there is and which name comes closest.

#include <cstddef>
#include <span>
#include <string_view>

#include "amortix2/component/description.h"

namespace amortix2::json {

struct Target {
  const ClassInfo& type;
  const MemberInfo& method;
};

/// "Calculator.FixedPayment". A property is no target. Raises a plain RequestError when there is no dot.
Target FindTarget(std::string_view name);

/// What a person calls: as FindTarget, by the method alone where one class has it, or by its address
/// ("refinance").
Target FindCalled(std::string_view name);

const ClassInfo& NeedClass(std::string_view name);
const MemberInfo& NeedMember(const ClassInfo& type, std::string_view name);

/// Raises unless the member has a by-reference parameter of this name, or it is "return" or "response".
void NeedResult(const MemberInfo& member, std::string_view name);

/// The name that is meant, probably: one that begins like what was asked for, else one with few letters
/// changed; empty when none is near.
std::string_view Closest(std::string_view asked, std::span<const std::string_view> names);

/// The place of a parameter or of a field in its list, from 0.
std::size_t PlaceOfParameter(const MemberInfo& member, std::string_view name);
std::size_t PlaceOfField(const RecordInfo& record, std::string_view name);

}  // namespace amortix2::json
