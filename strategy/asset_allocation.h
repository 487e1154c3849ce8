#pragma once

// The asset allocation advisor: a short risk questionnaire becomes one of five investment profiles, from 1,
// the most cautious, to 5, the most aggressive, and the profile splits an amount over three asset classes.
// Keeps nothing between calls.

#include "amortix2/automation/variant.h"

namespace amortix2 {

/// Chooses the profile and splits the amount.
///
/// `amount` (currency) counts as 0 when it is no number. `survey` is a one-dimensional array of answers, read
/// from index 1 on, whatever its lower bound: a number stands for itself; anything that reads as 0 counts by
/// the first character of its text, "A" as 1, "B" as 2 and so on by its code in code page 1252. Answers below
/// 4 weigh double in the divisor of the average, which pulls towards the cautious profiles.
///
/// Results, written at the end: `number` the profile as a double, `title` and `description` its texts,
/// `result` an array of rows 0 to 3 by columns 0 to 1: row 0 Empty, then class name and amount for each
/// class.
///
/// Raises, with nothing written, TypeMismatch when `survey` is no array or an answer is one,
/// SubscriptOutOfRange when the array has two dimensions or starts above index 1, InvalidProcedureCall for an
/// answer without text (Empty, Null, Missing or ""), Overflow when there is no answer at all and when a
/// number becomes too large.
///
/// Example: the answers 3, 3, 3 average 9/6 and give profile 2, "Capital Preservation".
void AllocateAssets(const Variant& amount, const Variant& survey, Variant& number, Variant& title,
                    Variant& description, Variant& result);

}  // namespace amortix2
