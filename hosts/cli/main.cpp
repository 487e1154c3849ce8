// The executable: reads the command line, does one of its three commands, and turns whatever fails into an
// exit status and a line on standard error.

#include <unistd.h>

#include <csignal>
#include <memory>
#include <system_error>
#include <utility>

#include "amortix2/automation/whole_file.h"
#include "amortix2/cli/arguments.h"
#include "amortix2/cli/command_line.h"
#include "amortix2/cli/lines.h"
#include "amortix2/cli/listing.h"
#include "amortix2/cli/readable.h"
#include "amortix2/common/system_clock.h"
#include "amortix2/json/description_json.h"
#include "amortix2/json/execution.h"
#include "amortix2/json/lookup.h"
#include "amortix2/json/reply.h"

namespace amortix2::cli {
namespace {

std::unique_ptr<Clock> ClockOf(const CommandLine& line) {
  if (line.today) return std::make_unique<FixedClock>(*line.today);
  return std::make_unique<SystemClock>();
}

json::Options ReplyOptions(const CommandLine& line) {
  return {line.types ? json::Form::WithTypes : json::Form::Plain};
}

void Complain(const std::string& what) { WriteAll(STDERR_FILENO, "amortix2: " + what + "\n"); }

/// Says what went wrong and returns the exit status that belongs to it.
int Report(const json::Failure& failure) {
  const std::string number = std::to_string(static_cast<std::int32_t>(failure.number));
  Complain(failure.ofRequest ? failure.message : number + " " + std::string(failure.name));
  return failure.ofRequest ? kBadRequest : kComponentError;
}

/// One --with may be followed by several settings, which are no arguments of the method: moves them.
void TakeSettings(const json::Target& target, json::Fields& arguments, json::Fields& settings) {
  json::Fields own;
  for (auto& [name, value] : arguments) {
    const bool isArgument = FindParameter(target.method, name) || !FindMember(target.type, name);
    (isArgument ? own : settings).emplace_back(name, std::move(value));
  }
  arguments = std::move(own);
}

void SaveResponse(const json::Execution& execution, const std::string& path) {
  if (path.empty()) throw json::RequestError("--out names no file");
  if (execution.Response().empty()) {
    throw json::RequestError("nothing was sent to the page, so there is no " + path);
  }
  WriteWholeFile(path, execution.Response());
}

int RunCall(const CommandLine& line) {
  json::Fields arguments = ReadArguments(line.arguments);
  json::Fields settings = ReadArguments(line.settings);
  if (!settings.empty()) TakeSettings(json::FindTarget(line.target), arguments, settings);
  const auto clock = ClockOf(line);
  const json::Execution execution({line.target, arguments, settings}, *clock, json::Keep::GivenToo);
  if (line.json || line.types) {
    WriteAll(STDOUT_FILENO, json::ReplyTo(execution, ReplyOptions(line)) + "\n");
  } else if (!execution.Error()) {
    WriteAll(STDOUT_FILENO, ReadableAnswer(execution));
  }
  if (execution.Error()) return Report(*execution.Error());
  if (line.out) SaveResponse(execution, *line.out);
  return kSuccess;
}

/// Answers until the input ends. Replies are sent at the latest when no complete line is waiting.
int RunBatch(const CommandLine& line) {
  const auto clock = ClockOf(line);
  LineReader requests(STDIN_FILENO, json::kLongestRequest);
  LineWriter replies(STDOUT_FILENO);
  while (true) {
    if (!requests.HasLine()) replies.Flush();
    const auto request = requests.Next();
    if (!request) break;
    const std::string reply = json::Answer(*request, ReplyOptions(line), *clock);
    replies.WriteLine(reply.empty() ? json::kNoMemoryReply : reply);
  }
  replies.Flush();
  return kSuccess;
}

int Run(const CommandLine& line) {
  if (line.command == Command::Call) return RunCall(line);
  if (line.command == Command::Batch) return RunBatch(line);
  WriteAll(STDOUT_FILENO, line.json ? json::DescriptionJson() + "\n" : Listing(line.target));
  return kSuccess;
}

int Main(int argc, char** argv) {
  // A reader that goes away is an error of writing, not the end of the process.
  std::signal(SIGPIPE, SIG_IGN);
  int status = kSuccess;
  const auto line = ReadCommandLine(argc, argv, status);
  if (!line) return status;
  try {
    return Run(*line);
  } catch (const std::system_error& error) {
    Complain(error.what());
    return kInputOutput;
  } catch (...) {
    return Report(json::CurrentFailure());
  }
}

}  // namespace
}  // namespace amortix2::cli

int main(int argc, char** argv) {
  try {
    return amortix2::cli::Main(argc, argv);
  } catch (...) {
    return amortix2::cli::kInputOutput;
  }
}
