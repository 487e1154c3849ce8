#include <algorithm>
#include <array>

#include "amortix2/charts/gif_chart.h"
#include "amortix2/component/chart_descriptions.h"
#include "amortix2/component/classes.h"
#include "amortix2/component/describe.h"

namespace amortix2 {
namespace {

using namespace describing;  // NOLINT(google-build-using-namespace): the words of descriptions

/// A palette as JSON: white, blue, red, and black for the other 253 colours.
constexpr auto kPaletteText = [] {
  constexpr std::string_view kFirst = "[[255, 255, 255], [0, 70, 160], [190, 40, 40]";
  constexpr std::string_view kOther = ", [0, 0, 0]";
  std::array<char, kFirst.size() + 253 * kOther.size() + 1> text{};
  auto end = std::ranges::copy(kFirst, text.begin()).out;
  for (int i = 0; i < 253; ++i) end = std::ranges::copy(kOther, end).out;
  *end = ']';
  return text;
}();
constexpr Param kPalette = Input("vPal", "Palette", Unit::Table,
                                 "256 colours from 0 by red, green and blue, 0 to 255; line j has colour j")
                               .Example({kPaletteText.data(), kPaletteText.size()});
constexpr Param kPath = Input("nm", "File", Unit::Text, "Path of the file").Example("chart.gif");

constexpr auto kDescription = describe<GifChart>(
    "GIF line chart",
    "Draws line charts as GIF images for a page's response, and writes rasters as GIF files.",
    method<&GifChart::LineChart>(
        {.number = 4,
         .group = Group::Charts,
         .title = "GIF line chart",
         .address = "line-chart",
         .help = "Draws a line chart and sends it as a GIF image to the page's response."},
        {kChartTable.Says("Numbers from (0, 0): a column from 1 is a line, a row from 1 a point"), kPalette,
         Ignored("typ")}),
    method<&GifChart::SetGraphDimensions>({.number = 5,
                                           .group = Group::Charts,
                                           .title = "Size of the chart",
                                           .address = {},
                                           .help = "Sets the size of later charts."},
                                          {kHeight.Says("Height, 300 at first; 0 keeps it"),
                                           kWidthOfPlot.Says("Width, 380 at first; 0 keeps it")}),
    method<&GifChart::writeGifFile>(
        {.number = 2,
         .group = Group::Charts,
         .title = "GIF file",
         .address = "gif-file",
         .help = "Writes a raster and its palette as a GIF file, whole or not at all.",
         .reachesFiles = true},
        {kPath,
         Input("vImg", "Raster", Unit::Table, "Palette indices 0 to 255, first index x, second y, from 0")
             .Example("[[1, 2], [2, 1]]"),
         kPalette}),
    method<&GifChart::DumpAFile>(
        {.number = 3,
         .group = Group::Charts,
         .title = "Read a file through",
         .address = {},
         .help = "Reads a file of up to 32767 bytes through once and drops what it read.",
         .reachesFiles = true},
        {kPath.Named("x")}),
    method<&GifChart::OnStartPage>(
        {.number = 1,
         .group = Group::Charts,
         .title = "Start of a page",
         .address = {},
         .help = "Takes the page's context, to whose response charts are sent; the page server calls it."},
        {Input("iScriptingContext", "Page", Unit::None, "Context of the page that runs").Nothing()}),
    method<&GifChart::AxisRange>(
        Setting(6, "Ends of the axis", "The axis that the chart of a table has, for the page to label."),
        {kChartTable.Says("Numbers from (0, 0): a column from 1 is a line, a row from 1 a point"), kAxisTop,
         kAxisBottom, kAxisStep}));

}  // namespace

constinit const ClassInfo kGifChartClass = ClassTables<GifChart, kDescription>::Info();

}  // namespace amortix2
