// Writes the files that are made from the component's description, and the pictures of its documents, to a
// folder, as they stand in the project; run in the project's own folder, where the pictures' requests are:
//
//   amortix2_documents .

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "amortix2/automation/date.h"
#include "amortix2/cli/command_line.h"
#include "amortix2/cli/completions.h"
#include "amortix2/cli/made_documents.h"
#include "amortix2/json/reply.h"
#include "amortix2/json/tree.h"

namespace {

void Write(const std::filesystem::path& path, const std::string& text) {
  std::filesystem::create_directories(path.parent_path());
  std::ofstream file;
  file.exceptions(std::ios::failbit | std::ios::badbit);
  file.open(path, std::ios::binary);
  file << text << std::flush;
}

// A line is a request of a picture, whose id is the name of its file.
void WritePictures(const std::filesystem::path& folder) {
  namespace json = amortix2::json;
  const amortix2::FixedClock clock(amortix2::MakeDate(2026, 12, 1));  // which no picture shows
  std::ifstream requests("docs/images/pictures.jsonl");
  if (!requests) throw std::runtime_error("docs/images/pictures.jsonl is not here");
  for (std::string request; std::getline(requests, request);) {
    const json::Tree reply = json::ParseTree(json::Answer(request, {}, clock)).tree.value();
    Write(folder / "docs/images" / (reply.at("id").get<std::string>() + ".svg"),
          reply.at("results").at("vRes").get<std::string>() + '\n');
  }
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
  WritePictures(folder);
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
