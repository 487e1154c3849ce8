// Writes the files that are made from the component's description to a folder:
//
//   amortix2_com_files hosts/com

#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <string>

#include "amortix2/com/interface_definition.h"

int main(int count, char** arguments) try {
  if (count != 2) {
    std::cerr << "usage: amortix2_com_files FOLDER\n";
    return 2;
  }
  const auto write = [&](const char* name, const std::string& text) {
    std::ofstream file(std::string(arguments[1]) + "/" + name);
    file.exceptions(std::ios::failbit | std::ios::badbit);
    file << text << std::flush;
  };
  write("amortix2.idl", amortix2::com::InterfaceDefinition());
  write("Amortix2.manifest", amortix2::com::AssemblyManifest(AMORTIX2_VERSION));
  write("interface_members.h", amortix2::com::InterfaceMembers());
  return EXIT_SUCCESS;
} catch (const std::exception& error) {
  std::cerr << "amortix2_com_files: " << error.what() << '\n';
  return EXIT_FAILURE;
}
