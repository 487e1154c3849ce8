#pragma once

// The page of a web server as the component sees it: a scripting context that is handed to a page object when
// the page starts, and the response to which an image is written. Hosts implement both.

#include <cstdint>
#include <span>

#include "amortix2/automation/public.h"

namespace AMORTIX2_PUBLIC amortix2 {

class PageResponse {
 public:
  virtual ~PageResponse() = default;
  /// Sends bytes to the browser. Failures are raised as AutomationError.
  virtual void BinaryWrite(std::span<const std::uint8_t> bytes) = 0;
};

class ScriptingContext {
 public:
  virtual ~ScriptingContext() = default;
  /// The response of the page that runs; valid as long as the context.
  virtual PageResponse& Response() = 0;
};

}  // namespace amortix2
