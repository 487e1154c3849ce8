#pragma once

// The component's interface in the platform's terms, made from its description alone. The type library inside
// the DLL is compiled from the first of these texts. They are kept beside the sources, so that a change of
// the interface is seen as one.

#include <string>
#include <string_view>

namespace amortix2::com {

/// The whole text of the type library: enumerations, records, and per class a dual interface with every
/// member, its dispatch number, its parameters and their help. Raises std::logic_error when a class, record
/// or enumeration has no identifier (com/identity.h).
std::string InterfaceDefinition();

/// The side-by-side manifest by which the DLL can be used without registration, also across apartments.
std::string AssemblyManifest(std::string_view productVersion);

/// A header that lists each interface's members in order, from which the vtables are made.
std::string InterfaceMembers();

}  // namespace amortix2::com
