// The executable when the machine fails: memory, files, pipes and signals.

#include <gtest/gtest.h>

#include <algorithm>

#include "program.h"
#include "support.h"

namespace amortix2::cli {
namespace {

#ifdef AMORTIX2_FAILING_MEMORY

const std::string kNoMemory = R"("error":{"number":7,"name":"OutOfMemory")";

/// Each line is the right one, or says that there was no memory, with the request's id or without.
bool AreAnswers(const std::vector<std::string>& lines, const std::vector<std::string>& right,
                const std::vector<std::string>& ids) {
  return std::ranges::equal(lines, right, [&](const std::string& line, const std::string& wanted) {
    const std::string& id = ids[static_cast<std::size_t>(&wanted - right.data())];
    return line == wanted || line.starts_with("{" + kNoMemory) ||
           line.starts_with("{\"id\":" + id + "," + kNoMemory);
  });
}

// Every allocation that fails, alone or with all that follow, leaves the right answer or the error in the
// form that was asked for; a batch that has read a line answers all of them.
TEST_F(Program, NoFailedAllocationGoesUntold) {
  const std::string loan =
      R"("call":"Calculator.SimpleLoanCalculator","args":{"vPurchaseAmt":1000,"vPeriod":3}})";
  const std::string requests = "{\"id\":[1,{\"a\":2}]," + loan + "\n{\"id\":\"" + std::string(300'000, 'x') +
                               "\"," + loan + "\n{\"id\":3,\"call\":\"X.Y\"}\njunk\n{\"id\":5," + loan + "\n";
  const std::vector<std::string> ids{R"([1,{"a":2}])", '"' + std::string(300'000, 'x') + '"', "3", "", "5"};
  const std::string call = "call loan vPurchaseAmt=1000 vPeriod=3 vIntRate=6.5% --today 2001-01-31";
  const std::string chart = R"(call svg-bar-chart 'vColDat=[["","a"],["x",1]]' --out )";
  for (const std::string& command :
       {call, call + " --json", call + " --csv vDetArray", chart + "-", chart + Path("chart"),
        std::string("call save vStartDate=soon --types"), std::string("batch --notes")}) {
    const bool isBatch = command.starts_with("batch");
    const bool isJson = command.ends_with("--json") || command.ends_with("--types");
    const std::string preload = "FAIL_COUNT='" + Path("count") + "' LD_PRELOAD='" AMORTIX2_FAILING_MEMORY "'";
    const int rightStatus = Run(command, requests, preload);
    const std::string right = Read("out");
    const auto rightLines = Lines();
    const int count = std::stoi(Read("count"));
    ASSERT_GT(count, 200) << command;
    const int step = Cases(97, 1);
    for (int n = 1; n <= count; n += step) {
      for (const char* rest : {"", " FAIL_ON=1"}) {
        SCOPED_TRACE(command + ": allocation " + std::to_string(n) + rest);
        const int status = Run(command, requests, preload + " FAIL_AT=" + std::to_string(n) + rest);
        if (status == rightStatus && Read("out") == right) continue;
        if (isBatch && status == 0) {
          EXPECT_TRUE(AreAnswers(Lines(), rightLines, ids));
          continue;
        }
        EXPECT_EQ(status, 1);
        EXPECT_TRUE(isJson ? Read("out").starts_with("{" + kNoMemory) : Read("out").empty()) << Read("out");
        EXPECT_NE(Read("err").find("amortix2: 7 OutOfMemory"), std::string::npos) << Read("err");
      }
    }
  }
}

#endif

// In a folder of its own with the program as ./a2, a small table, and a hundred loans.
TEST_F(Program, FaultsOfFilesAndPipes) {
  struct Fault {
    const char* line;
    int status;
    const char* said;  // on standard error, whole
  };
  const Fault faults[] = {
      {"./a2 batch <in >/dev/full", 3, "amortix2: cannot write: No space left on device\n"},
      {"./a2 batch <in >&-", 3, "amortix2: cannot write: Bad file descriptor\n"},
      {"./a2 --help >/dev/full", 3, "amortix2: cannot write: No space left on device\n"},
      {"./a2 --version >&-", 3, "amortix2: cannot write: Bad file descriptor\n"},
      {"./a2 list >/dev/full", 3, "amortix2: cannot write: No space left on device\n"},
      {"./a2 call loan --help >&-", 3, "amortix2: cannot write: Bad file descriptor\n"},
      {"./a2 call loan vPeriod=1 >/dev/full", 3, "amortix2: cannot write: No space left on device\n"},
      {"./a2 call loan vPeriod=1 >/dev/full 2>&-", 3, ""},
      {"./a2 batch <&-", 3, "amortix2: cannot read: Bad file descriptor\n"},
      {"./a2 batch <.", 3, "amortix2: cannot read: Is a directory\n"},
      // A reader that goes away ends it as it ends other filters, without a word.
      {"( ./a2 batch <in; echo $? >status ) | head -c 10 >part; exit $(cat status)", 141, ""},
      {"$CHART 2>old; $CHART/none", 3,
       "amortix2: cannot write chart/none: The folder of the file does not exist.\n"},
      {"$CHART 2>old; cp chart old; (ulimit -f 1; $CHART); s=$?; cmp chart old && exit $s", 3,
       "amortix2: cannot write chart: The file cannot be read or written.\n"},
      {"ln -s made chart; $CHART 2>old; test -L chart && test -s made", 0, ""},
      // Ended by a signal at any moment, it leaves the old file or the new one, and no other.
      {"{ $CHART; cp chart old; ls >names; ls >names; for s in HUP TERM; do for t in 1 2 3 4 5 6 7 8; do "
       "$CHART & sleep 0.00$t; kill -$s $!; wait $!; cmp chart old || exit 5; done; done; } 2>/dev/null; ls "
       "| "
       "cmp - names",
       0, ""},
  };
  for (const Fault& fault : faults) {
    SCOPED_TRACE(fault.line);
    const std::string line = "rm -rf run; mkdir run; cd run; ln -s '" AMORTIX2_PROGRAM
                             "' a2; printf ',A\na,1\nb,2\n' >table.csv; CHART='./a2 call svg-bar-chart "
                             "vColDat=@table.csv --out chart'; for i in $(seq 100); do echo '{" +
                             std::string(kLoan) + "'; done >in; ";
    const std::string whole = "cd '" + Path("") + "'; { " + line + fault.line + "; } 2>'" + Path("err") + "'";
    EXPECT_EQ(WEXITSTATUS(std::system(whole.c_str())), fault.status);
    EXPECT_EQ(Read("err"), fault.said);
  }
}

}  // namespace
}  // namespace amortix2::cli
