#pragma once

// What the DLL writes into the registry so that its classes can be created by name, for the whole machine or
// for the current user alone, and takes out again. A 32-bit and a 64-bit DLL can be registered side by side;
// what both share stays until neither is.

namespace amortix2::com {

enum class RegistrationScope { Machine, User };

/// Raises ForeignError (access denied, say), with nothing left behind.
void Register(RegistrationScope scope);

/// Removes what Register wrote, and nothing else; what is missing already is no error. Raises ForeignError.
void Unregister(RegistrationScope scope);

}  // namespace amortix2::com
