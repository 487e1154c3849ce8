#include "amortix2/charts/svg_chart.h"
#include "amortix2/component/chart_descriptions.h"
#include "amortix2/component/classes.h"
#include "amortix2/component/describe.h"

namespace amortix2 {
namespace {

using namespace describing;  // NOLINT(google-build-using-namespace): the words of descriptions

constexpr ChoiceInfo kRowAxes[] = {
    {"text", "Texts", "A label for each row"},
    {"number", "Numbers", "Round numbers; column 0 holds numbers"},
    {"date", "Dates", "First days of months or years; column 0 holds dates"},
};
constexpr ChoicesInfo kRowAxis{
    .title = "Axis of the rows", .choices = kRowAxes, .otherwise = "texts", .enumeration = nullptr};

constexpr ChoiceInfo kLegendPlaces[] = {
    {"below", "Below", "Below the plot"},
    {"above", "Above", "Above the plot"},
    {"none", "None", "No legend"},
};
constexpr ChoicesInfo kLegendPlace{
    .title = "Legend", .choices = kLegendPlaces, .otherwise = "below", .enumeration = nullptr};

constexpr ChoiceInfo kValueLabelModes[] = {
    {"off", "None", "No values"},
    {"on", "All that fit", "A value that would meet a mark or another value is left out"},
    {"ends", "Ends", "The first and the last of each series"},
};
constexpr ChoicesInfo kValueLabels{
    .title = "Values beside marks", .choices = kValueLabelModes, .otherwise = "none", .enumeration = nullptr};

constexpr Param Word(const ChoicesInfo& words, std::string_view example) {
  return Input("value", "Word", Unit::Text, "Word").Of(words).Nothing().Example(example);
}
constexpr Param Words(std::string_view example) {
  return Input("value", "Text", Unit::Text, "Text").Nothing().Example(example);
}

constexpr Param kTable = kLabelledTable.Says(
    "Rows and series from 1; column 0 labels unless (0, 0) is a number; texts of row 0 name the series");
constexpr Param kColours =
    Input("Colgif", "Colours", Unit::List,
          "Colours as CSS has them: 0 the plot, 1 and up the series; the chart's own for the rest")
        .Nothing()
        .Example(R"(["", "#08529e", "#d7773c"])");
constexpr Param kNames = kLegends.Nothing();
constexpr Param kHeadings = kTitles.Nothing();
constexpr Param kHeading = kHeadings.Says("The title: a text, or element 2 of a list");
constexpr Param kColourTable =
    Input("vPal", "Palette", Unit::Table,
          "Colours by red, green and blue, row j for line j; the chart's own without")
        .Nothing();
constexpr Param kPicture = Result("vRes", "Picture", Unit::Text, "The picture, one SVG document");
constexpr Param kWidth = kPixels.Span(1, 200, 1).Limit(0, 200);

constexpr auto kDescription = describe<SvgChart>(
    "SVG chart",
    "Turns a table of numbers into a bar or line chart as an SVG picture, and into words and a table for "
    "readers "
    "who do not see it. Texts are escaped.",
    method<&SvgChart::MakeChart>(
        {.number = 2,
         .group = Group::Charts,
         .title = "SVG bar chart",
         .address = "svg-bar-chart",
         .help = "A chart in the style named last; plain columns without one."},
        {kTable, Ignored("blnk"), kColours, kNames, kHeadings, kXAxis, kYAxis, kPicture, kStyle}),
    method<&SvgChart::StackChart>(
        {.number = 1,
         .group = Group::Charts,
         .title = "Stacked SVG bar chart",
         .address = "svg-stack-chart",
         .help = "A chart of stacked columns."},
        {kTable, Ignored("blnk"), kColours, kNames, kHeadings, kXAxis, kYAxis, kPicture}),
    method<&SvgChart::LineChart>(
        {.number = 3,
         .group = Group::Charts,
         .title = "SVG line chart",
         .address = "svg-line-chart",
         .help = "A chart of a line for each column; names and titles are the properties'."},
        {kTable, kColourTable, Ignored("typ"), kPicture}),
    method<&SvgChart::AxisRange>(
        Setting(4, "Ends of the axis", "The axis that a chart of a table has, with these settings."),
        {kTable, kAxisTop, kAxisBottom, kAxisStep, kStyle}),
    method<&SvgChart::DataTable>(
        {.number = 5,
         .group = Group::Charts,
         .title = "HTML data table",
         .address = "data-table",
         .help = "A table as HTML, to stand beside a chart."},
        {kTable, kNames, kHeading, Result("vRes", "Table", Unit::Text, "The table, escaped")}),
    method<&SvgChart::AlternativeText>(
        {.number = 6,
         .group = Group::Charts,
         .title = "Alternative text",
         .address = "alternative-text",
         .help = "What a chart shows in words: first, last, least and largest value of each series."},
        {kTable, kNames, kHeading,
         Result("vRes", "Words", Unit::Text, "Alternative text for an image, escaped")}),
    method<&SvgChart::SetGraphDimensions>(
        Setting(7, "Size of the plot", "The plot's size, at first 300 by 380."), {kHeight, kWidthOfPlot}),
    method<&SvgChart::SetAxisGif>(Setting(8, "Axis image", "No effect: pictures need no images."),
                                  {Ignored("v")}),
    method<&SvgChart::SetSpaceGif>(Setting(9, "Space image", "No effect: pictures need no images."),
                                   {Ignored("v")}),
    property<&SvgChart::MinimumColumnWidth>(
        Setting(10, "Narrowest bar", "No effect: bars may be of any width."), kWidth.Example("3")),
    property<&SvgChart::MaximumColumnWidth>(Setting(11, "Widest bar", "The widest bar, at first 80."),
                                            kWidth.Example("80")),
    property<&SvgChart::MinimumOverlapSpace>(
        Setting(12, "Overlap step", "No effect: bars may be of any width."), kWidth.Example("3")),
    property<&SvgChart::MinimumOverlapCount>(
        Setting(13, "Overlap steps", "How many steps wide an overlapped bar is, 1 to 10, at first 3."),
        kWidth.In(Unit::Count).Span(1, 20, 1).Limit(0, 20).Example("3")),
    property<&SvgChart::TotalGraphFrameWidth>(
        Setting(14, "Frame width", "The least width of a picture with a frame, at first 462."),
        kPixels.Example("462")),
    property<&SvgChart::UseStyleSheets>(
        Setting(15, "Style sheets", "Class names alone, for the page's own style sheet."), kSwitch),
    property<&SvgChart::NegativeBars>(
        Setting(16, "Negative bars", "Bars of values below zero, which else count as 0."), kSwitch),
    property<&SvgChart::SupressLegend>(Setting(17, "No legend", "No legend."), kSwitch),
    property<&SvgChart::YLabelMode>(
        Setting(18, "Axis values",
                "Which axis values are labelled: 11 all, 3 the middle too, else ends and zero; round values "
                "at first."),
        Input("value", "Axis values", Unit::Code, "").Of(kLabelMode).Example("11")),
    property<&SvgChart::AltFormatStr>(
        Setting(19, "Number format", "Number format of values, at first \"$#,##0\"."), kFormat),
    property<&SvgChart::YLableFormatStr>(
        Setting(20, "Axis format", "Number format of the axis, at first with the decimals that it needs."),
        kFormat),
    property<&SvgChart::AltLabelWithLegend>(
        Setting(21, "Names in tooltips", "A mark names its series even when there is only one."), kSwitch),
    property<&SvgChart::Title>(Setting(22, "Title", "The title, where a request has none."),
                               Words("Payments by year")),
    property<&SvgChart::Caption>(Setting(23, "Note", "A note below the chart, such as its source."),
                                 Words("Source: the lender's statement")),
    property<&SvgChart::XAxisTitle>(
        Setting(24, "Caption below", "Caption below the plot, where a request has none."), Words("Year")),
    property<&SvgChart::YAxisTitle>(
        Setting(25, "Caption at the left", "Caption of the axis at the left, where a request has none."),
        Words("Dollars")),
    property<&SvgChart::SeriesNames>(
        Setting(26, "Series", "Names of the series, from 1, where a request has none."), kLegends),
    property<&SvgChart::RowAxisKind>(
        Setting(27, "Axis of the rows", "How column 0 becomes an axis: text, number or date."),
        Word(kRowAxis, "date")),
    property<&SvgChart::LegendPosition>(
        Setting(28, "Legend", "Where the legend stands: below, above or none."), Word(kLegendPlace, "above")),
    property<&SvgChart::ValueLabelMode>(
        Setting(29, "Values beside marks", "Which values are written beside their marks: off, on or ends."),
        Word(kValueLabels, "ends")),
    property<&SvgChart::AxisFromData>(
        Setting(30, "Close axis", "Line charts: an axis close around the values, which may leave out zero."),
        kSwitch),
    property<&SvgChart::LineMarkers>(Setting(31, "Markers", "A marker at every point of a line."), kSwitch),
    property<&SvgChart::LineDashes>(
        Setting(32, "Dashes", "Lines of different series differ in their dashes."), kSwitch));

}  // namespace

constinit const ClassInfo kSvgChartClass = ClassTables<SvgChart, kDescription>::Info();

}  // namespace amortix2
