#pragma once

// A member's example: the request that the description's examples make, as a command line, and what comes of
// it; and what a person is told when one of its inputs is mistyped. All of it is computed by calling the
// member, nothing is written down twice.

#include <string>
#include <vector>

#include "amortix2/component/description.h"

namespace amortix2::cli {

/// "amortix2 call loan vPurchaseAmt=200000 vPeriod=360 vIntRate=6.5", quoted as a shell needs it. A value too
/// long to type stands in a file named after its parameter. A setting is shown with "--with".
std::string ExampleCommand(const ClassInfo& type, const MemberInfo& member);

/// What stands in such files, a sentence for each.
std::vector<std::string> ExampleFiles(const MemberInfo& member);

struct ExampleCell {
  std::string name;                            ///< of the result
  std::vector<std::vector<std::string>> rows;  ///< of a small grid, with its headings; else empty
  std::string text;                            ///< of a single value
};

struct ExampleAnswer {
  std::string sentence;  ///< empty where the description has none
  std::vector<ExampleCell> results;
};

/// Of a member that is no chart and no setting; nothing for those.
ExampleAnswer AnswerOfExample(const ClassInfo& type, const MemberInfo& member);

/// What can be wrong: the example with one input changed at a time. Each as one line.
struct Mistakes {
  std::vector<std::string> errors;  ///< "13 TypeMismatch: vStartDate="soon" is no date"
  std::vector<std::string> notes;   ///< of each kind one
};
Mistakes MistakesIn(const ClassInfo& type, const MemberInfo& member);

/// True for members that have an example answer.
bool HasAnswer(const MemberInfo& member);

}  // namespace amortix2::cli
