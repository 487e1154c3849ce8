#pragma once

#include <gtest/gtest.h>

#include <optional>

#include "amortix2/automation/error.h"

namespace amortix2 {

/// The error that an action raises; nothing when it goes well.
template <class Action>
std::optional<ErrorNumber> ErrorOf(Action action) {
  try {
    action();
  } catch (const AutomationError& error) {
    return error.Number();
  }
  return std::nullopt;
}

}  // namespace amortix2
