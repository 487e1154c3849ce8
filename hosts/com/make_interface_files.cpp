// Prints one of the files that are made from the component's description:
//
//   amortix2_com_files idl | manifest

#include <cstdlib>
#include <exception>
#include <iostream>
#include <string_view>

#include "amortix2/com/interface_definition.h"

int main(int count, char** arguments) try {
  const std::string_view wanted = count == 2 ? arguments[1] : "";
  if (wanted == "idl") {
    std::cout << amortix2::com::InterfaceDefinition();
  } else if (wanted == "manifest") {
    std::cout << amortix2::com::AssemblyManifest(AMORTIX2_VERSION);
  } else {
    std::cerr << "usage: amortix2_com_files idl | manifest\n";
    return 2;
  }
  return EXIT_SUCCESS;
} catch (const std::exception& error) {
  std::cerr << "amortix2_com_files: " << error.what() << '\n';
  return EXIT_FAILURE;
}
