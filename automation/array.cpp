#include "amortix2/automation/array.h"

#include <iterator>
#include <new>
#include <utility>

namespace amortix2 {
namespace {

std::size_t CellCount(Bounds rows, Bounds columns) {
  if (rows.Count() < 0 || columns.Count() < 0) Raise(ErrorNumber::SubscriptOutOfRange);
  if (rows.Count() > kLargestArray || columns.Count() > kLargestArray ||
      rows.Count() * columns.Count() > kLargestArray) {
    Raise(ErrorNumber::OutOfMemory);
  }
  return static_cast<std::size_t>(rows.Count() * columns.Count());
}

void ResizeCells(std::vector<Variant>& cells, std::size_t count) {
  try {
    cells.resize(count);
  } catch (const std::bad_alloc&) {
    Raise(ErrorNumber::OutOfMemory);
  }
}

}  // namespace

Array::Array(Bounds elements) : rank_(1), rows_(elements) { ResizeCells(cells_, CellCount(rows_, columns_)); }

Array::Array(Bounds rows, Bounds columns) : rank_(2), rows_(rows), columns_(columns) {
  ResizeCells(cells_, CellCount(rows_, columns_));
}

Array::Array(std::int32_t lower, std::vector<Variant> cells)
    : rank_(1), rows_{lower, 0}, cells_(std::move(cells)) {
  if (std::ssize(cells_) > kLargestArray) Raise(ErrorNumber::OutOfMemory);
  rows_.upper = lower + static_cast<std::int32_t>(cells_.size()) - 1;
}

Array& Array::operator=(Array other) noexcept {
  std::swap(rank_, other.rank_);
  std::swap(rows_, other.rows_);
  std::swap(columns_, other.columns_);
  cells_.swap(other.cells_);
  return *this;
}

Bounds Array::Dimension(int dimension) const {
  if (dimension < 1 || dimension > rank_) Raise(ErrorNumber::SubscriptOutOfRange);
  return dimension == 1 ? rows_ : columns_;
}

void Array::Resize(std::int32_t upper) {
  if (rank_ != 1) Raise(ErrorNumber::SubscriptOutOfRange);
  ResizeCells(cells_, CellCount({rows_.lower, upper}, columns_));
  rows_.upper = upper;
}

}  // namespace amortix2
