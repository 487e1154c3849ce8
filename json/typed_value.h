#pragma once

// Values of any described type as JSON, read from a request and written to a reply. A record is an object of
// its fields, an array of records a JSON array, in which records start at index 1 for a parameter and at
// index 0 for a record's own list; {"lower": [0], "values": [...]} says otherwise. Everything else goes
// through a variant.

#include <string>

#include "amortix2/component/description.h"
#include "amortix2/json/tree.h"
#include "amortix2/json/variant_writer.h"

namespace amortix2::json {

/// Overwrites an argument. Raises RequestError for JSON of a wrong shape and for fields that the record does
/// not have, AutomationError as the conversion to the argument's type does.
void ReadArgument(const Tree& tree, Value& argument);

/// Appends a value that came back; `form` is for variants.
void AppendArgument(std::string& out, const Value& argument, Form form);

}  // namespace amortix2::json
