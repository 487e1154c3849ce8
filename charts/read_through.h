#pragma once

// GifChart's check that a file can be read, which no page gets to see the content of.

#include <string>

namespace amortix2 {

/// Reads the file `path` (UTF-8) once from start to end and drops what it read; does nothing when there is no
/// such file or it is empty. Raises Overflow for a file of 32768 bytes or more, PathFileAccess when it cannot
/// be read.
void ReadThrough(const std::string& path);

}  // namespace amortix2
