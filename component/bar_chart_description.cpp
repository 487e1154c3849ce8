#include "amortix2/charts/bar_chart.h"
#include "amortix2/component/classes.h"
#include "amortix2/component/describe.h"

namespace amortix2 {
namespace {

constexpr Param kTable{"vColDat", Unit::Table,
                       "Groups from row 1, series from column 1; column 0 labels unless (0, 0) is a number"};
constexpr Param kBlank{"blnk", Unit::Text, "URL of a transparent one-pixel image"};
constexpr Param kImages{"Colgif", Unit::List, "Image URLs: 0 the background, 1 and up the series"};
constexpr Param kLegends{"Colleg", Unit::List, "Names of the series, from 1"};
constexpr Param kTitles{"Ttl", Unit::List, "1 the frame's title (empty: no frame), 2 the chart's"};
constexpr Param kXAxis{"Xaxis", Unit::Text, "Caption below the plot"};
constexpr Param kYAxis{"Yaxis", Unit::Text, "Caption left of the plot"};
constexpr Param kLines{"vRes", Unit::List, "The chart, one line of HTML an element"};
constexpr Param kStyle{"typ", Unit::Text,
                       "OL, OV or OR overlapped, ST or SR stacked, HZ or HR horizontal, LINE", true};

constexpr auto kDescription = describe<BarChart>(
    "Turns a table of numbers into an HTML bar chart of nested tables and stretched one-pixel images. "
    "Texts go out as they are, markup included.",
    method<&BarChart::StackChart>("A chart of stacked columns.",
                                  {kTable, kBlank, kImages, kLegends, kTitles, kXAxis, kYAxis, kLines}),
    method<&BarChart::MakeChart>(
        "A chart in the style named last; plain columns without one.",
        {kTable, kBlank, kImages, kLegends, kTitles, kXAxis, kYAxis, kLines, kStyle}),
    method<&BarChart::SetGraphDimensions>(
        "The plot's size, at first 300 by 380.",
        {{"height", Unit::Pixels, "Height; 0 keeps it"}, {"width", Unit::Pixels, "Width; 0 keeps it"}}),
    method<&BarChart::SetAxisGif>("The image that draws the axes.",
                                  {{"v", Unit::Text, "URL; anything but text is ignored"}}),
    method<&BarChart::SetSpaceGif>("The image that fills the frame and empty axis labels.",
                                   {{"v", Unit::Text, "URL; anything but text is ignored"}}),
    property<&BarChart::MinimumColumnWidth>(Unit::Pixels, "The narrowest bar, at first 3."),
    property<&BarChart::MaximumColumnWidth>(Unit::Pixels, "The widest bar, at first 80."),
    property<&BarChart::MinimumOverlapSpace>(
        Unit::Pixels, "How far an overlapped bar stands out from the next at least, at first 2."),
    property<&BarChart::MinimumOverlapCount>(Unit::Count,
                                             "How many such spaces wide an overlapped bar is, at first 3."),
    property<&BarChart::TotalGraphFrameWidth>(Unit::Pixels, "The frame's outer width, at first 462."),
    property<&BarChart::UseStyleSheets>(Unit::Flag, "Style classes in the place of fonts and colours."),
    property<&BarChart::NegativeBars>(
        Unit::Flag, "Plain and overlapped charts draw values below zero, which else count as 0."),
    property<&BarChart::SupressLegend>(Unit::Flag, "No legend below the chart."),
    property<&BarChart::YLabelMode>(Unit::Code,
                                    "Labelled axis values: 11 all, 3 the middle too, else ends and zero."),
    property<&BarChart::AltFormatStr>(Unit::Text, "Number format of the bars' tooltips."),
    property<&BarChart::YLableFormatStr>(Unit::Text, "Number format of the axis values."),
    property<&BarChart::AltLabelWithLegend>(Unit::Flag, "Tooltips start with the series' name."));

constexpr auto kMembers = kDescription.Table();

}  // namespace

constinit const ClassInfo kBarChartClass = kDescription.Info(kMembers);

}  // namespace amortix2
