#include "amortix2/charts/gif_chart.h"

#include <utility>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/error.h"
#include "amortix2/automation/whole_file.h"
#include "amortix2/charts/gif_writer.h"
#include "amortix2/charts/line_chart.h"
#include "amortix2/charts/read_through.h"
#include "amortix2/charts/table_axis.h"

namespace amortix2 {

void GifChart::OnStartPage(std::shared_ptr<ScriptingContext> iScriptingContext) {
  context_ = std::move(iScriptingContext);
}

void GifChart::writeGifFile(const std::string& nm, const Variant& vImg, const Variant& vPal) const {
  const Raster image = ReadRaster(vImg);
  const Palette palette = ReadPalette(vPal);
  WriteWholeFile(nm, EncodeGif(image, palette));
}

void GifChart::DumpAFile(const Variant& x) const { ReadThrough(ToText(x)); }

void GifChart::LineChart(const Variant& vColDat, const Variant& vPal, const Variant& /*typ*/) {
  if (context_ == nullptr) Raise(ErrorNumber::ObjectNotSet);
  Palette colours = ReadPalette(vPal);
  SetChartColours(colours);
  context_->Response().BinaryWrite(EncodeGif(DrawLineChart(size_, vColDat), colours));
}

void GifChart::SetGraphDimensions(const Variant& height, const Variant& width) { size_.Set(height, width); }

void GifChart::AxisRange(const Variant& vColDat, Variant& vTop, Variant& vBottom, Variant& vStep) const {
  WriteAxisRange(LineChartAxis(vColDat), vTop, vBottom, vStep);
}

}  // namespace amortix2
