#pragma once

// The automation class GifChart: line charts as GIF images. As a page object it is handed the page's context
// when the page starts, and sends charts to that page's response; rasters can also be written to files. One
// object serves one thread at a time.

#include <memory>
#include <string>

#include "amortix2/automation/page.h"
#include "amortix2/automation/public.h"
#include "amortix2/automation/variant.h"
#include "amortix2/charts/graph_size.h"

namespace AMORTIX2_PUBLIC amortix2 {

class GifChart {
 public:
  /// Keeps the context for later charts, in place of an earlier one.
  void OnStartPage(std::shared_ptr<ScriptingContext> iScriptingContext);

  /// Writes a raster and its palette as the GIF file `nm`: charts/raster.h says how they are read, with which
  /// errors, automation/whole_file.h how the file is written. After an error no file has changed.
  void writeGifFile(const std::string& nm, const Variant& vImg, const Variant& vPal) const;

  /// Reads the file named by `x` through once (charts/read_through.h). Raises TypeMismatch when `x` has no
  /// text.
  void DumpAFile(const Variant& x) const;

  /// Draws the table `vColDat` (charts/line_chart.h) in the colours of `vPal`, of which 192, 193, 211 and 255
  /// become the chart's own, and sends it to the page. `typ` is not used. Raises ObjectNotSet without a page,
  /// what DrawLineChart and ReadPalette raise, and SubscriptOutOfRange for a palette of fewer than 256
  /// colours of three components; nothing is sent then.
  void LineChart(const Variant& vColDat, const Variant& vPal, const Variant& typ);

  /// Height and width of the chart in pixels; 0 keeps the old value (charts/graph_size.h).
  void SetGraphDimensions(const Variant& height, const Variant& width);

  /// The axis that the chart of `vColDat` has: its upper and its lower end and one of its ten intervals, so
  /// that a page can label the image. Raises what DrawLineChart raises for a table; nothing is written then.
  void AxisRange(const Variant& vColDat, Variant& vTop, Variant& vBottom, Variant& vStep) const;

 private:
  GraphSize size_;
  std::shared_ptr<ScriptingContext> context_;
};

}  // namespace amortix2
