// Replays the fuzzer's seeds, and as many changed ones as are asked for, the same each time.
//
//     replay_requests SEEDS COUNT

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

namespace {

void Run(const std::string& text) {
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 3) return 2;
  std::set<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) files.insert(entry.path());
  std::vector<std::string> seeds;
  for (const auto& file : files) {
    std::ifstream in(file, std::ios::binary);
    Run(seeds.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()));
  }
  std::mt19937 random(17);
  const auto below = [&](std::size_t end) { return random() % end; };
  const std::string marks = "%&=+?\"'<>{}[]:,\\\n\t $-.09eE\xC3";
  for (int i = 0; i < std::stoi(arguments[2]); ++i) {
    std::string text = seeds[below(seeds.size())];
    for (std::size_t changes = 1 + below(4); changes > 0; --changes) {
      const std::size_t place = below(text.size() + 1);
      const std::string& other = seeds[below(seeds.size())];
      switch (below(3)) {
        case 0:
          text.insert(place, 1, marks[below(marks.size())]);
          break;
        case 1:
          text.erase(place, 1 + below(8));
          break;
        default:
          text.insert(place, other, below(other.size()), below(40));
      }
    }
    Run(text);
  }
}
