#pragma once

// Arrays as automation knows them: bounds chosen by their maker, every access checked. Array holds variants
// in one or two dimensions, first index rows, second index columns; RecordArray holds records in one
// dimension.

#include <cstddef>
#include <cstdint>
#include <new>
#include <span>
#include <utility>
#include <vector>

#include "amortix2/automation/error.h"
#include "amortix2/automation/public.h"
#include "amortix2/automation/variant.h"

namespace AMORTIX2_PUBLIC amortix2 {

/// The first and the last index of one dimension, both inclusive. An empty dimension has upper = lower - 1.
struct Bounds {
  std::int32_t lower = 0;
  std::int32_t upper = -1;

  std::int64_t Count() const noexcept { return std::int64_t{upper} - lower + 1; }
  bool Contains(std::int64_t index) const noexcept { return index >= lower && index <= upper; }
  friend bool operator==(Bounds, Bounds) = default;
};

/// More cells than this raise OutOfMemory before anything is allocated.
inline constexpr std::int64_t kLargestArray = std::int64_t{1} << 24;

class Array {
 public:
  /// Cells start Empty. Raises SubscriptOutOfRange when a dimension's upper bound lies more than one below
  /// its lower bound, OutOfMemory above kLargestArray cells or when memory runs out.
  explicit Array(Bounds elements);
  /// A one-dimensional array of these cells.
  Array(std::int32_t lower, std::vector<Variant> cells);
  Array(Bounds rows, Bounds columns);

  Array(const Array& other) = default;
  /// Leaves no rows behind.
  Array(Array&& other) noexcept
      : rank_(other.rank_),
        rows_(std::exchange(other.rows_, {})),
        columns_(other.columns_),
        cells_(std::move(other.cells_)) {}
  // By value: the other array may lie in a cell of this one.
  Array& operator=(Array other) noexcept;
  ~Array() = default;

  int Rank() const noexcept { return rank_; }

  /// Bounds of a dimension, 1 or 2 (2 only with two dimensions). Raises SubscriptOutOfRange.
  Bounds Dimension(int dimension) const;

  /// Checked access. Raises SubscriptOutOfRange outside the bounds, or with another number of indices than
  /// the array has dimensions.
  Variant& At(std::int64_t index) { return cells_[Offset(index)]; }
  const Variant& At(std::int64_t index) const { return cells_[Offset(index)]; }
  Variant& At(std::int64_t row, std::int64_t column) { return cells_[Offset(row, column)]; }
  const Variant& At(std::int64_t row, std::int64_t column) const { return cells_[Offset(row, column)]; }

  /// The `count` cells of a row from a column on, checked once. Raises as At does.
  std::span<Variant> Run(std::int64_t row, std::int64_t column, std::int32_t count) {
    static_cast<void>(Offset(row, column + count - 1));
    return std::span(cells_).subspan(Offset(row, column), static_cast<std::size_t>(count));
  }

  /// All cells, row after row.
  std::span<Variant> Cells() noexcept { return cells_; }
  std::span<const Variant> Cells() const noexcept { return cells_; }

  /// Changes the upper bound of a one-dimensional array, keeping the cells that remain. Raises as the
  /// constructor does, and SubscriptOutOfRange with two dimensions; the array is then as before.
  void Resize(std::int32_t upper);

  friend bool operator==(const Array&, const Array&) = default;

 private:
  std::size_t Offset(std::int64_t index) const {
    if (rank_ != 1 || !rows_.Contains(index)) Raise(ErrorNumber::SubscriptOutOfRange);
    return static_cast<std::size_t>(index - rows_.lower);
  }
  std::size_t Offset(std::int64_t row, std::int64_t column) const {
    if (rank_ != 2 || !rows_.Contains(row) || !columns_.Contains(column))
      Raise(ErrorNumber::SubscriptOutOfRange);
    return static_cast<std::size_t>((row - rows_.lower) * columns_.Count() + (column - columns_.lower));
  }

  int rank_;
  Bounds rows_;
  Bounds columns_{0, 0};
  std::vector<Variant> cells_;
};

template <class Record>
class RecordArray {
 public:
  RecordArray() = default;
  /// Records `lower` to `upper`, zero-filled. Raises as Array does.
  RecordArray(std::int32_t lower, std::int32_t upper) : lower_(lower) {
    const std::int64_t count = Bounds{lower, upper}.Count();
    if (count < 0) Raise(ErrorNumber::SubscriptOutOfRange);
    if (count > kLargestArray) Raise(ErrorNumber::OutOfMemory);
    try {
      records_.resize(static_cast<std::size_t>(count));
    } catch (const std::bad_alloc&) {
      Raise(ErrorNumber::OutOfMemory);
    }
  }

  std::int32_t Lower() const noexcept { return lower_; }
  std::int32_t Upper() const noexcept { return lower_ - 1 + static_cast<std::int32_t>(records_.size()); }

  /// Checked access. Raises SubscriptOutOfRange.
  Record& At(std::int64_t index) {
    if (!Bounds{Lower(), Upper()}.Contains(index)) Raise(ErrorNumber::SubscriptOutOfRange);
    return records_[static_cast<std::size_t>(index - lower_)];
  }

 private:
  std::int32_t lower_ = 0;
  std::vector<Record> records_;
};

}  // namespace amortix2
