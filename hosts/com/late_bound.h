#pragma once

// Calls of other objects by name, as scripts make them.

#include <span>

#include "amortix2/com/owned_variant.h"
#include "amortix2/com/platform.h"

namespace amortix2::com {

/// Calls a method or reads a property of `object`; arguments stand in the order of the call. Failures are
/// raised as ForeignError with the number, source and text that the object gave (std::bad_alloc for
/// E_OUTOFMEMORY), NoSuchMember when it has no member of the name.
OwnedVariant CallByName(IDispatch& object, const wchar_t* name, std::span<const OwnedVariant> arguments = {});

/// Reads an object's default property; says whether it has one. Failures are raised as for CallByName.
bool GetDefaultProperty(IDispatch& object, VARIANT& value);

}  // namespace amortix2::com
