#pragma once

// The classes' descriptions, one .cpp file each; description.cpp lists them.

#include "amortix2/component/description.h"

namespace amortix2 {

extern const ClassInfo kCalculatorClass;
extern const ClassInfo kBarChartClass;
extern const ClassInfo kGifChartClass;
extern const ClassInfo kInvestmentStrategyClass;
extern const ClassInfo kSvgChartClass;

}  // namespace amortix2
