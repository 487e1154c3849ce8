// The executable: reads the command line, does one of its commands, and turns whatever fails into an
// exit status and a line on standard error.

#include <unistd.h>

#include <csignal>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "amortix2/automation/whole_file.h"
#include "amortix2/cli/arguments.h"
#include "amortix2/cli/command_line.h"
#include "amortix2/cli/complaints.h"
#include "amortix2/cli/lines.h"
#include "amortix2/cli/listing.h"
#include "amortix2/cli/product.h"
#include "amortix2/cli/readable.h"
#include "amortix2/cli/rows.h"
#include "amortix2/common/system_clock.h"
#include "amortix2/json/execution.h"
#include "amortix2/json/lookup.h"
#include "amortix2/json/reply.h"
#include "amortix2/json/result_table.h"
#include "amortix2/web/server.h"

namespace amortix2::cli {
namespace {

std::unique_ptr<Clock> ClockOf(const CommandLine& line) {
  if (line.today) return std::make_unique<FixedClock>(*line.today);
  return std::make_unique<SystemClock>();
}

json::Options ReplyOptions(const CommandLine& line) {
  return {line.types ? json::Form::WithTypes : json::Form::Plain, line.notes, line.strangers};
}

/// The arguments and the settings of a call, as a person gave them.
struct Given {
  json::OwnFields arguments;
  json::OwnFields settings;
};

void ReadGiven(const CommandLine& line, const json::Target& target, Given& given) {
  given.arguments.reserve(line.arguments.size());
  given.settings.reserve(line.arguments.size() + line.settings.size());
  const auto addArgument = [&](const Assignment& argument) {
    const ParameterInfo* input = FindInput(target.method, argument.name);
    if (!input) json::PlaceOfParameter(target.method, argument.name);  // raises, and says what there is
    given.arguments.emplace_back(input->name, ReadValue(argument.value, target.method, *input));
  };
  const auto addSetting = [&](const Assignment& setting) {
    const MemberInfo* member = FindMember(target.type, setting.name);
    const bool isProperty = member && member->kind == MemberKind::PropertyPut;
    given.settings.emplace_back(setting.name,
                                isProperty ? ReadValue(setting.value, *member, member->parameters.front())
                                           : ReadValue(setting.value));
  };
  for (const Assignment& setting : SplitArguments(line.settings)) addSetting(setting);
  for (const Assignment& argument : SplitArguments(line.arguments)) {
    // One --with may be followed by several settings, which are no arguments of the method.
    const bool isSetting = !line.settings.empty() && !FindParameter(target.method, argument.name) &&
                           FindMember(target.type, argument.name);
    isSetting ? addSetting(argument) : addArgument(argument);
  }
}

std::string MethodName(const json::Target& target) {
  return std::string(target.type.name) + "." + std::string(target.method.name);
}

std::span<const std::uint8_t> BytesOf(std::string_view text) {
  return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}
void SaveFile(const std::string& path, std::string_view bytes) {
  try {
    WriteWholeFile(path, BytesOf(bytes));
  } catch (const AutomationError& error) {
    if (error.Number() == ErrorNumber::OutOfMemory) throw;
    throw FileError("cannot write " + path + ": " + std::string(ErrorDescription(error.Number())));
  }
}

void CheckOutputs(const CommandLine& line) {
  const bool isJson = line.json || line.types;
  if (line.out && line.out->empty()) throw json::RequestError("--out names no file");
  if (isJson + line.csv.has_value() + (line.out == "-") > 1) {
    throw json::RequestError("only one of --json, --csv and --out - can be printed");
  }
}

std::string Printed(const CommandLine& line, const json::Execution& execution, const Product& product) {
  if (line.csv) return json::ResultAsCsv(execution, *line.csv);
  if (line.out == "-") return product.bytes;
  const Rows rows = isatty(STDOUT_FILENO) == 1 ? Rows::Folded : Rows::All;
  return ReadableAnswer(execution, {rows, line.only.empty(), product.name});
}

std::string NotesIn(const json::Execution& execution) {
  std::string text;
  for (const Note& note : execution.Notes()) {
    if (!text.empty()) text += '\n';
    text += "note: " + note.Text();
  }
  return text;
}

/// Makes all that is printed and said before any of it goes out: a failure says nothing but itself.
int Tell(const CommandLine& line, const json::Execution& execution) {
  const bool isJson = line.json || line.types;
  std::optional<json::Failure> failure = execution.Error();
  std::string printed;
  std::string said;
  Product product;
  if (failure) {
    said = execution.WhyFailed().text;
  } else {
    if (line.out) product = ProductOf(execution);
    said = NotesIn(execution);
    if (!isJson) printed = Printed(line, execution, product);
  }
  if (isJson) {
    std::optional<json::Failure> unwritten;
    printed = json::ReplyTo(execution, ReplyOptions(line), &unwritten);
    printed += '\n';
    if (unwritten) said = unwritten->message;
    if (unwritten) failure = std::move(unwritten);
  }
  const std::string bytes = std::to_string(product.bytes.size());
  const bool savesFile = !failure && line.out && line.out != "-";
  if (savesFile) SaveFile(*line.out, product.bytes);
  WriteAll(STDOUT_FILENO, printed);
  if (failure) return Report(*failure, said);
  if (!said.empty()) Say({said});
  if (savesFile) Say({"wrote ", *line.out, " (", bytes, " bytes)"});
  return kSuccess;
}

int RunCall(const CommandLine& line) {
  const json::Target target = json::FindCalled(line.target);
  const std::string method = MethodName(target);
  if (line.help) {
    WriteAll(STDOUT_FILENO, MemberPage(target.type, target.method));
    return kSuccess;
  }
  CheckOutputs(line);
  const auto clock = ClockOf(line);
  Given given;
  ReadGiven(line, target, given);
  json::Request request{method, given.arguments, given.settings};
  if (!line.only.empty()) request.only.emplace(line.only.begin(), line.only.end());
  if (line.csv) json::NeedResult(target.method, *line.csv);
  const json::Execution execution(request, *clock, json::Keep::GivenToo);
  return Tell(line, execution);
}

/// Tells of lines that are no requests, of the first ones each: nobody may be reading standard error.
class BadLines {
 public:
  void Add(std::uint64_t line, std::string_view fault) noexcept {
    if (++count_ <= kTold) Complain({"line ", Digits(line).View(), ": ", fault});
  }
  void End() const noexcept {
    if (count_ > kTold) Complain({Digits(count_).View(), " lines could not be carried out"});
  }

 private:
  static constexpr std::uint64_t kTold = 10;
  std::uint64_t count_ = 0;
};

/// Answers until the input ends. Replies are sent at the latest when no complete line is waiting.
int RunBatch(const CommandLine& line) {
  const auto clock = ClockOf(line);
  const json::Options options = ReplyOptions(line);
  LineReader requests(STDIN_FILENO, options.LongestRequest());
  LineWriter replies(STDOUT_FILENO);
  BadLines badLines;
  for (std::uint64_t number = 1;; ++number) {
    if (!requests.HasLine()) replies.Flush();
    const auto request = requests.Next();
    if (!request) break;
    std::string fault;
    const std::string reply =
        request->isWhole ? json::Answer(request->text, options, *clock, &fault) : std::string();
    replies.WriteLine(reply.empty() ? json::kNoMemoryReply : reply);
    if (!fault.empty()) badLines.Add(number, fault);
  }
  replies.Flush();
  badLines.End();
  return kSuccess;
}

int RunList(const CommandLine& line) {
  WriteAll(STDOUT_FILENO, ListingOf(line.names, line.json));
  return kSuccess;
}

int RunServe(const CommandLine& line) {
  const auto clock = ClockOf(line);
  const auto listening = [](const std::string& address) {
    WriteAll(STDOUT_FILENO, "The pages are at " + address + " (Ctrl-C ends)\n");
  };
  web::Serve(line.serving, *clock, {listening, [](const std::string& answer) { Say({answer}); }});
  return kSuccess;
}

int Run(int argc, char** argv) {
  int status = kSuccess;
  const auto line = ReadCommandLine(argc, argv, status);
  if (!line) return status;
  if (line->command == Command::Call) return RunCall(*line);
  if (line->command == Command::Serve) return RunServe(*line);
  if (line->command == Command::Rows) {
    return RunRows(*line, *ClockOf(*line), [](const std::string& fault) { Complain({fault}); });
  }
  return line->command == Command::Batch ? RunBatch(*line) : RunList(*line);
}

int Main(int argc, char** argv) noexcept {
  // First an error of writing, so that files are left as they should be. A file that grows too large is one.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  try {
    return Run(argc, argv);
  } catch (...) {
    return ReportCurrent();
  }
}

}  // namespace
}  // namespace amortix2::cli

int main(int argc, char** argv) { return amortix2::cli::Main(argc, argv); }
