#include "amortix2/charts/markup.h"

#include <utility>

namespace amortix2 {
void MarkupWriter::Check(std::size_t start) {
  line_.resize(used_);
  const int errors = tags_.Follow(std::string_view(line_).substr(start));
  for (int i = 0; i < errors; ++i) line_.insert(start, kSyncError);
  used_ = line_.size();
}

Array MarkupWriter::Finish() {
  if (used_ > 0) {
    EndLine();
  } else {
    lines_.emplace_back();
  }
  return {0, std::move(lines_)};
}

std::string SignedText(std::int64_t number) { return (number >= 0 ? " " : "") + std::to_string(number); }

}  // namespace amortix2
