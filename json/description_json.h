#pragma once

// The component's description as JSON, for whoever makes a form, a page or a client of it: {"classes": [{...,
// "members": [{..., "parameters": [...]}]}], "records": [{..., "fields": [...]}], "enumerations": [{...,
// "constants": [...]}]}. Everything has its name, its title and its help; a parameter or field its type and
// its unit; a member and its parameters besides what meaning.h says of them, each thing left out that there
// is not.

#include <string>

#include "amortix2/component/description.h"

namespace amortix2::json {

std::string DescriptionJson();

/// A type in words: "Double", "enumLoanType", "array of tSchedule".
std::string TypeText(const TypeInfo& type);

/// "in", "in, optional" or "in/out".
std::string_view Direction(const ParameterInfo& parameter);

}  // namespace amortix2::json
