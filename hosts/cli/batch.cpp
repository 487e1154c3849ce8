#include "amortix2/cli/batch.h"

#include "amortix2/cli/line_reader.h"
#include "amortix2/cli/output.h"
#include "amortix2/cli/reply.h"

namespace amortix2::cli {

void RunBatch(int input, int output, const Clock& clock, JsonForm form) {
  constexpr std::string_view kNoMemory = R"({"error":{"number":7,"name":"OutOfMemory"}})";
  LineReader lines(input, kLongestLine);
  Output replies(output);
  while (true) {
    if (!lines.HasLine()) replies.Flush();
    const auto line = lines.Next();
    if (!line) break;
    const std::string reply = Answer(*line, clock, form);
    replies.WriteLine(reply.empty() ? kNoMemory : reply);
  }
  replies.Flush();
}

}  // namespace amortix2::cli
