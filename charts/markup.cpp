#include "charts/markup.h"

#include <charconv>
#include <utility>

namespace amortix2 {
namespace {

constexpr std::int32_t kLinesAtOnce = 100;

}  // namespace

void MarkupWriter::Substitute(std::string_view text, char placeholder) {
  const std::size_t start = line_.size();
  line_.resize(start + text.size());
  char* out = line_.data() + start;
  const char* const end = text.data() + text.size();
  for (const char* in = text.data(); in != end; ++in) {
    char c = *in;
    if (c == '%') {
      const bool pair = in + 1 != end && in[1] == '%';
      if (pair) ++in;
      c = pair ? '%' : placeholder;
    }
    *out++ = c;
  }
  line_.resize(static_cast<std::size_t>(out - line_.data()));
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
