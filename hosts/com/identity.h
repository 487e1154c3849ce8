#pragma once

// The fixed identifiers under which the component is known to the platform: the type library, its classes,
// their interfaces, its records and enumerations. Once published an identifier never changes and never means
// anything else. This is the only list of them; everything else about the interface comes from
// component/description.h.

#include <string>
#include <string_view>

namespace amortix2::com {

inline constexpr std::string_view kLibraryName = "Amortix2";

/// Version of the interface, in the type library and behind the class names ("Amortix2.Calculator.1").
inline constexpr int kInterfaceMajor = 1;
inline constexpr int kInterfaceMinor = 0;
std::string InterfaceVersion();

/// The name of the default interface of a class ("_Calculator").
std::string InterfaceName(std::string_view className);

/// The name under which a script creates a class ("Amortix2.Calculator"), and the same with its version.
std::string ProgramId(std::string_view className);
std::string VersionedProgramId(std::string_view className);

/// The identifier of a library, class, interface ("_Calculator"), record or enumeration by its name, as 36
/// characters without braces. Empty when the name has none: such a thing is not published.
std::string_view IdentifierOf(std::string_view name) noexcept;

/// The platform's own marshaler of dual interfaces, which reads the type library.
inline constexpr std::string_view kTypeLibraryProxy = "00020424-0000-0000-C000-000000000046";

/// Names the custom data in which the type library keeps the help of a parameter.
inline constexpr std::string_view kParameterHelp = "parameter help";

}  // namespace amortix2::com
