#include "automation/array.h"

#include <new>

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

std::vector<Variant> EmptyCells(std::size_t count) {
  try {
    return std::vector<Variant>(count);
  } catch (const std::bad_alloc&) {
    Raise(ErrorNumber::OutOfMemory);
  }
}

}  // namespace

Array::Array(Bounds elements)
    : rank_(1), rows_(elements), cells_(EmptyCells(CellCount(elements, columns_))) {}

Array::Array(Bounds rows, Bounds columns)
    : rank_(2), rows_(rows), columns_(columns), cells_(EmptyCells(CellCount(rows, columns))) {}

Bounds Array::Dimension(int dimension) const {
  if (dimension < 1 || dimension > rank_) Raise(ErrorNumber::SubscriptOutOfRange);
  return dimension == 1 ? rows_ : columns_;
}

void Array::Resize(std::int32_t upper) {
  if (rank_ != 1) Raise(ErrorNumber::SubscriptOutOfRange);
  cells_.resize(CellCount({rows_.lower, upper}, columns_));
  rows_.upper = upper;
}

}  // namespace amortix2
