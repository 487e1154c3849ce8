#pragma once

// How large the reply to a call will be, seen before it is written.

#include <cstddef>

#include "amortix2/json/execution.h"
#include "amortix2/json/variant_writer.h"

namespace amortix2::json {

struct ReplySize {
  std::size_t cells = 0;  ///< of the variants that are wanted; what is no array counts as one
  std::size_t least = 0;  ///< bytes of the values, however few digits their numbers have
  std::size_t most = 0;   ///< bytes with the most digits; texts that need no escape
};

/// Of the results that the request wants, without the records among them.
ReplySize SizeOfReply(const Execution& execution, Form form);

}  // namespace amortix2::json
