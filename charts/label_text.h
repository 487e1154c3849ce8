#pragma once

// How wide a label is, and how it is made to fit. A server does not know the reader's face, so widths are
// those of wide faces at the size of the axis labels, ten pixels; usual ones are narrower. Labels may hold
// markup, which has no width.

#include <cstdint>
#include <string>
#include <string_view>

namespace amortix2 {

/// Pixels that a label in UTF-8 needs on one line, rounded up.
std::int64_t LabelWidth(std::string_view label);

/// The label as it goes into a cell of `width` pixels: unchanged when each of its words fits. Else words
/// break at "-" and "/" ("01-31-2001" becomes "01-31" over "2001"), what is too wide even so is cut and ends
/// in an ellipsis, and the whole label is the title of the result. Cells of less than 24 pixels, too narrow
/// for any year, and labels with elements or quotes are left alone.
std::string FittedLabel(std::string_view label, std::int64_t width);

}  // namespace amortix2
