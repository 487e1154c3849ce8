#pragma once

// The parameters that the chart classes share, described.

#include "amortix2/component/choice_descriptions.h"
#include "amortix2/component/describe_parameters.h"
#include "amortix2/component/table_descriptions.h"

namespace amortix2::describing {

inline constexpr Param kChartTable =
    Input("vColDat", "Data", Unit::Table, "Series from column 1, points from row 1")
        .Example(
            R"([["Year", "", ""], ["2027", 2235, 12934], ["2028", 2385, 12784], ["2029", 2545, 12625]])");
inline constexpr Param kPixels =
    Input("pixels", "Pixels", Unit::Pixels, "Pixels").Span(1, 2000, 1).Limit(-32768, 32767);
inline constexpr Param kHeight = kPixels.Named("height")
                                     .Titled("Height")
                                     .Says("Height; 0 keeps it")
                                     .Span(0, 2000, 1)
                                     .Nothing()
                                     .Example("300");
inline constexpr Param kWidthOfPlot = kPixels.Named("width")
                                          .Titled("Width")
                                          .Says("Width; 0 keeps it")
                                          .Span(0, 2000, 1)
                                          .Nothing()
                                          .Example("380");
inline constexpr Param kSwitch = Input("value", "On", Unit::Flag, "On").Of(kFlag).Zero().Example("1");
inline constexpr Param kFormat = Input("value", "Format", Unit::Text, "Number format").Example("$#,##0");

}  // namespace amortix2::describing
