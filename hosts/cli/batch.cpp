#include "cli/batch.h"

#include "cli/line_reader.h"
#include "cli/output.h"
#include "cli/reply.h"

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
