#pragma once

// The door to the component for everything that speaks JSON: one request text in, one reply text out. A
// reply is one JSON object on one line: {"id": ..., "results": {...}, "return": ..., "response": "<base64>"},
// or {"id": ..., "error": {"number": ..., "name": ...}, "results": {...}}. A caller that has a request
// already carries it out (execution.h) and asks for the reply alone. Nothing here reads or writes anything
// but its arguments; any number of threads may ask at once.

#include <optional>
#include <string>
#include <string_view>

#include "amortix2/automation/date.h"
#include "amortix2/json/strangers.h"
#include "amortix2/json/variant_writer.h"

namespace amortix2::json {

class Execution;
struct Failure;

/// A text longer than this is no request; a stranger's may be shorter still.
inline constexpr std::size_t kLongestRequest = std::size_t{16} << 20;

/// The reply when there is no memory even for an error.
inline constexpr std::string_view kNoMemoryReply = R"({"error":{"number":7,"name":"OutOfMemory"}})";

struct Options {
  Form form = Form::Plain;
  bool notes = false;      ///< "notes" beside results; "text" and "parameter" in errors of the component
  bool strangers = false;  ///< only what strangers.h allows is carried out

  constexpr std::size_t LongestRequest() const {
    return strangers ? kLongestStrangersRequest : kLongestRequest;
  }
};

/// Answers a request, whatever is in the text. Where memory runs out, the answer is an error with the
/// request's id, or without it where that was not read yet; an empty text stands for kNoMemoryReply. Where
/// the request itself is at fault, `fault` receives what is wrong with it; else it is left as it is.
std::string Answer(std::string_view requestText, const Options& options, const Clock& clock,
                   std::string* fault = nullptr) noexcept;

/// The reply to a request that was carried out (with Keep::Inputs, where `options` ask for notes). A result
/// that cannot be written makes it an error, which `unwritten` receives; else that is left as it is.
std::string ReplyTo(const Execution& execution, const Options& options,
                    std::optional<Failure>* unwritten = nullptr);

}  // namespace amortix2::json
