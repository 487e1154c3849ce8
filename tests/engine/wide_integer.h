#pragma once

namespace amortix2 {

/// 128 bits: room for the product of an amount and all bits of a double.
__extension__ typedef __int128 WideInteger;  // NOLINT(modernize-use-using): only thus -Wpedantic lets it pass

}  // namespace amortix2
