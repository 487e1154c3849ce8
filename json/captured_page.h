#pragma once

// The page that a chart object sees when it is called by a request: its response keeps the bytes that are
// written to it.

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "amortix2/automation/page.h"
#include "amortix2/component/description.h"

namespace amortix2::json {

class CapturedPage final : public ScriptingContext, private PageResponse {
 public:
  PageResponse& Response() override { return *this; }
  std::span<const std::uint8_t> Written() const noexcept { return written_; }

 private:
  void BinaryWrite(std::span<const std::uint8_t> bytes) override;

  std::vector<std::uint8_t> written_;
};

/// Starts the page for an object: hands it to each of its members that takes a page's context.
void StartPage(Object& object, const std::shared_ptr<CapturedPage>& page);

}  // namespace amortix2::json
