#pragma once

// The platform stores the columns of an array one after the other, an Array its rows.

#include <algorithm>
#include <cstddef>

#include "automation/array.h"

namespace amortix2 {

class ColumnOrder {
 public:
  explicit ColumnOrder(const Array& array)
      : rows_(array.Rank() == 2 ? static_cast<std::size_t>(array.Dimension(1).Count()) : 1),
        columns_(std::max<std::size_t>(1, array.Cells().size() / std::max<std::size_t>(1, rows_))) {}

  /// Where the platform has the cell that Array::Cells has at `index`.
  std::size_t Of(std::size_t index) const noexcept { return index % columns_ * rows_ + index / columns_; }

 private:
  std::size_t rows_;
  std::size_t columns_;
};

}  // namespace amortix2
