#pragma once

// Automation values as JSON: in the plain form numbers, texts and nested arrays; with types, every value as
// {"type": T, "value": V}, cells included, and arrays with their lower bounds. What is written with types
// reads back as the same value.

#include <optional>
#include <string>
#include <string_view>

#include "amortix2/automation/variant.h"

namespace amortix2::json {

enum class Form { Plain, WithTypes };

/// Appends the value. Raises Overflow for a number that is not finite.
void AppendVariant(std::string& out, const Variant& value, Form form);

/// A type as JSON names it ("Currency").
std::string_view TypeName(VariantType type) noexcept;
std::optional<VariantType> FindType(std::string_view name) noexcept;

}  // namespace amortix2::json
