#include "amortix2/cli/output.h"

#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace amortix2::cli {

void WriteAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(descriptor, bytes.data(), bytes.size());
    if (count >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(count));
    } else if (errno != EINTR) {
      throw std::system_error(errno, std::generic_category(), "cannot write");
    }
  }
}

void Output::WriteLine(std::string_view line) {
  constexpr std::size_t kPiece = std::size_t{1} << 16;
  if (waiting_.size() + line.size() >= kPiece) Flush();
  // A long line goes out as it is: it is not copied, and takes no memory here.
  if (line.size() >= kPiece) {
    WriteAll(descriptor_, line);
    line = {};
  }
  waiting_ += line;
  waiting_ += '\n';
}

void Output::Flush() {
  WriteAll(descriptor_, waiting_);
  waiting_.clear();
}

}  // namespace amortix2::cli
