#pragma once

// What a person should be told beside an answer, since the calculators answer whatever they are given: an
// input that counted as 0, a payment that never pays the loan off, a balance that rounding left. Notes are
// computed from a call's inputs and results and never change them; every host shows the same. Each is true of
// the call that it is about, and a call with sensible inputs has none but of what its results leave (a last
// balance).

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "amortix2/automation/date.h"
#include "amortix2/automation/error.h"
#include "amortix2/component/call_values.h"

namespace amortix2 {

struct Note {
  std::string_view code;           ///< "no-number"; the same kind of note has the same code
  const ParameterInfo* parameter;  ///< that it is about
  std::string given;               ///< the input as it was given, where the sentence is about it: "\"6.5%\""
  std::string sentence;  ///< goes on after `given` ("is no number and counts as 0"), else stands alone

  /// In one line: `vIntRate="6.5%" is no number and counts as 0`, `vCurrPay: The payment does ...`.
  std::string Text() const;
};

/// The notes of a call, in the order of the parameters. `today` is the day that the call took as today.
std::vector<Note> NotesOn(const Inputs& inputs, const Results& results, Date today);

/// The parameter that made a call fail with an error, with the reason in words; nothing when that is not
/// known. The note's sentence says it ("is no date"), its code is "fault".
std::optional<Note> FaultOf(const Inputs& inputs, ErrorNumber error);

}  // namespace amortix2
