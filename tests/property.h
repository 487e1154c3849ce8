#pragma once

// What holds for all values: rapidcheck tries a property's body with random ones and, where an expectation
// fails or anything is thrown, looks for smaller ones that show it too. RC_PARAMS="seed=7" in the environment
// tries others.

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <cstdlib>
#include <sstream>

#include "random.h"

namespace amortix2 {

class ShrinkingRandom final : public Random {
 public:
  std::int64_t Below(std::int64_t limit) override {
    return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange<std::int64_t>(0, limit));
  }
};

/// Runs body(random) `cases` times.
template <class Body>
void ForAll(int cases, Body body) {
  auto parameters = rc::detail::configuration().testParams;
  parameters.maxSuccess = cases;
  if (!std::getenv("RC_PARAMS")) parameters.seed = 20010131;
  const auto property = [&] {
    testing::TestPartResultArray parts;
    {
      using Reporter = testing::ScopedFakeTestPartResultReporter;
      const Reporter reporter(Reporter::INTERCEPT_ONLY_CURRENT_THREAD, &parts);
      ShrinkingRandom random;
      body(random);
    }
    for (int i = 0; i < parts.size(); ++i) {
      if (parts.GetTestPartResult(i).failed()) RC_FAIL(parts.GetTestPartResult(i).message());
    }
  };
  const auto result = rc::detail::checkTestable(property, rc::detail::TestMetadata(), parameters);
  std::ostringstream told;
  rc::detail::printResultMessage(result, told);
  EXPECT_TRUE(result.template is<rc::detail::SuccessResult>()) << told.str();
}

}  // namespace amortix2
