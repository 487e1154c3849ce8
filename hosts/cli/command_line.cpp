#include "amortix2/cli/command_line.h"

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <chrono>
#include <limits>
#include <map>
#include <sstream>
#include <string_view>

#include "amortix2/cli/lines.h"
#include "amortix2/json/lookup.h"
#include "amortix2/json/request_error.h"
#include "amortix2/json/variant_reader.h"

namespace amortix2::cli {
namespace {

constexpr const char* kExamples = R"(Examples:
  amortix2 list
  amortix2 call loan --help
  amortix2 call loan vPurchaseAmt=200000 vPeriod=360 vIntRate=6.5
  amortix2 call loan vPurchaseAmt=200000 vPeriod=360 vIntRate=6.5 --csv vDetArray > schedule.csv
  echo '{"call": "Calculator.SimpleLoanCalculator", "args": {"vPurchaseAmt": 200000, "vPeriod": 360, "vIntRate": 6.5}}' \
    | amortix2 batch
  amortix2 serve
  amortix2 rows fixed --only vResPayment,vTotInt < loans.csv > payments.csv

Exit status: 0 success, 1 the component raised an error, 2 a wrong command line, 3 reading or writing failed.
)";

void AddToday(CLI::App& command, std::optional<Date>& today) {
  const auto read = [&today](const std::string& text) {
    today = json::ParseIsoDate(text);
    if (!today) throw CLI::ValidationError("--today", "\"" + text + "\" is no date YYYY-MM-DD");
  };
  command.add_option_function<std::string>("--today", read, "The date that the component takes as today")
      ->type_name("YYYY-MM-DD");
}

void AddList(CLI::App& app, CommandLine& options) {
  CLI::App& list = *app.add_subcommand("list", "Show classes, methods, properties and parameters");
  CLI::Option* names = list.add_option("name", options.names, "What to show; everything when left out")
                           ->type_name("CLASS[.METHOD]");
  list.add_flag("--json", options.json, "Print everything as JSON")->excludes(names);
  list.final_callback([&options] { options.command = Command::List; });
}

void AddOutputs(CLI::App& call, CommandLine& options) {
  call.add_flag("--json", options.json, "Print the reply as JSON");
  call.add_flag("--types", options.types, "Print the reply as JSON with the type of every value");
  call.add_option("--only", options.only, "Print this result alone; may be given again")
      ->type_name("NAME")
      ->allow_extra_args(false);
  call.add_option("--csv", options.csv, "Print this result alone, as CSV with a header")->type_name("NAME");
  call.add_option("--out", options.out,
                  "Write the picture or page that a chart makes to this file; -: print it")
      ->type_name("FILE");
}

void AddCall(CLI::App& app, CommandLine& options) {
  CLI::App& call = *app.add_subcommand("call", "Call one method of a new object and print the answer");
  call.add_option("method", options.target, "What to call: CLASS.METHOD, METHOD or its short name")
      ->type_name("METHOD");
  call.add_option(
          "arguments", options.arguments,
          "Arguments by name; a VALUE is JSON, or a date YYYY-MM-DD, or text (a choice by its name), or "
          "@FILE with JSON or CSV (@-: standard input)")
      ->type_name("NAME=VALUE");
  call.add_option(
          "--with", options.settings,
          "A setting of the new object before the call: a property's value, or a method's array of arguments")
      ->type_name("NAME=VALUE")
      ->allow_extra_args(false);
  AddOutputs(call, options);
  AddToday(call, options.today);
  call.set_help_flag("");
  call.add_flag("-h,--help", options.help, "Print the page of METHOD, or this help");
  call.final_callback([&options] {
    options.command = Command::Call;
    if (!options.target.empty()) return;
    if (options.help) throw CLI::CallForHelp();
    throw CLI::RequiredError("method");
  });
}

void AddBatch(CLI::App& app, CommandLine& options) {
  CLI::App& batch = *app.add_subcommand("batch", "Answer JSON requests from standard input, one a line");
  batch.add_flag("--types", options.types, "Write the type of every value");
  batch.add_flag("--notes", options.notes,
                 "Write notes on inputs and answers, and what is wrong where a call fails, into the replies");
  batch.add_flag("--strangers", options.strangers,
                 "Requests are strangers': no files, no records, numbers within their limits, answers of at "
                 "most 1048576 cells and 4194304 bytes");
  AddToday(batch, options.today);
  batch.final_callback([&options] { options.command = Command::Batch; });
}

void AddSeconds(CLI::App& serve, const char* name, std::chrono::seconds& time, const char* help) {
  const auto read = [&time](int seconds) { time = std::chrono::seconds(seconds); };
  serve.add_option_function<int>(name, read, help)
      ->type_name("SECONDS")
      ->default_str(std::to_string(time.count()))
      ->check(CLI::Range(1, 86400));
}

template <class Count>
void AddCount(CLI::App& serve, const char* name, Count& count, Count least, const char* unit,
              const char* help) {
  constexpr std::size_t kMost = std::size_t{1} << 30;
  serve.add_option(name, count, help)
      ->type_name(unit)
      ->capture_default_str()
      ->check(CLI::Range(least, static_cast<Count>(kMost)));
}

void AddServe(CLI::App& app, CommandLine& options) {
  CLI::App& serve =
      *app.add_subcommand("serve", "Show the pages of all calculators to browsers, until stopped");
  Serving& serving = options.serving;
  serve.add_option("--listen", serving.listen, "Where to listen; port 0: any that is free")
      ->type_name("ADDRESS:PORT")
      ->capture_default_str();
  serve.add_option("--threads", serving.threads, "Threads that answer; 0: one for each processor")
      ->type_name("COUNT")
      ->capture_default_str()
      ->check(CLI::Range(0U, 256U));
  AddCount<std::size_t>(serve, "--header-bytes", serving.headerBytes, 256, "BYTES",
                        "The longest line and header of a request");
  AddCount<std::size_t>(serve, "--body-bytes", serving.bodyBytes, 0, "BYTES",
                        "The longest body of a request");
  AddSeconds(serve, "--request-time", serving.requestTime, "Time for a request to come, from its first byte");
  AddSeconds(serve, "--write-time", serving.writeTime, "Time for an answer to be taken");
  AddSeconds(serve, "--idle-time", serving.idleTime, "Time without a request until a connection is closed");
  AddCount<std::size_t>(serve, "--connections", serving.connections, 1, "COUNT", "Connections at a time");
  AddCount<std::size_t>(serve, "--unsent-bytes", serving.unsentBytes, 0, "BYTES",
                        "Answers together that wait for their clients to take them");
  serve.add_flag("--log", serving.log, "Write a line for each answer to standard error, without inputs");
  AddToday(serve, options.today);
  serve.final_callback([&options] { options.command = Command::Serve; });
}

const std::map<std::string, Format> kFormats{
    {"csv", Format::Csv}, {"tsv", Format::Tsv}, {"jsonl", Format::JsonLines}};

void AddRows(CLI::App& app, CommandLine& options) {
  constexpr unsigned kMostThreads = 256;
  CLI::App& rows = *app.add_subcommand("rows", "Call one method for each row of a table on standard input");
  rows.add_option("method", options.target, "What to call: CLASS.METHOD, METHOD or its short name")
      ->type_name("METHOD");
  rows.add_option("arguments", options.arguments, "Arguments that are the same for all rows")
      ->type_name("NAME=VALUE");
  rows.add_option("--only", options.only, "The results to write; all single values when left out")
      ->type_name("NAME,...")
      ->delimiter(',')
      ->allow_extra_args(false);
  rows.add_flag("--drop", options.rows.drop, "Leave out the columns that are no arguments");
  const auto addFormat = [&rows](const char* name, auto& format, const char* help) {
    const auto read = [&format](const std::string& text) { format = kFormats.at(text); };
    rows.add_option_function<std::string>(name, read, help)
        ->check(CLI::IsMember({"csv", "tsv", "jsonl"}).description(""))
        ->type_name("csv|tsv|jsonl");
  };
  addFormat("--from", options.rows.from, "What the input is: csv when left out");
  addFormat("--to", options.rows.to, "What to write: as the input when left out");
  rows.add_option("--threads", options.rows.threads, "How many threads work: one when left out")
      ->type_name("N")
      ->check(CLI::Range(1u, kMostThreads).description(""));
  rows.add_option("--sum", options.rows.sum,
                  "Add the schedules in this result up, and write these sums alone")
      ->type_name("TABLE");
  rows.add_option("--by", "What to sum by: month")
      ->type_name("month")
      ->check(CLI::IsMember({"month"}).description(""));
  rows.add_option("--merge", options.rows.merge, "Add up such sums in files; -: standard input")
      ->type_name("FILE...");
  AddToday(rows, options.today);
  rows.final_callback([&options] {
    options.command = Command::Rows;
    if (options.target.empty() == options.rows.merge.empty()) {
      throw CLI::ValidationError("rows", "takes a method or --merge");
    }
  });
}

bool IsCallable(std::string_view name) {
  return !json::Try([&] { json::FindCalled(name); });
}

/// What is wrong with a first word that is no command; empty when it is one.
std::string WrongCommand(std::string_view word) {
  const std::string shown = json::Quoted(word);
  if (word.starts_with('-') || std::ranges::find(kCommands, word) != kCommands.end()) return {};
  if (IsCallable(word)) return shown + " is no command; did you mean call " + std::string(word) + "?";
  const std::string_view closest = json::Closest(word, kCommands);
  std::string message = "there is no command " + shown;
  message += closest.empty() ? "." : "; did you mean " + std::string(closest) + "?";
  message += " There are:";
  for (const std::string_view name : kCommands) message.append(" ").append(name);
  return message;
}

void AddAll(CLI::App& app, CommandLine& options) {
  app.set_version_flag("--version", "amortix2 " AMORTIX2_VERSION);
  app.require_subcommand(1);
  app.failure_message([](const CLI::App*, const CLI::Error& error) {
    return std::string("amortix2: ") + error.what() + "\nTry amortix2 --help.\n";
  });
  AddList(app, options);
  AddCall(app, options);
  AddBatch(app, options);
  AddServe(app, options);
  AddRows(app, options);
  app.footer(kExamples);  // after the commands, which would have it too
}

constexpr const char* kPurpose = "Personal-finance calculators and charts from the command line.";

}  // namespace

std::string HelpOf(const std::string& command) {
  CommandLine options;
  CLI::App app(kPurpose, "amortix2");
  AddAll(app, options);
  return app.get_subcommand(command)->help("amortix2");
}

std::optional<CommandLine> ReadCommandLine(int argc, const char* const* argv, int& status) {
  CommandLine options;
  CLI::App app(kPurpose, "amortix2");
  AddAll(app, options);
  std::string wrong;
  if (argc > 1 && !(wrong = WrongCommand(argv[1])).empty()) {
    WriteAll(STDERR_FILENO, "amortix2: " + wrong + "\nTry amortix2 --help.\n");
    status = kBadRequest;
    return std::nullopt;
  }
  try {
    app.parse(argc, argv);
    return options;
  } catch (const CLI::ParseError& error) {
    std::ostringstream out;
    std::ostringstream err;
    status = app.exit(error, out, err) == 0 ? kSuccess : kBadRequest;
    WriteAll(STDERR_FILENO, err.str());
    WriteAll(STDOUT_FILENO, out.str());
    return std::nullopt;
  }
}

}  // namespace amortix2::cli
