#pragma once

// The sentence that answers: which quantity a call found, and what came of it, in words. Made from the
// description and the call's values alone; nothing is computed anew.

#include <functional>
#include <string>

#include "amortix2/component/call_values.h"

namespace amortix2 {

/// The quantity that these inputs ask for, by the description's order (FindInfo); null when they determine
/// none, and for members that find nothing.
const FindInfo* FoundBy(const Inputs& inputs);

/// A value as a sentence shows it ("1,264.14", "6.5 %", "360 months", "12/01/2026").
using FigureText = std::function<std::string(const Variant& value, Unit unit)>;

/// Money with two decimals, rates with up to three and "%", counts of time with their word: periods with that
/// of the member's frequency ("24 quarters").
std::string PlainFigure(const Inputs& inputs, const Variant& value, Unit unit);

/// The sentence that gives the answer; empty when nothing was found. `figure` writes its figures; without
/// one, PlainFigure does.
std::string AnswerSentence(const Inputs& inputs, const Results& results, const FigureText& figure = {});

}  // namespace amortix2
