#pragma once

// The platform stores the columns of an array one after the other, an Array its rows.

#include <cstddef>

#include "amortix2/automation/array.h"

namespace amortix2::com {

/// Visits every cell with its index in Array::Cells and where the platform has it.
template <class Visit>
void ForEachCell(const Array& array, Visit visit) {
  const std::size_t rows = array.Rank() == 2 ? static_cast<std::size_t>(array.Dimension(1).Count()) : 1;
  const std::size_t columns = rows == 0 ? 0 : array.Cells().size() / rows;
  std::size_t index = 0;
  for (std::size_t row = 0; row < rows; ++row) {
    for (std::size_t column = 0; column < columns; ++column) visit(index++, column * rows + row);
  }
}

}  // namespace amortix2::com
