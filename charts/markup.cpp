#include "amortix2/charts/markup.h"

#include <charconv>
#include <utility>

namespace amortix2 {
namespace {

constexpr std::int32_t kLinesAtOnce = 100;

}  // namespace

void MarkupWriter::Put(std::string_view pageText) {
  const std::size_t start = line_.size();
  line_ += pageText;
  if (pageText.find('%') == std::string_view::npos) return;
  const char* const end = CopySubstituted(pageText, '%', line_.data() + start);
  line_.resize(static_cast<std::size_t>(end - line_.data()));
}

void MarkupWriter::PutNumber(std::int64_t number) {
  char digits[20];
  line_.append(digits, std::to_chars(std::begin(digits), std::end(digits), number).ptr);
}

void MarkupWriter::Put(SignedNumber number) {
  if (number.value >= 0) line_ += ' ';
  PutNumber(number.value);
}

void MarkupWriter::Check(std::size_t start) {
  const int errors = tags_.Follow(std::string_view(line_).substr(start));
  for (int i = 0; i < errors; ++i) line_.insert(start, kSyncError);
}

void MarkupWriter::EndLine() {
  if (current_ > lines_.Dimension(1).upper) lines_.Resize(current_ + kLinesAtOnce);
  lines_.At(current_++) = std::string_view(line_);
  line_.clear();
}

Array MarkupWriter::Finish() {
  lines_.Resize(current_);
  if (!line_.empty()) lines_.At(current_) = std::string_view(line_);
  return std::move(lines_);
}

std::string SignedText(std::int64_t number) { return (number >= 0 ? " " : "") + std::to_string(number); }

}  // namespace amortix2
