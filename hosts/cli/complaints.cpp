#include "amortix2/cli/complaints.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <span>
#include <system_error>

#include "amortix2/cli/command_line.h"
#include "amortix2/cli/lines.h"
#include "amortix2/json/reply.h"

namespace amortix2::cli {
namespace {

/// A line that goes out in large pieces.
class BufferedLine {
 public:
  explicit BufferedLine(int descriptor) : descriptor_(descriptor) {}
  void Add(std::string_view text) {
    while (!text.empty()) {
      if (used_ == bytes_.size()) Flush();
      const std::string_view part = text.substr(0, bytes_.size() - used_);
      used_ += part.copy(bytes_.data() + used_, part.size());
      text.remove_prefix(part.size());
    }
  }
  void Flush() {
    WriteAll(descriptor_, {bytes_.data(), used_});
    used_ = 0;
  }

 private:
  int descriptor_;
  std::array<char, 1024> bytes_;
  std::size_t used_ = 0;
};

void WriteLine(int descriptor, std::string_view start, std::span<const std::string_view> parts) noexcept {
  try {
    BufferedLine line(descriptor);
    line.Add(start);
    for (const std::string_view part : parts) line.Add(part);
    line.Add("\n");
    line.Flush();
  } catch (...) {  // there is nobody to tell
    return;
  }
}

// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables): the terminate handler is given nothing
std::span<char* const> commandLine;
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

/// Read from the bare command line: what went wrong may be that it could not be read.
bool IsJsonAsked() noexcept {
  const auto is = [](const char* word, std::string_view what) { return word == what; };
  return commandLine.size() > 1 && is(commandLine[1], "call") &&
         std::ranges::any_of(commandLine,
                             [&](const char* word) { return is(word, "--json") || is(word, "--types"); });
}

int ReportNoMemory() noexcept {
  if (IsJsonAsked()) WriteLine(STDOUT_FILENO, json::kNoMemoryReply, {});
  return Report({ErrorNumber::OutOfMemory, ErrorName(ErrorNumber::OutOfMemory)}, {});
}

int EndQuietly() noexcept {
  std::signal(SIGPIPE, SIG_DFL);
  std::raise(SIGPIPE);
  return kInputOutput;  // where the signal is blocked
}

/// Nothing but an exception that there is no memory for leaves no trace of itself.
[[noreturn]] void EndUncaught() noexcept {
  try {
    if (std::current_exception()) throw;
    std::_Exit(ReportNoMemory());
  } catch (...) {
    std::_Exit(ReportCurrent());
  }
}

/// Runs before anything that takes memory; the loader passes it what it passes to main.
[[gnu::constructor(101)]] void Begin(int count, char** words) {
  commandLine = {words, static_cast<std::size_t>(count)};
  std::set_terminate(EndUncaught);
}

}  // namespace

void Say(std::initializer_list<std::string_view> parts) noexcept { WriteLine(STDERR_FILENO, {}, parts); }

void Complain(std::initializer_list<std::string_view> parts) noexcept {
  WriteLine(STDERR_FILENO, "amortix2: ", parts);
}

int Report(const json::Failure& failure, std::string_view cause) noexcept {
  if (failure.ofRequest) {
    Complain({cause});
    return kBadRequest;
  }
  const Digits number(static_cast<std::uint64_t>(failure.number));
  Complain({number.View(), " ", failure.name, cause.empty() ? "" : ": ", cause});
  return kComponentError;
}

int ReportCurrent() noexcept {
  try {
    throw;
  } catch (const std::system_error& error) {
    if (error.code() == std::errc::broken_pipe) return EndQuietly();
    Complain({error.what()});
    return kInputOutput;
  } catch (const FileError& error) {
    Complain({error.what()});
    return kInputOutput;
  } catch (...) {
    const json::Failure failure = json::CurrentFailure();
    if (failure.number == ErrorNumber::OutOfMemory) return ReportNoMemory();
    return Report(failure, failure.message);
  }
}

}  // namespace amortix2::cli
