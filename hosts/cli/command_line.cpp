#include "amortix2/cli/command_line.h"

#include <CLI/CLI.hpp>

#include "amortix2/json/variant_reader.h"

namespace amortix2::cli {
namespace {

constexpr const char* kExamples = R"(Examples:
  amortix2 list
  amortix2 list Calculator.SimpleLoanCalculator
  amortix2 call Calculator.SimpleLoanCalculator vPurchaseAmt=200000 vPeriod=360 vIntRate=6.5
  echo '{"call": "Calculator.SimpleLoanCalculator", "args": {"vPurchaseAmt": 200000, "vPeriod": 360, "vIntRate": 6.5}}' \
    | amortix2 batch

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
  CLI::Option* name = list.add_option("name", options.target, "What to show; everything when left out")
                          ->type_name("CLASS[.METHOD]");
  list.add_flag("--json", options.json, "Print everything as JSON")->excludes(name);
  list.final_callback([&options] { options.command = Command::List; });
}

void AddCall(CLI::App& app, CommandLine& options) {
  CLI::App& call = *app.add_subcommand("call", "Call one method of a new object and print the answer");
  call.add_option("method", options.target, "What to call")->required()->type_name("CLASS.METHOD");
  call.add_option("arguments", options.arguments,
                  "Arguments by name; a VALUE is JSON, or a date YYYY-MM-DD, or text")
      ->type_name("NAME=VALUE");
  call.add_option(
          "--with", options.settings,
          "A setting of the new object before the call: a property's value, or a method's array of arguments")
      ->type_name("NAME=VALUE")
      ->allow_extra_args(false);
  call.add_flag("--json", options.json, "Print the reply as JSON");
  call.add_flag("--types", options.types, "Print the reply as JSON with the type of every value");
  call.add_option("--out", options.out, "Write what a chart sends to its page to this file")
      ->type_name("FILE");
  AddToday(call, options.today);
  call.final_callback([&options] { options.command = Command::Call; });
}

void AddBatch(CLI::App& app, CommandLine& options) {
  CLI::App& batch = *app.add_subcommand("batch", "Answer JSON requests from standard input, one a line");
  batch.add_flag("--types", options.types, "Write the type of every value");
  AddToday(batch, options.today);
  batch.final_callback([&options] { options.command = Command::Batch; });
}

}  // namespace

std::optional<CommandLine> ReadCommandLine(int argc, const char* const* argv, int& status) {
  CommandLine options;
  CLI::App app("Personal-finance calculators and charts from the command line.", "amortix2");
  app.set_version_flag("--version", "amortix2 " AMORTIX2_VERSION);
  app.require_subcommand(1);
  app.failure_message([](const CLI::App*, const CLI::Error& error) {
    return std::string("amortix2: ") + error.what() + "\nTry amortix2 --help.\n";
  });
  AddList(app, options);
  AddCall(app, options);
  AddBatch(app, options);
  app.footer(kExamples);  // after the commands, which would have it too
  try {
    app.parse(argc, argv);
    return options;
  } catch (const CLI::ParseError& error) {
    status = app.exit(error) == 0 ? kSuccess : kBadRequest;
    return std::nullopt;
  }
}

}  // namespace amortix2::cli
