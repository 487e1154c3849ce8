// Writes the files that are made from the component's description to a folder, as they stand in the project:
//
//   amortix2_documents .

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "amortix2/cli/command_line.h"
#include "amortix2/cli/completions.h"
#include "amortix2/cli/made_documents.h"

namespace {

void Write(const std::filesystem::path& path, const std::string& text) {
  std::filesystem::create_directories(path.parent_path());
  std::ofstream file;
  file.exceptions(std::ios::failbit | std::ios::badbit);
  file.open(path, std::ios::binary);
  file << text << std::flush;
}

}  // namespace

int main(int count, char** arguments) try {
  using namespace amortix2::cli;  // NOLINT(google-build-using-namespace): all of this program
  if (count != 2) {
    std::cerr << "usage: amortix2_documents FOLDER\n";
    return 2;
  }
  std::vector<Usage> usage;
  usage.reserve(kCommands.size());
  for (const std::string_view command : kCommands) usage.push_back({command, HelpOf(std::string(command))});
  const std::filesystem::path folder = arguments[1];
  Write(folder / "docs/calculators.md", CalculatorsGuide());
  Write(folder / "docs/chart_reference.md", ChartReference());
  Write(folder / "packaging/amortix2.1", ManualPage(AMORTIX2_VERSION, usage));
  Write(folder / "packaging/completions/amortix2.bash", BashCompletion());
  Write(folder / "packaging/completions/_amortix2", ZshCompletion());
  Write(folder / "packaging/completions/amortix2.fish", FishCompletion());
  return EXIT_SUCCESS;
} catch (const std::exception& error) {
  std::cerr << "amortix2_documents: " << error.what() << '\n';
  return EXIT_FAILURE;
}
