#pragma once

// Lines from and to file descriptors, in large pieces.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace amortix2::cli {

/// Writes all bytes; waits where a descriptor that does not block takes none. Raises std::system_error when
/// that fails.
void WriteAll(int descriptor, std::string_view bytes);

/// Up to `most` bytes into `place`, waiting for some; 0 at the end. Raises std::system_error.
std::size_t ReadSome(int descriptor, char* place, std::size_t most);

/// All of a file, or of standard input for "-". Raises std::system_error when it cannot be read, RequestError
/// when it is longer than a request may be.
std::string ReadWhole(const std::string& path);

struct Line {
  std::string_view text;
  bool isWhole = true;  ///< false where there was no memory for it; the text is then empty
};

/// Lines of bounded length whatever comes: what a line has beyond the limit, or beyond the memory that there
/// is, is read over. A line ends in LF or at the end of the input.
class LineReader {
 public:
  /// Lines of up to `longest` bytes are kept whole; of a longer one, the first `longest` + 1 bytes.
  LineReader(int descriptor, std::size_t longest);

  /// True when the next line can be had without waiting for input.
  bool HasLine() noexcept;

  /// The next line without its LF, valid until the next call; nothing at the end. Raises std::system_error
  /// when reading fails.
  std::optional<Line> Next();

 private:
  void MakeRoom();
  void ReadMore();
  void DropExcess() noexcept;

  int descriptor_;
  std::size_t longest_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;    // of the line that comes next
  std::size_t scanned_ = 0;  // no LF from begin_ up to here
  std::size_t end_ = 0;      // of what has been read
  bool isLost_ = false;      // the line that comes next, for lack of memory
  bool atEnd_ = false;
};

/// Takes all its memory when it is made.
class LineWriter {
 public:
  explicit LineWriter(int descriptor);

  /// Both raise std::system_error when writing fails.
  void WriteLine(std::string_view line);
  void Flush();

 private:
  int descriptor_;
  std::string waiting_;
};

}  // namespace amortix2::cli
