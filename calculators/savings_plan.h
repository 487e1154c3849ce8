#pragma once

// What the calculators of savings and spending plans share: a plan's record, its way through the engine, and
// its table.

#include <cstdint>

#include "amortix2/automation/array.h"
#include "amortix2/automation/variant.h"
#include "amortix2/engine/records.h"

namespace amortix2::calculators {

/// A plan with a start and a frequency; everything else is 0. Raises Overflow for a frequency beyond 16 bits.
tSavingsDesc NewPlan(Date startDate, const Variant& vFreq);

/// The date that the whole part of `vPeriod` (downwards) steps of a frequency after the plan's start. Raises
/// Overflow.
Date DateAfter(const tSavingsDesc& plan, enumFrequencyType frequency, double periods);

/// Has the engine find what is marked unknown and schedule the plan. Raises as Amortix does.
void Solve(tSavingsDesc& plan);

/// Rows of a plan's table after its opening row: one for each whole period between its dates, and one for
/// days that are left over.
std::int32_t RowsWithLeftover(const tSavingsDesc& plan);

/// The schedule's lines 0 to lastRow from column 1 on. Raises Overflow when lastRow leaves 16 bits.
Array PlanDetail(const tSavingsDesc& plan, std::int32_t lastRow);

}  // namespace amortix2::calculators
