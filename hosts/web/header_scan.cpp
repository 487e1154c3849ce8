#include "amortix2/web/header_scan.h"

namespace amortix2::web {

bool HeaderScan::IsWrong(char before, char c) const noexcept {
  if ((before == '\r') != (c == '\n')) return true;
  const bool startsLine = read_ == lineStart_;
  if (c == '\t' || c == ' ') return startsLine;
  return (c >= 0 && c < ' ' && c != '\r' && c != '\n') || c == '\x7f';
}

HeaderState HeaderScan::Read(std::string_view bytes) noexcept {
  for (; read_ < bytes.size(); ++read_) {
    const char c = bytes[read_];
    if (IsWrong(read_ == 0 ? '\0' : bytes[read_ - 1], c)) return HeaderState::Wrong;
    if (c != '\n') continue;
    const bool isEmpty = read_ == lineStart_ + 1;
    if (isEmpty) return lines_ == 0 ? HeaderState::Wrong : HeaderState::Complete;
    ++lines_;
    lineStart_ = read_ + 1;
  }
  return HeaderState::Unfinished;
}

}  // namespace amortix2::web
