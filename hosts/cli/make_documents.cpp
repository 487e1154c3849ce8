// Writes the files that are made from the component's description, and the charts of its documents, to a
// folder, as they stand in the project; run in the project's own folder, where the charts' requests are:
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
#include <utility>
#include <vector>

#include "amortix2/automation/date.h"
#include "amortix2/cli/command_line.h"
#include "amortix2/cli/completions.h"
#include "amortix2/cli/made_documents.h"
#include "amortix2/json/reply.h"
#include "amortix2/json/tree.h"

namespace {

namespace json = amortix2::json;

void Write(const std::filesystem::path& path, const std::string& text) {
  std::filesystem::create_directories(path.parent_path());
  std::ofstream file;
  file.exceptions(std::ios::failbit | std::ios::badbit);
  file.open(path, std::ios::binary);
  file << text << std::flush;
}

// The answers to the requests of a file, a line each, by their ids.
std::vector<std::pair<std::string, json::Tree>> Charts(const std::string& file) {
  const amortix2::FixedClock clock({});  // no chart shows the day
  std::ifstream requests(file);
  if (!requests) throw std::runtime_error(file + " is not here");
  std::vector<std::pair<std::string, json::Tree>> charts;
  for (std::string request; std::getline(requests, request);) {
    const json::Tree reply = json::ParseTree(json::Answer(request, {}, clock)).tree.value();
    if (reply.contains("error")) throw std::runtime_error(file + ": " + reply.dump());
    charts.emplace_back(reply.at("id").get<std::string>(), reply.at("results").at("vRes"));
  }
  return charts;
}

void WritePictures(const std::filesystem::path& folder) {
  for (const auto& [name, picture] : Charts("docs/images/pictures.jsonl")) {
    Write(folder / "docs/images" / (name + ".svg"), picture.get<std::string>() + '\n');
  }
}

void WriteBars(const std::filesystem::path& folder) {
  std::string page =
      "<!DOCTYPE html>\n<html lang=\"en\">\n<meta charset=\"utf-8\">\n<title>Bar charts</title>\n"
      "<link rel=\"stylesheet\" href=\"../../examples/pages/amortix2-chart.css\">\n<h1>Bar charts</h1>\n";
  for (const auto& [title, lines] : Charts("docs/images/bars.jsonl")) {
    page += "<h2>" + title + "</h2>\n<div class=\"amortix2-chart\">\n";
    for (const json::Tree& line : lines) {
      if (line.is_string()) page += line.get<std::string>() + '\n';
    }
    page += "</div>\n";
  }
  Write(folder / "docs/images/bars.html", page + "</html>\n");
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
  WriteBars(folder);
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
