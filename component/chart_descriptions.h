#pragma once

// The parameters that the chart classes share, described.

#include "amortix2/component/choice_descriptions.h"
#include "amortix2/component/describe.h"
#include "amortix2/component/describe_parameters.h"
#include "amortix2/component/table_descriptions.h"

namespace amortix2::describing {

inline constexpr Param kChartTable =
    Input("vColDat", "Data", Unit::Table, "Series from column 1, points from row 1")
        .Example(
            R"([["Year", "", ""], ["2027", 2235, 12934], ["2028", 2385, 12784], ["2029", 2545, 12625]])");
inline constexpr Param kPixels =
    Input("pixels", "Pixels", Unit::Pixels, "Pixels").Span(1, 2000, 1).Limit(0, 2000);
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

inline constexpr Param kLabelledTable =
    kChartTable.Says("Groups from row 1, series from column 1; column 0 labels unless (0, 0) is a number");
inline constexpr Param kLegends = Input("Colleg", "Series", Unit::List, "Names of the series, from 1")
                                      .Example(R"(["", "Principal", "Interest"])");
inline constexpr Param kTitles =
    Input("Ttl", "Titles", Unit::List, "1 the frame's title (empty: no frame), 2 the chart's")
        .Example(R"(["", "", "Payments by year"])");
inline constexpr Param kXAxis =
    Input("Xaxis", "Caption below", Unit::Text, "Caption below the plot").Nothing().Example("Year");
inline constexpr Param kYAxis = Input("Yaxis", "Caption at the left", Unit::Text, "Caption left of the plot")
                                    .Nothing()
                                    .Example("Dollars");
inline constexpr Param kStyle =
    Input("typ", "Style", Unit::Text, "Name of the style").Of(kBarStyle).Optional().Example("ST");
inline constexpr Param kAxisTop = Result("vTop", "Top", Unit::Count, "Upper end of the axis");
inline constexpr Param kAxisBottom = Result("vBottom", "Bottom", Unit::Count, "Lower end of the axis");
inline constexpr Param kAxisStep = Result("vStep", "Step", Unit::Count, "One of its ten intervals");

/// A member that sets or asks one thing.
constexpr About Setting(int number, std::string_view title, std::string_view help) {
  return {.number = number, .group = Group::Charts, .title = title, .address = {}, .help = help};
}

}  // namespace amortix2::describing
