// Writes the sample rasters into a folder, each as NAME.gif and, for comparison with what another program
// decodes, as NAME.rgb: red, green and blue of every pixel.

#include <fstream>
#include <string>

#include "amortix2/automation/whole_file.h"
#include "amortix2/charts/gif_writer.h"
#include "charts/sample_rasters.h"

int main(int count, char** arguments) {
  using namespace amortix2;
  if (count != 2) return 2;
  const std::string folder = arguments[1];
  Palette palette(256, 3);  // no two colours alike
  for (int i = 0; i < 256 * 3; ++i)
    palette.Values()[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(i);
  for (const Sample& sample : Samples()) {
    WriteWholeFile(folder + "/" + sample.name + ".gif", EncodeGif(sample.raster, palette));
    std::string expected;
    for (const std::uint8_t pixel : sample.raster.Pixels()) {
      for (const std::uint8_t value : palette.Values().subspan(std::size_t{pixel} * 3, 3)) {
        expected += static_cast<char>(value);
      }
    }
    std::ofstream(folder + "/" + sample.name + ".rgb", std::ios::binary) << expected;
  }
}
