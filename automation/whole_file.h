#pragma once

// How a result becomes a file: whole or not at all. Paths are UTF-8.

#include <cstdint>
#include <span>
#include <string>

namespace amortix2 {

/// Writes `bytes` as the file `path`, in place of a file that is there. They go to a new file beside it,
/// which takes the name once it is complete; after an error the old file, or its absence, is as before.
/// Raises PathNotFound when the folder does not exist, PathFileAccess when `path` is empty or names a folder
/// or a device, when it may not be written and when writing fails.
void WriteWholeFile(const std::string& path, std::span<const std::uint8_t> bytes);

}  // namespace amortix2
