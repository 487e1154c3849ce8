#pragma once

// How a result becomes a file: the old or the new file stands at every moment, wherever a new file may be
// made beside it. Paths are UTF-8.

#include <cstdint>
#include <span>
#include <string>

#include "amortix2/automation/public.h"

namespace AMORTIX2_PUBLIC amortix2 {

/// Writes `bytes` as the file `path`, in place of a file that is there. They go to a new file in the same
/// folder, which takes the name, and the old file's permissions, once it is complete; after an error the old
/// file, or its absence, is as before. Where the folder lets no new file be made but the file that is there
/// may be written, it is written in place (not on Windows): then an error half-way leaves it torn. A link
/// stays one; the file that it names is replaced, or made. Raises PathNotFound when the folder does not
/// exist, PathFileAccess when `path` is empty or names a folder or a device, when it may not be written and
/// when writing fails.
void WriteWholeFile(const std::string& path, std::span<const std::uint8_t> bytes);

}  // namespace amortix2
