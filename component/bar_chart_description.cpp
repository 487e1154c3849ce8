#include "amortix2/charts/bar_chart.h"
#include "amortix2/component/chart_descriptions.h"
#include "amortix2/component/classes.h"
#include "amortix2/component/describe.h"

namespace amortix2 {
namespace {

using namespace describing;  // NOLINT(google-build-using-namespace): the words of descriptions

constexpr Param kBlank = Input("blnk", "Blank image", Unit::Text, "URL of a transparent one-pixel image")
                             .Nothing()
                             .Example("space.gif");
constexpr Param kImages =
    Input("Colgif", "Images", Unit::List, "Image URLs: 0 the background, 1 and up the series")
        .Example(R"(["white.gif", "blue.gif", "red.gif"])");
constexpr Param kLines =
    Result("vRes", "Markup", Unit::List, "The chart, one line of HTML an element").Of(kMarkup);
constexpr Param kUrl =
    Input("v", "Image", Unit::Text, "URL; anything but text is ignored").Example("black.gif");
constexpr Param kWidth = kPixels.Span(1, 200, 1).Limit(0, 200);

constexpr auto kDescription = describe<BarChart>(
    "Bar chart",
    "Turns a table of numbers into an HTML bar chart of nested tables and stretched one-pixel images. "
    "Texts go out as they are, markup included.",
    method<&BarChart::MakeChart>({.number = 2,
                                  .group = Group::Charts,
                                  .title = "HTML bar chart",
                                  .address = "bar-chart",
                                  .help = "A chart in the style named last; plain columns without one."},
                                 {kLabelledTable.ComesBack(), kBlank, kImages.ComesBack(),
                                  kLegends.ComesBack(), kTitles, kXAxis, kYAxis, kLines, kStyle}),
    method<&BarChart::StackChart>(
        {.number = 1,
         .group = Group::Charts,
         .title = "Stacked HTML bar chart",
         .address = "stack-chart",
         .help = "A chart of stacked columns."},
        {kLabelledTable, kBlank, kImages, kLegends, kTitles, kXAxis, kYAxis, kLines}),
    method<&BarChart::SetGraphDimensions>(
        Setting(3, "Size of the plot", "The plot's size, at first 300 by 380."), {kHeight, kWidthOfPlot}),
    method<&BarChart::SetAxisGif>(Setting(4, "Axis image", "The image that draws the axes."), {kUrl}),
    method<&BarChart::SetSpaceGif>(
        Setting(5, "Space image", "The image that fills the frame and empty axis labels."), {kUrl}),
    property<&BarChart::TotalGraphFrameWidth>(
        Setting(10, "Frame width", "The frame's outer width, at first 462."), kPixels.Example("462")),
    property<&BarChart::MinimumColumnWidth>(Setting(6, "Narrowest bar", "The narrowest bar, at first 3."),
                                            kWidth.Example("3")),
    property<&BarChart::MaximumColumnWidth>(Setting(7, "Widest bar", "The widest bar, at first 80."),
                                            kWidth.Example("80")),
    property<&BarChart::MinimumOverlapSpace>(
        Setting(8, "Overlap step",
                "How far an overlapped bar stands out from the next at least, at first 2."),
        kWidth.Example("2")),
    property<&BarChart::MinimumOverlapCount>(
        Setting(9, "Overlap steps", "How many such steps wide an overlapped bar is, at first 3."),
        kWidth.In(Unit::Count).Span(1, 20, 1).Limit(0, 20).Example("3")),
    property<&BarChart::UseStyleSheets>(
        Setting(11, "Style sheets", "Style classes in the place of fonts and colours."), kSwitch),
    property<&BarChart::NegativeBars>(
        Setting(12, "Negative bars",
                "Plain and overlapped charts draw values below zero, which else count as 0."),
        kSwitch),
    property<&BarChart::SupressLegend>(Setting(13, "No legend", "No legend below the chart."), kSwitch),
    property<&BarChart::YLabelMode>(
        Setting(14, "Axis values",
                "Which axis values are labelled: 11 all, 3 the middle too, else ends and zero."),
        Input("value", "Axis values", Unit::Code, "").Of(kLabelMode).Example("11")),
    property<&BarChart::AltFormatStr>(Setting(15, "Tooltip format", "Number format of the bars' tooltips."),
                                      kFormat),
    property<&BarChart::YLableFormatStr>(Setting(16, "Axis format", "Number format of the axis values."),
                                         kFormat),
    property<&BarChart::AltLabelWithLegend>(
        Setting(17, "Names in tooltips", "Tooltips start with the series' name."), kSwitch),
    method<&BarChart::AxisRange>(
        Setting(18, "Ends of the axis", "The axis that a chart of a table has, with these settings."),
        {kLabelledTable, kAxisTop, kAxisBottom, kAxisStep, kStyle}));

}  // namespace

constinit const ClassInfo kBarChartClass = ClassTables<BarChart, kDescription>::Info();

}  // namespace amortix2
