#pragma once

// The page server's scripting context, as the component sees it: an object from which the response is asked
// for by name, and to which an image is written as a byte array, late-bound.

#include "amortix2/automation/page.h"
#include "amortix2/com/com_pointer.h"
#include "amortix2/com/platform.h"

namespace amortix2::com {

class PageContext final : public ScriptingContext, private PageResponse {
 public:
  /// Keeps a counted reference to the server's object.
  explicit PageContext(ComPointer<IDispatch> context) : context_(std::move(context)) {}

  /// Asks the server's object for its response. Raises ForeignError with the server's own failure,
  /// ObjectNotSet when it gives no object.
  PageResponse& Response() override;

 private:
  void BinaryWrite(std::span<const std::uint8_t> bytes) override;

  ComPointer<IDispatch> context_;
  ComPointer<IDispatch> response_;
};

}  // namespace amortix2::com
