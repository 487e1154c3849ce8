// amortix2 rows as other programs run it: whole outputs of small tables, and that neither threads nor cuts
// change a byte.

#include <gtest/gtest.h>

#include <random>

#include "amortix2/cli/command_line.h"
#include "program.h"

namespace amortix2::cli {
namespace {

TEST_F(Program, RowsAreAnsweredInTheirPlaces) {
  struct Case {
    std::string arguments;
    std::string input;
    int status;
    std::string output;
    std::string error;  // the first line on standard error
  };
  // 200000 over 360 months at 6.5 % costs 1264.14 a month; without interest 1000 over 2 months costs 500.
  const Case cases[] = {
      {"fixed --only vResPayment,vTotInt",
       "\xEF\xBB\xBFid,vPurchaseAmt,Term,vIntRate\r\na,200000,360,6.5\r\n\r\n\"b, \"\"x\"\"\ny\",1000,2,\r\n"
       "c,1000,40000,0\nd,1000\ne\"f,1,2,3\n\"g,1000,2,0\nh,\"1000\",2,0",
       14,
       "id,vResPayment,vTotInt,error,error_text\r\na,1264.14,255085.82,,\r\n\"b, \"\"x\"\"\ny\",500,0,,\r\n"
       "c,,,6,FixedPayment: vPeriod=40000 is too large\r\n"
       "d,,,0,\"the row has 2 values, the header 4\"\r\ne,,,0,a quote within a value\r\n"
       ",,,0,a quote that is not closed\r\nh,500,0,,\r\n",
       "amortix2: line 6: 6 FixedPayment: vPeriod=40000 is too large"},
      {"fixed vPeriod=2 --drop --only vResPayment --from tsv", "a,b\tvPurchaseAmt\n\"a\tb\"\t1000\n", 0,
       "vResPayment\terror\terror_text\n500\t\t\n", ""},
      {"fixed --from jsonl --only vResPayment",
       "{\"id\":\"007\",\"n\":7,\"vPurchaseAmt\":1000,\"vPeriod\":\"2\"}\n{\"vPeriod\":4,\"vPurchaseAmt\":"
       "1000}"
       "\n[]\n{\"x\":1}\n{\"vPeriod\":-2}",
       13,
       "{\"id\":\"007\",\"n\":7,\"vResPayment\":500,\"error\":null,\"error_text\":null}\n"
       "{\"id\":\"\",\"n\":\"\",\"vResPayment\":250,\"error\":null,\"error_text\":null}\n"
       "{\"id\":\"\",\"n\":\"\",\"vResPayment\":null,\"error\":0,\"error_text\":\"the line is no JSON "
       "object\"}\n"
       "{\"id\":\"\",\"n\":\"\",\"vResPayment\":null,\"error\":0,\"error_text\":\"the first line has no "
       "field "
       "\\\"x\\\"\"}\n"
       "{\"id\":\"\",\"n\":\"\",\"vResPayment\":null,\"error\":9,\"error_text\":\"FixedPayment: vPeriod=-2 "
       "is "
       "too small\"}\n",
       "amortix2: line 3: 0 the line is no JSON object"},
      // Choices, dates, a list and a table as cells: what a command line takes.
      {"save vPayment=100 years=1 --only vEndBal", "start,frequency\n2027-01-01,monthly\n2027-01-01,weekly\n",
       0, "vEndBal,error,error_text\r\n1200,,\r\n5200,,\r\n", ""},
      // The first closes in October; both begin a month before their first payment.
      {"fixed vIntRate=0 --sum vDetArray --by month",
       "vPurchaseAmt,vPeriod,vPayDate,vCloseDate\n1000,2,2027-01-15,2026-10-01\n300,3,2027-02-10,\n1,40000,,"
       "\n",
       11,
       "month,payments,principal,interest,balance\r\n2026-10,0.00,0.00,0.00,1000.00\r\n"
       "2026-11,0.00,0.00,0.00,1000.00\r\n2026-12,0.00,0.00,0.00,1000.00\r\n"
       "2027-01,500.00,500.00,0.00,800.00\r\n2027-02,600.00,600.00,0.00,200.00\r\n"
       "2027-03,100.00,100.00,0.00,100.00\r\n2027-04,100.00,100.00,0.00,0.00\r\n",
       "amortix2: line 4: 6 FixedPayment: vPeriod=40000 is too large\namortix2: 1 of 3 rows failed\n"},
      // Tables of which cells change after the schedule: 100 a month, and 900 at the balloon; 200 a quarter,
      // and the car for 600.
      {"balloon vIntRate=0 --sum vDetArray",
       "vPurchaseAmt,vPeriod,vBalloonAtPeriod,vStartDate\n1000,10,1,2026-12-01\n", 0,
       "month,payments,principal,interest,balance\r\n2026-12,0.00,0.00,0.00,1000.00\r\n"
       "2027-01,100.00,100.00,0.00,900.00\r\n2027-02,900.00,900.00,0.00,0.00\r\n",
       ""},
      {"lease-frequency vIntRate=0 vPayMode=quarterly vIntMode=monthly --sum vDetArr",
       "vPrincipal,vPeriod,vEndingBal,vStartDate\n1000,2,600,2026-12-15\n", 0,
       "month,payments,principal,interest,balance\r\n2026-12,0.00,0.00,0.00,1000.00\r\n"
       "2027-01,0.00,0.00,0.00,1000.00\r\n2027-02,0.00,0.00,0.00,1000.00\r\n2027-03,200.00,200.00,0.00,800."
       "00\r\n"
       "2027-04,0.00,0.00,0.00,800.00\r\n2027-05,0.00,0.00,0.00,800.00\r\n2027-06,800.00,800.00,0.00,0."
       "00\r\n",
       ""},
      {"fixed", "", 2, "", "amortix2: the input has no header"},
      {"fixed --from jsonl", "", 0, "", ""},
      {"fixed", "vPeriod,TERM\n", 2, "", "amortix2: vPeriod is given twice"},
      {"fixed vPeriod=1", "vPeriod\n", 2, "", "amortix2: vPeriod is given twice"},
      {"fixed", "id\n1\n", 2, "",
       "amortix2: the header names no input of FixedPayment; call METHOD --help has "
       "their names"},
      {"fixed --drop --only vResPayment", "price,vPeriod\n", 0, "vResPayment,error,error_text\r\n", ""},
      {"fixed --only vResPayment", "vPerid,rate,vPurchaseAmt\n", 0,
       "vPerid,rate,vResPayment,error,error_text\r\n",
       "amortix2: note: the column \"vPerid\" is no input; did you mean vPeriod?\namortix2: note: "
       "FixedPayment has no "
       "argument \"rate\"; did you mean vIntRate (Interest rate)?\n"},
      {"save --sum vDetArray", "", 2, "", "amortix2: vDetArray is no schedule of one loan"},
      {"fixed --sum vDetArray --to jsonl", "", 2, "", "amortix2: sums are csv or tsv"},
      {"fixed --only vDetAray", "vPeriod\n", 2, "", ""},
      {"--merge -", "month,payments,principal,interest,balance\n2026-01,1.5,0.00,0.00,0.00\n", 2, "",
       "amortix2: standard input: \"1.5\" is no amount in cents"},
      {"", "", 2, "", "amortix2: rows: takes a method or --merge"},
  };
  for (const Case& row : cases) {
    EXPECT_EQ(Run("rows " + row.arguments, row.input), row.status) << row.arguments << Read("err");
    EXPECT_EQ(Read("out"), row.output) << row.arguments;
    EXPECT_TRUE(Read("err").starts_with(row.error)) << row.arguments << Read("err");
  }
}

/// Loans whose rows fail in several ways, also within quotes that break lines.
std::vector<std::string> MixedLoans(std::size_t count) {
  std::mt19937 random(7);
  const auto below = [&](unsigned limit) { return std::to_string(random() % limit); };
  std::vector<std::string> loans;
  while (loans.size() < count) {
    std::string loan = below(1'000'000) + "." + below(100) + "," + below(60) + "," + below(12) + ",20" +
                       std::to_string(10 + random() % 30) + "-0" + std::to_string(1 + random() % 9) + "-28,";
    switch (random() % 20) {
      case 0:
        loan = "1,40000,5,,";
        break;
      case 1:
        loan += "\"two\nlines, \"\"quoted\"\"\"";
        break;
      case 2:
        loan += "a\"b";
        break;
      default:
        loan += std::string(200, 'x');
    }
    loans.push_back(loan + (random() % 2 == 0 ? "\r\n" : "\n"));
  }
  return loans;
}

std::string Joined(const std::vector<std::string>& loans, std::size_t from, std::size_t to) {
  std::string text = "vPurchaseAmt,vPeriod,vIntRate,vPayDate,note\n";
  for (std::size_t i = from; i < to; ++i) text += loans[i];
  return text;
}

TEST_F(Program, NeitherThreadsNorCutsOfRowsChangeAByte) {
  const auto loans = MixedLoans(1500);
  const std::string answers = "rows fixed --only vResPayment,vTotInt";
  const std::string sums = "rows fixed --sum vDetArray";
  const auto output = [&](const std::string& arguments, const std::string& input) {
    EXPECT_GT(Run(arguments, input), kRowsFailed) << Read("err");
    return Read("out");
  };
  const std::string all = Joined(loans, 0, loans.size());
  const std::string answered = output(answers, all);
  const std::string summed = output(sums, all);
  EXPECT_EQ(output(answers + " --threads 3", all), answered);
  EXPECT_EQ(output(sums + " --threads 4", all), summed);

  std::string parts;
  std::string merge = "rows --merge";
  const std::size_t cuts[] = {0, 400, 801, 1500};
  for (int part = 2; part >= 0; --part) {
    const std::string some = Joined(loans, cuts[part], cuts[part + 1]);
    const std::string text = output(answers, some);
    parts.insert(0, text.substr(text.find('\n') + 1));
    const std::string name = "sum" + std::to_string(part);
    std::ofstream(Path(name.c_str()), std::ios::binary) << output(sums, some);
    merge.append(" '").append(Path(name.c_str())).append("'");
  }
  EXPECT_EQ(answered.substr(answered.find('\n') + 1), parts);
  EXPECT_EQ(Run(merge), 0);
  EXPECT_EQ(Read("out"), summed);
}

TEST_F(Program, SumsBeyond64BitsAreExactAndWhatIsTooLargeLeavesThem) {
  const std::string sum = "rows fixed vIntRate=0 --sum vDetArray --today 2026-12-31";
  const std::string header = "vPurchaseAmt,vPeriod\n";
  std::string loans;
  for (int i = 0; i < 100; ++i) loans += "20000000000000.01,2\n";
  ASSERT_EQ(Run(sum, header + loans), 0);
  std::ofstream(Path("hundred"), std::ios::binary) << Read("out");
  std::string all = header;
  std::string merge = "rows --merge";
  for (int i = 0; i < 50; ++i) {
    all += loans + "30000000000000,2\n";
    merge.append(" '").append(Path("hundred")).append("'");
  }
  ASSERT_EQ(Run(sum, all), kRowsFailed + 50);
  const std::string sums = Read("out");
  EXPECT_NE(sums.find("\r\n2026-12,0.00,0.00,0.00,100000000000000050.00\r\n"), std::string::npos) << sums;
  ASSERT_EQ(Run(merge), 0);
  EXPECT_EQ(Read("out"), sums);
}

}  // namespace
}  // namespace amortix2::cli
