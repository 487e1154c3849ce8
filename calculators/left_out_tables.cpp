#include "amortix2/calculators/left_out_tables.h"

#include <algorithm>
#include <utility>

namespace amortix2::calculators {
namespace {

thread_local std::span<const LeftOutTable> leftOut;

}  // namespace

LeavingOut::LeavingOut(std::span<const LeftOutTable> tables) noexcept
    : before_(std::exchange(leftOut, tables)) {}

LeavingOut::~LeavingOut() { leftOut = before_; }

const LeftOutTable* LeavingOut::Find(const Variant& result) noexcept {
  const auto found = std::ranges::find(leftOut, &result, &LeftOutTable::result);
  return found == leftOut.end() ? nullptr : &*found;
}

}  // namespace amortix2::calculators
