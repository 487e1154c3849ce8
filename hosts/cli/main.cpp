// The executable: reads the command line, does one of its three commands, and turns whatever fails into an
// exit status and a line on standard error.

#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <iterator>
#include <memory>
#include <system_error>

#include "amortix2/automation/error.h"
#include "amortix2/automation/whole_file.h"
#include "amortix2/cli/arguments.h"
#include "amortix2/cli/batch.h"
#include "amortix2/cli/call.h"
#include "amortix2/cli/listing.h"
#include "amortix2/cli/names.h"
#include "amortix2/cli/options.h"
#include "amortix2/cli/output.h"
#include "amortix2/cli/readable.h"
#include "amortix2/cli/reply.h"
#include "amortix2/cli/request.h"
#include "amortix2/cli/request_error.h"
#include "amortix2/common/system_clock.h"

namespace amortix2::cli {
namespace {

class FixedClock final : public Clock {
 public:
  explicit FixedClock(Date today) : today_(today) {}
  Date Today() const override { return today_; }

 private:
  Date today_;
};

std::unique_ptr<Clock> ClockOf(const Options& options) {
  if (options.today) return std::make_unique<FixedClock>(*options.today);
  return std::make_unique<SystemClock>();
}

void Complain(const std::string& what) { WriteAll(STDERR_FILENO, "amortix2: " + what + "\n"); }

/// Says what went wrong and returns the exit status that belongs to it.
int Report(const Failure& failure) {
  const std::string number = std::to_string(static_cast<std::int32_t>(failure.number));
  Complain(failure.ofRequest ? failure.message : number + " " + std::string(failure.name));
  return failure.ofRequest ? kBadRequest : kComponentError;
}

/// One --with may be followed by several settings, which are no arguments of the method.
void TakeSettings(const Target& target, Json::Fields& arguments, Json::Fields& settings) {
  const auto isArgument = [&](const Json::Field& field) {
    return FindParameter(target.method, field.name) || !FindMember(target.type, field.name);
  };
  const auto others = std::stable_partition(arguments.begin(), arguments.end(), isArgument);
  std::move(others, arguments.end(), std::back_inserter(settings));
  arguments.erase(others, arguments.end());
}

Json RequestOf(const Options& options) {
  Json::Fields arguments = ReadArguments(options.arguments);
  Json::Fields settings = ReadArguments(options.settings);
  if (!settings.empty()) TakeSettings(FindTarget(options.target), arguments, settings);
  Json::Fields request;
  request.push_back({"call", Json(options.target)});
  request.push_back({"args", Json(std::move(arguments))});
  request.push_back({"with", Json(std::move(settings))});
  return Json(std::move(request));
}

void SaveResponse(const Call& call, const std::string& path) {
  if (path.empty()) throw RequestError("--out names no file");
  if (call.Response().empty()) throw RequestError("nothing was sent to the page, so there is no " + path);
  WriteWholeFile(path, call.Response());
}

int RunCall(const Options& options) {
  const Json json = RequestOf(options);
  const Request request = ReadRequest(json);
  const auto clock = ClockOf(options);
  const Call call(request, *clock);
  const JsonForm form = options.types ? JsonForm::WithTypes : JsonForm::Plain;
  if (options.json || options.types) {
    WriteAll(STDOUT_FILENO, ReplyTo(call, nullptr, form) + "\n");
  } else if (!call.Error()) {
    WriteAll(STDOUT_FILENO, ReadableAnswer(call, request));
  }
  if (call.Error()) return Report(*call.Error());
  if (options.out) SaveResponse(call, *options.out);
  return kSuccess;
}

int Run(const Options& options) {
  switch (options.command) {
    case Command::List:
      WriteAll(STDOUT_FILENO, Listing(options.target));
      return kSuccess;
    case Command::Call:
      return RunCall(options);
    case Command::Batch:
      break;
  }
  RunBatch(STDIN_FILENO, STDOUT_FILENO, *ClockOf(options),
           options.types ? JsonForm::WithTypes : JsonForm::Plain);
  return kSuccess;
}

int Main(int argc, char** argv) {
  // A reader that goes away is an error of writing, not the end of the process.
  std::signal(SIGPIPE, SIG_IGN);
  int status = kSuccess;
  const auto options = ReadOptions(argc, argv, status);
  if (!options) return status;
  try {
    return Run(*options);
  } catch (const std::system_error& error) {
    Complain(error.what());
    return kInputOutput;
  } catch (...) {
    return Report(CurrentFailure());
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
