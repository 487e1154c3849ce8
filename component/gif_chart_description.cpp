#include "amortix2/component/classes.h"
#include "amortix2/component/describe.h"
#include "amortix2/charts/gif_chart.h"
#include "amortix2/component/gif_record_descriptions.h"

namespace amortix2 {
namespace {

constexpr auto kDescription = describe<GifChart>(
    "Draws line charts as GIF images for a page's response, and writes rasters as GIF files.",
    method<&GifChart::OnStartPage>(
        "Takes the page's context, to whose response charts are sent; the page server calls it.",
        {{"iScriptingContext", Unit::None, "Context of the page that runs"}}),
    method<&GifChart::writeGifFile>(
        "Writes a raster and its palette as a GIF file, whole or not at all.",
        {{"nm", Unit::Text, "Path of the file"},
         {"vImg", Unit::Table, "Raster: palette indices 0 to 255, first index x, second y, from 0"},
         {"vPal", Unit::Table, "Palette: 256 colours by red, green and blue, 0 to 255, from 0"}}),
    method<&GifChart::DumpAFile>("Reads a file of up to 32767 bytes through once and drops what it read.",
                                 {{"x", Unit::Text, "Path of the file"}}),
    method<&GifChart::LineChart>(
        "Draws a line chart and sends it as a GIF image to the page's response.",
        {{"vColDat", Unit::Table, "Numbers from (0, 0): a column from 1 is a line, a row from 1 a point"},
         {"vPal", Unit::Table, "Palette of 256 colours; line j is drawn in colour j"},
         {"typ", Unit::Text, "Accepted and not read"}}),
    method<&GifChart::SetGraphDimensions>("Sets the size of later charts.",
                                          {{"height", Unit::Pixels, "Height, 300 at first; 0 keeps it"},
                                           {"width", Unit::Pixels, "Width, 380 at first; 0 keeps it"}}));

constexpr auto kMembers = kDescription.Table();

constexpr auto kHeader = record<GifHeader>(
    "The start of a GIF file.", field<&GifHeader::sig>(Unit::Text, "Signature and version, \"GIF87a\""),
    field<&GifHeader::screenwidth>(Unit::Pixels, "Width of the logical screen"),
    field<&GifHeader::screendepth>(Unit::Pixels, "Height of the logical screen"),
    field<&GifHeader::flags>(Unit::Code, "Colour table present and its size, colour resolution"),
    field<&GifHeader::background>(Unit::Count, "Index of the background colour"),
    field<&GifHeader::aspect>(Unit::Code, "Pixel aspect ratio; 0: none given"));

constexpr auto kImage =
    record<ImageBlock>("The place of an image on a GIF file's screen.",
                       field<&ImageBlock::left>(Unit::Pixels, "Distance from the left edge"),
                       field<&ImageBlock::top>(Unit::Pixels, "Distance from the top edge"),
                       field<&ImageBlock::width>(Unit::Pixels, "Width of the image"),
                       field<&ImageBlock::depth>(Unit::Pixels, "Height of the image"),
                       field<&ImageBlock::flags>(Unit::Code, "Local colour table, interlacing; 0: neither"));

}  // namespace

constinit const ClassInfo kGifChartClass = kDescription.Info(kMembers);

template <>
constinit const RecordInfo DescribedRecord<GifHeader>::info = kHeader.Info();
template <>
constinit const RecordInfo DescribedRecord<ImageBlock>::info = kImage.Info();

}  // namespace amortix2
