#pragma once

// The files that the component touches: a result is written whole or not at all, and a file can be
// read through once. Paths are UTF-8.

#include <cstdint>
#include <span>
#include <string>

namespace amortix2 {

/// Writes `bytes` as the file `path`, in place of a file that is there. They go to a new file beside it,
/// which takes the name once it is complete; after an error the old file, or its absence, is as before.
/// Raises PathNotFound when the folder does not exist, PathFileAccess when `path` is empty or names a folder
/// or a device, when it may not be written and when writing fails.
void WriteWholeFile(const std::string& path, std::span<const std::uint8_t> bytes);

/// Reads the file once from start to end and drops what it read; does nothing when there is no such file or
/// it is empty. Raises Overflow for a file of 32768 bytes or more, PathFileAccess when it cannot be read.
void ReadThrough(const std::string& path);

}  // namespace amortix2
