#pragma once

// What a request may do that a stranger wrote, so that no request costs its server much: no files, no records
// (their fields have no limits), no settings but those that are made for it, numbers within the limits of the
// description, and an answer of bounded size. All but the size of an answer is looked at before anything is
// computed; the limits keep nearly all answers far below it. What is refused is a RequestError, whose message
// names the parameter.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "amortix2/component/description.h"
#include "amortix2/component/invocation.h"

namespace amortix2::json {

struct ReplySize;

inline constexpr std::size_t kLongestStrangersRequest = std::size_t{1} << 18;
inline constexpr std::size_t kMostStrangersCells = std::size_t{1} << 20;
inline constexpr std::size_t kLongestStrangersReply = std::size_t{1} << 22;

/// Raises NoSuchMember for a member that reaches files or works on records.
void CheckOpen(const ClassInfo& type, const MemberInfo& member);

/// The same, and for a member that gives an answer of its own: a request has one.
void CheckOpenSetting(const ClassInfo& type, const MemberInfo& member);

/// Raises InvalidProcedureCall for an input, or an element of one, outside its limit, for a list of more
/// items than its member lets in, and for a debt whose payments are too small. `at` receives the input's
/// name, or stays as it is when it says already what is being set.
void CheckInputs(const Invocation& call, std::string_view& at);

/// What a request gives of which charts write much: a text may stand in the markup of every cell.
struct GivenSize {
  std::size_t cells = 0;
  std::size_t longestText = 0;
};
inline constexpr std::size_t kMostStrangersMarkup = std::size_t{1} << 19;

void AddInputs(const Invocation& call, GivenSize& size);

/// Raises InvalidProcedureCall for cells that, with the longest text in each, exceed kMostStrangersMarkup.
void CheckGiven(const GivenSize& size);

/// Raises OutOfMemory for results of more cells than kMostStrangersCells, or of more bytes than
/// kLongestStrangersReply however few digits they have: before they are written.
void CheckAnswer(const ReplySize& size);

/// Raises OutOfMemory above kLongestStrangersReply.
void CheckReplyLength(std::size_t bytes);

}  // namespace amortix2::json
