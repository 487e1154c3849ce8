#pragma once

// Completion scripts for shells: commands, members by short and full name, their inputs, and the choices of
// inputs that have some.

#include <string>

namespace amortix2::cli {

std::string BashCompletion();
std::string ZshCompletion();
std::string FishCompletion();

}  // namespace amortix2::cli
