#include "amortix2/cli/lines.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <new>
#include <system_error>
#include <utility>

#include "amortix2/json/reply.h"
#include "amortix2/json/request_error.h"

namespace amortix2::cli {
namespace {

constexpr std::size_t kReadSize = std::size_t{1} << 16;
constexpr std::size_t kWriteSize = std::size_t{1} << 16;

/// After a call that failed: waits where it only found a descriptor that does not block not ready.
void WaitOrRaise(int descriptor, short event, const std::string& what) {
  if (errno == EINTR) return;
  if (errno != EAGAIN && errno != EWOULDBLOCK) {
    throw std::system_error(errno, std::generic_category(), what);
  }
  pollfd ready{descriptor, event, 0};
  poll(&ready, 1, -1);
}

}  // namespace

std::size_t ReadSome(int descriptor, char* place, std::size_t most) {
  while (true) {
    const ssize_t count = read(descriptor, place, most);
    if (count >= 0) return static_cast<std::size_t>(count);
    WaitOrRaise(descriptor, POLLIN, "cannot read");
  }
}

void WriteAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(descriptor, bytes.data(), bytes.size());
    if (count >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(count));
    } else {
      WaitOrRaise(descriptor, POLLOUT, "cannot write");
    }
  }
}

std::string ReadWhole(const std::string& path) {
  const int descriptor = path == "-" ? STDIN_FILENO : open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) throw std::system_error(errno, std::generic_category(), "cannot read " + path);
  std::string text;
  for (std::size_t count = kReadSize; count > 0 && text.size() <= json::kLongestRequest;) {
    const std::size_t size = text.size();
    text.resize(size + kReadSize);
    count = ReadSome(descriptor, text.data() + size, kReadSize);
    text.resize(size + count);
  }
  if (descriptor != STDIN_FILENO) close(descriptor);
  if (text.size() > json::kLongestRequest) throw json::RequestError(path + " is too long");
  return text;
}

LineReader::LineReader(int descriptor, std::size_t longest)
    : descriptor_(descriptor), longest_(longest), buffer_(2 * kReadSize) {}

bool LineReader::HasLine() noexcept {
  const auto first = buffer_.begin() + static_cast<std::ptrdiff_t>(scanned_);
  const auto last = buffer_.begin() + static_cast<std::ptrdiff_t>(end_);
  const auto found = std::find(first, last, '\n');
  scanned_ = static_cast<std::size_t>(found - buffer_.begin());
  return found != last;
}

std::optional<Line> LineReader::Next() {
  while (!HasLine() && !atEnd_) {
    DropExcess();
    ReadMore();
  }
  const bool isLost = std::exchange(isLost_, false);
  if (begin_ == end_ && !isLost) return std::nullopt;
  const std::string_view line(buffer_.data() + begin_, scanned_ - begin_);
  // At the end of the input there may be no LF to step over.
  begin_ = scanned_ = std::min(scanned_ + 1, end_);
  return isLost ? Line{{}, false} : Line{line};
}

/// Of a line that is too long already, only one byte over the limit is kept; of one that is lost, nothing.
void LineReader::DropExcess() noexcept {
  const std::size_t kept = isLost_ ? begin_ : begin_ + longest_ + 1;
  if (end_ > kept) scanned_ = end_ = kept;
}

void LineReader::MakeRoom() {
  if (buffer_.size() >= end_ + kReadSize) return;
  try {
    buffer_.resize(2 * buffer_.size());
  } catch (const std::bad_alloc&) {
    isLost_ = true;
    scanned_ = end_ = begin_;
  }
}

void LineReader::ReadMore() {
  if (begin_ > 0) {
    std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
    scanned_ -= begin_;
    end_ -= begin_;
    begin_ = 0;
  }
  MakeRoom();
  const std::size_t count = ReadSome(descriptor_, buffer_.data() + end_, kReadSize);
  end_ += count;
  atEnd_ = count == 0;
}

LineWriter::LineWriter(int descriptor) : descriptor_(descriptor) { waiting_.reserve(kWriteSize); }

void LineWriter::WriteLine(std::string_view line) {
  if (waiting_.size() + line.size() >= kWriteSize) Flush();
  // A long line goes out as it is: it is not copied, and takes no memory here.
  if (line.size() >= kWriteSize) {
    WriteAll(descriptor_, line);
    line = {};
  }
  waiting_ += line;
  waiting_ += '\n';
}

void LineWriter::Flush() {
  WriteAll(descriptor_, waiting_);
  waiting_.clear();
}

}  // namespace amortix2::cli
