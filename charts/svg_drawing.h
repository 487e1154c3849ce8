#pragma once

// An SVG chart as one document: lays out title, legend, plot, axes and caption around one another, draws
// them, and gives the picture its name and description.

#include <string>

#include "amortix2/charts/svg_plot.h"

namespace amortix2 {

/// The document, "<svg ...>" to "</svg>". The same input gives the same bytes everywhere. Its identifiers are
/// made from its content, so that several charts can stand in one page.
std::string DrawSvg(const SvgInput& input);

}  // namespace amortix2
