// The executable as other programs run it.

#include <gtest/gtest.h>
#include <sys/resource.h>

#include "program.h"

namespace amortix2::cli {
namespace {

std::string MixedRequests(int count) {
  static constexpr const char* kBad[] = {"", "{", "\"\xFF\"", "[[[[", "{\"call\":\"Calculator.None\"}"};
  std::string input;
  for (int i = 0; i < count; ++i) {
    if (i % 10 == 9) {
      input += kBad[i / 10 % 5];
    } else {
      input += "{\"id\":" + std::to_string(i) + "," + kLoan;
    }
    input += i % 3 == 0 ? " \t\r\n" : "\n";
  }
  return input;
}

TEST_F(Program, AnswersEveryLineInOrderAndInConstantMemory) {
  const auto peak = [] {
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    return usage.ru_maxrss;
  };
  ASSERT_EQ(Run("batch", MixedRequests(500)), 0);
  [[maybe_unused]] const long little = peak();
#ifdef NDEBUG
  constexpr int kCount = 10000;
  ASSERT_EQ(Run("batch", MixedRequests(kCount)), 0);
  EXPECT_LT(peak(), little + 4096);
#else  // debug builds carry the sanitizers, which keep what is freed, and take their time
  constexpr int kCount = 1000;
  ASSERT_EQ(Run("batch", MixedRequests(kCount)), 0);
#endif
  const auto lines = Lines();
  ASSERT_EQ(lines.size(), std::size_t{kCount});
  for (int i = 0; i < kCount; ++i) {
    const std::string& line = lines[static_cast<std::size_t>(i)];
    const std::string expected =
        i % 10 == 9 ? R"({"error":{"number":)" : "{\"id\":" + std::to_string(i) + R"(,"results":{)";
    ASSERT_TRUE(line.starts_with(expected)) << i << ": " << line.substr(0, 200);
    ASSERT_TRUE(i % 10 == 9 || line.find("\"vResPayment\":1264.14,") != std::string::npos) << i;
  }
}

TEST_F(Program, ALineThatIsTooLongIsReadOver) {
  const std::string longest = "{\"id\":1," + std::string(kLoan);
  const std::size_t limit = std::size_t{16} << 20;
  const std::string fits = longest + std::string(limit - longest.size(), ' ');
  ASSERT_EQ(Run("batch", fits + "\n" + fits + "x\n" + std::string(3 * limit, '[') + "\n" + longest), 0);
  const auto lines = Lines();
  ASSERT_EQ(lines.size(), 4u);
  for (const std::size_t good : {0u, 3u})
    EXPECT_TRUE(lines[good].starts_with("{\"id\":1,\"results\"")) << good;
  for (const std::size_t bad : {1u, 2u}) EXPECT_NE(lines[bad].find("longer"), std::string::npos) << bad;
}

TEST_F(Program, LongTablesAreFoldedOnATerminalOnly) {
  const std::string call = "call loan vPurchaseAmt=200000 vPeriod=360 vIntRate=6.5 --today 2026-01-31";
  ASSERT_EQ(Run(call), 0);
  const std::size_t all = Lines().size();
  EXPECT_EQ(all, 11u + 361);
  const std::string typed =
      "script -qec \"'" AMORTIX2_PROGRAM "' " + call + "\" /dev/null </dev/null >'" + Path("out") + "'";
  ASSERT_EQ(std::system(typed.c_str()), 0);
  const auto lines = Lines();
  ASSERT_EQ(lines.size(), 11u + 13 + 1 + 12);
  EXPECT_TRUE(lines[24].starts_with("...")) << lines[24];
  EXPECT_TRUE(lines[25].starts_with("349  02-")) << lines[25];
}

TEST_F(Program, ExitStatusesOutputsAndErrorLines) {
  struct Case {
    std::string arguments;
    int status;
    std::string output;  // the whole of it, or its beginning before "..."
    std::string error;   // a part of it
  };
  const std::string chart =
      R"(call BarChart.StackChart 'vColDat=[["",""],["a",1]]' 'Colgif=["",""]' 'Colleg=["",""]' 'Ttl=["","",""]')";
  const Case cases[] = {
      {"--version", 0, "amortix2 1.0.0\n", ""},
      {"--help", 0, "Personal-finance calculators and charts from the command line.\n...", ""},
      {"list", 0, "Loans\n    loan  Loan\n...", ""},
      {"list --json", 0, R"({"classes":[{"name":"Calculator","title":"...)", ""},
      {"list --json BarChart", 2, "", "excludes"},
      {"list calculator.loaddetarray", 0, "Calculator.LoadDetArray\n  ...", ""},
      {"list refinance", 0, "Calculator.RefinancingCalculator\n  ...", ""},
      {"call refinance --help", 0, "Calculator.RefinancingCalculator\n  ...", ""},
      {"call --help", 0, "Call one method of a new object and print the answer\n...", ""},
      {"lst", 2, "", "there is no command \"lst\"; did you mean list?"},
      {"refinance", 2, "", "did you mean call refinance?"},
      {"call refinnace", 2, "", "did you mean refinance?"},
      {"call stackchart", 2, "", "say BarChart.StackChart or SvgChart.StackChart\n"},
      {"list Calculator.Amorti", 2, "", "did you mean Amortix?"},
      {"", 2, "", "subcommand"},
      {"call", 2, "", "method is required"},
      {"call Calculator.FixedPayment vPeriod", 2, "", "\"vPeriod\" is no NAME=VALUE"},
      {"call Calculator.FixedPayment vPeriods=1", 2, "", "did you mean vPeriod?"},
      {"call Calculator.FixedPayment 'vPeriod=[1'", 2, "", "\"[1\" is no JSON: byte 3 does not fit"},
      {"call Calculator.FixedPayment \"vPeriod=$(printf '\\377')\"", 2, "", "a value is no UTF-8 text"},
      {R"(call Calculator.FixedPayment 'vPeriod={"type":"Byte","value":-1}')", 2, "",
       "amortix2: vPeriod: -1 is no Byte\n"},
      {"call BarChart.MakeChart --with 'SetGraphDimensions=[1,2,3]'", 2, "",
       "amortix2: too many arguments for the setting SetGraphDimensions\n"},
      {"call Calculator.FixedPayment vPeriod=1e400", 2, "", "beyond the range of doubles"},
      {"call Calculator.FixedPayment --today 2001-02-29", 2, "", "\"2001-02-29\" is no date"},
      {"call Calculator.FixedPayment vPurchaseAmt=1 --out x", 2, "...", "nothing was made for a page"},
      {"call Calculator.LoadDetArray atCol=40000", 1, "", "amortix2: 6 Overflow: LoadDetArray: "},
      {"call BarChart.MakeChart --with NegativeBars=1 YLabelMode=11 vColDat=5", 1, "",
       "amortix2: 9 SubscriptOutOfRange: MakeChart: vColDat=5 is no table\n"},
      {"call Amortix AmortixType=x", 1, "", "13 TypeMismatch: Amortix: AmortixType: "},
      {"call save vStartDate=soon", 1, "",
       "13 TypeMismatch: AmountSavedCalculator: vStartDate=\"soon\" is no date\n"},
      {"call loan --only vPayment", 2, "", "did you mean vResPayment?"},
      {"call loan --csv x --json", 2, "", "only one of"},
      {"call svg-line-chart 'vColDat=[[0,0],[0,1]]' --out ''", 2, "", "--out names no file"},
      {"call svg-line-chart 'vColDat=[[0,0],[0,1]]' --out -", 0, "<svg ...", ""},
      {"call loan vPeriod=@/none", 3, "", "amortix2: cannot read /none: No such file or directory\n"},
      {"call BarChart.MakeChart --with NegativeBars=1 YLabel=11", 2, "", "no argument"},
      {"call --types BarChart.MakeChart vColDat=2001-01-31 blnk=2001-02-31 Colgif= Colleg='\"5\"' "
       "Ttl='$1,000' "
       "Xaxis=null Yaxis=6.5 'vRes={\"type\":\"Byte\",\"value\":1}' --with YLabelMode='\"x\"'",
       1,
       R"({"error":{"number":9,"name":"SubscriptOutOfRange"},"results":{"vColDat":{"type":"Date","value":"2001-01-31"},)"
       R"("blnk":{"type":"String","value":"2001-02-31"},"Colgif":{"type":"String","value":""},)"
       R"("Colleg":{"type":"String","value":"5"},"Ttl":{"type":"String","value":"$1,000"},)"
       R"("Xaxis":{"type":"Null","value":null},"Yaxis":{"type":"Double","value":6.5},)"
       R"("vRes":{"type":"Byte","value":1}}})"
       "\n",
       "9 SubscriptOutOfRange"},
      // Chart lines are text; what the caller gave and nobody changed is not repeated.
      {chart, 0, "vRes: ...", ""},
      {"call BarChart.MakeChart typ=SR 'vColDat=[[\"\",0.0012345678,2],[\"a\",3,4]]' 'Colgif=[\"\",5,6]' "
       "'Colleg=[0,0,0]' "
       "'Ttl=[0,0,0]'",
       0,
       R"(vColDat: Data (rows 0 to 1)
   0  1         2
0     2  0.001235
1  a  4  3.000000

Colgif: Images (elements 0 to 2)
0
1  6
2  5
...)",
       ""},
      // 1000 at 6.5/12 % a month: 5.42 and 2.72 of interest, so two payments of 504.07.
      {"call Calculator.SimpleLoanCalculator vPurchaseAmt=1000 vPeriod=2 vIntRate=6.5 --today 2001-01-31", 0,
       R"(The loan costs 504.07 a month for 2 months; interest comes to 8.14.

vResPurchaseAmt  1000.00  Amount
vResPayment       504.07  Monthly payment
vResPeriod             2  Term (months)
vResIntRate        6.500  Interest rate (annual percent)
vTotPay          1008.14  Total of payments
vTotInt             8.14  Total interest

vDetArray: Schedule (rows 0 to 2)
   Date        Payment  Principal  Interest  Balance
0  01-31-2001     0.00       0.00      0.00  1000.00
1  02-28-2001   504.07     498.65      5.42   501.35
2  03-31-2001   504.07     501.35      2.72     0.00
)",
       ""},
      {"call LOAN vPurchaseAmt=1000 vPeriod=2 vIntRate=6.5 --today 2001-01-31 --csv vdetarray", 0,
       "Date,Payment,Principal,Interest,Balance\r\n01-31-2001,0,0,0,1000\r\n02-28-2001,504.07,498.65,5.42,"
       "501.35\r\n"
       "03-31-2001,504.07,501.35,2.72,0\r\n",
       ""},
      // 1000 / 360, since the rate counts as 0.
      {"call loan vPurchaseAmt=1000 vPeriod=360 vIntRate=6.5% --only vResPayment", 0,
       "vResPayment  2.78  Monthly payment\n", "note: vIntRate=\"6.5%\" is no number and counts as 0\n"},
      {"call loan vPurchaseAmt=1000 vPeriod=2 vIntRate=6.5 --json --only vResPayment --only vtotint", 0,
       R"({"results":{"vResPayment":504.07,"vTotInt":8.14}})"
       "\n",
       ""},
      // The same by titles: 1000 over two months without interest.
      {"call loan AMOUNT=1000 term=2 --only vTotPay --only vResPayment", 0,
       "vResPayment   500.00  Monthly payment\nvTotPay      1000.00  Total of payments\n", "vIntRate: "},
      {"call loan rate=6.5", 2, "", "did you mean vIntRate (Interest rate)?"},
      {"call card", 2, "", "what comes near: loan (Loan)\n"},
      // 1200 without interest, at 100 and at 150 a month.
      {"call prepay vCurrBal=1200 vCurrPay=100 vCurrRate=0 vExtraPayment=50 --only vGrid", 0,
       R"(vGrid: Comparison (rows 1 to 4)
                       Current loan  With extra payments  Difference
Monthly payment              100.00               150.00      -50.00
Paid up front                  0.00                 0.00        0.00
Months                           12                    8           4
Cost in today's money       1200.00              1200.00        0.00
)",
       ""},
      // 600 and 1200 over a year without interest.
      {"call consolidate vCurrBal=600,1200 vCurrPay=50,100 vCurrRate=0,0 vNewRate=0 vNewTerm=12 --csv "
       "vCurrGrid",
       0,
       "Current loans,Current loan 1,Current loan 2,\"Current loan, all\"\r\nMonthly "
       "payment,50,100,150\r\n...",
       ""},
      // Twelve deposits of 100 without interest; weekly there are 52.
      {"call save vStartDate=2027-01-01 vPayment=100 vFreq=MONTHLY vPeriod=1 --only vEndBal", 0,
       "vEndBal  1200.00  Balance at the end\n", ""},
      {"call save vStartDate=2027-01-01 vPayment=100 vFreq=annual vPeriod=1 --only vEndBal", 0,
       "vEndBal  100.00  Balance at the end\n", ""},
      {"call save vStartDate=2027-01-01 vPayment=100 vFreq=weekly vPeriod=1 --only vEndBal", 0,
       "vEndBal  5200.00  Balance at the end\n", ""},
      // 1100 + 100, 1320 + 100, less a quarter.
      {"call retirement vStartDate=2027-01-01 vTyp=T vCurrBal=1000 vPayment=100 vPeriod=2 vIntRate=10 "
       "vIncTaxRate=25 --csv vGrid",
       0,
       ",The account\r\nBalance at the start,1000\r\nContribution each year,100\r\nBalance at the end before "
       "tax,1420\r\nBalance at the end after tax,1065\r\nEnd of the plan,2029-01-01\r\nInterest rate,10\r\n",
       ""},
      // 120000 less 12000, 24000 or 36000 in cash, over a year without interest.
      {"call PaymentGridCalculator vPrincipal=120000 vDownPayment=24000 vPeriod=12 vIntRate=0 "
       "vDownChange=12000 "
       "vStepY=1 --csv vGrid",
       0, "Interest rate,12000.00,24000.00,36000.00\r\n0.000,9000,8000,7000\r\n", ""},
      // The line before the first has a date and a balance; of the last column nothing is said.
      {"call LoadSaveDetArray save='{}' atCol=1 lastRow=0 detArray='[[1,2,3,4,5,6,7]]' --csv detArray", 0,
       "Date,Deposit,Interest,Growth,Balance,6\r\n12-30-1899,3,4,5,0,7\r\n", ""},
      // What the reversed style turned round; numbers without a unit have their column's decimals.
      {R"(call BarChart.MakeChart 'vColDat=[["",0,0],["a",1.5,20],["b",12.25,3],["c",{"type":"Byte","value":4},5]]' )"
       R"('Colgif=["","",""]' 'Colleg=["","",""]' 'Ttl=["","",""]' blnk= Xaxis= Yaxis= typ=SR --only vColDat)",
       0,
       "vColDat: Data (rows 0 to 3)\n   0   1      2\n0      0   0.00\n1  a  20   1.50\n2  b   3  12.25\n"
       "3  c   5   4.00\n",
       ""},
      {chart + " --csv vColDat", 0, "0,1\r\n,\r\na,1\r\n", ""},
      {"batch", 0, "", ""},
      {"batch extra", 2, "", "extra"},
  };
  for (const Case& row : cases) {
    EXPECT_EQ(Run(row.arguments), row.status) << row.arguments << Read("err");
    const std::size_t end = row.output.find("...");
    const std::string output = Read("out");
    EXPECT_EQ(output.substr(0, end), row.output.substr(0, end)) << row.arguments;
    EXPECT_NE(Read("err").find(row.error), std::string::npos) << row.arguments << Read("err");
  }
}

TEST_F(Program, AnswersAreTheSameUnderAnyLocaleAndTimeZone) {
  const std::string call =
      "call --json Calculator.SimpleLoanCalculator vPurchaseAmt=1234.5 vPeriod=5 vIntRate=6.5 --today "
      "2001-01-31";
  ASSERT_EQ(Run(call), 0);
  const std::string here = Read("out");
  ASSERT_EQ(Run(call, "", "TZ=Pacific/Kiritimati LC_ALL=de_DE.UTF-8"), 0);
  EXPECT_EQ(Read("out"), here);
  EXPECT_NE(here.find("02-28-2001"), std::string::npos);
}

TEST_F(Program, OutKeepsTheOldFileUntilTheNewOneIsComplete) {
  std::string palette = "[[0,0,0]";
  for (int i = 1; i < 256; ++i) palette += ",[0,0,0]";
  const std::string call = "call GifChart.LineChart 'vColDat=[[0,0],[0,1],[0,2]]' 'vPal=" + palette +
                           "]' --out '" + Path("image") + "'";
  ASSERT_EQ(Run(call), 0) << Read("err");
  const std::string image = Read("image");
  EXPECT_TRUE(image.starts_with("GIF87a") && image.ends_with(";"));
  EXPECT_EQ(Run(call + " nonsense=1"), 2);
  EXPECT_EQ(Read("image"), image);
  EXPECT_EQ(Run(call + "/none"), 3);
  EXPECT_EQ(Read("err"),
            "amortix2: cannot write " + Path("image") + "/none: The folder of the file does not exist.\n");
}

TEST_F(Program, ValuesComeFromFilesAndStandardInput) {
  std::ofstream(Path("table.csv"), std::ios::binary)
      << "\xEF\xBB\xBF,\"A,\n\"\"B\"\"\"\r\n2001-01-31,1.5\n\nx,2";
  std::ofstream(Path("list.csv"), std::ios::binary) << "1\n2e3\n";
  std::ofstream(Path("bad.csv"), std::ios::binary) << "1,2\n\n3\n";
  std::ofstream(Path("value.json"), std::ios::binary) << " [[1, null]] \n";
  const auto reply = [&](const std::string& value, const std::string& input = "") {
    const int status = Run("call LoadDetArray --json 'detArray=" + value + "' atCol=40000", input);
    const std::string out = Read("out");
    const std::size_t at = out.find("\"detArray\":");
    return std::to_string(status) + " " + (at == std::string::npos ? Read("err") : out.substr(at + 11));
  };
  EXPECT_EQ(reply("@" + Path("table.csv")), R"(1 [["","A,\n\"B\""],["2001-01-31",1.5],["x",2]]}})"
                                            "\n");
  EXPECT_EQ(reply("@" + Path("list.csv")), "1 [[1],[2000]]}}\n");
  EXPECT_EQ(reply("@" + Path("value.json")), "1 [[1,null]]}}\n");
  EXPECT_EQ(reply("@-", "1,2\r\n3,4\r\n"), "1 [[1,2],[3,4]]}}\n");
  EXPECT_EQ(reply("\"@x\""), "1 \"@x\"}}\n");
  EXPECT_EQ(reply("@-", "\"1"), "2 amortix2: standard input: line 1: a quote that is not closed\n");
  EXPECT_EQ(reply("@" + Path("bad.csv")),
            "2 amortix2: " + Path("bad.csv") + ": line 3 has 1 values, the first one 2\n");
}

TEST_F(Program, BatchTellsNotesAndBadLinesOnlyWhereTheyAreAskedFor) {
  const std::string requests =
      R"({"call":"Calculator.SimpleLoanCalculator","args":{"vPurchaseAmt":1000,"vPeriod":2,"vIntRate":"6.5%"},"only":["vResPayment"]}
{"call":"Calculator.AmountSavedCalculator","args":{"vStartDate":"soon"},"only":[]}
{"call":"Calculator.FixedPayment","only":["vGrid"]}
{
)";
  const std::string unknown = R"("FixedPayment has no result \"vGrid\")";
  ASSERT_EQ(Run("batch", requests), 0);
  auto lines = Lines();
  ASSERT_EQ(lines.size(), 4u);
  EXPECT_EQ(lines[0], R"({"results":{"vResPayment":500}})");
  EXPECT_EQ(lines[1], R"({"error":{"number":13,"name":"TypeMismatch"},"results":{}})");
  EXPECT_NE(lines[2].find(unknown), std::string::npos) << lines[2];
  EXPECT_TRUE(Read("err").starts_with("amortix2: line 3: FixedPayment has no result")) << Read("err");
  EXPECT_NE(Read("err").find("\namortix2: line 4: the line is no JSON: byte 2 does not fit\n"),
            std::string::npos);
  ASSERT_EQ(Run("batch --notes", requests), 0);
  lines = Lines();
  EXPECT_EQ(lines[0], R"({"results":{"vResPayment":500},"notes":[{"code":"no-number","parameter":"vIntRate",)"
                      R"("text":"vIntRate=\"6.5%\" is no number and counts as 0"}]})");
  EXPECT_EQ(lines[1], R"({"error":{"number":13,"name":"TypeMismatch","text":"AmountSavedCalculator: )"
                      R"(vStartDate=\"soon\" is no date","parameter":"vStartDate"},"results":{}})");
}

}  // namespace
}  // namespace amortix2::cli
