#include "amortix2/cli/rows.h"

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "amortix2/cli/lines.h"
#include "amortix2/cli/rows_call.h"
#include "amortix2/cli/rows_format.h"
#include "amortix2/cli/rows_in_order.h"
#include "amortix2/cli/rows_sums.h"

namespace amortix2::cli {
namespace {

constexpr std::size_t kTold = 10;  // of the rows that failed

/// All that the rows have in common.
struct Job {
  const RowPlan& plan;
  const json::CsvRecord& names;  ///< of the columns
  Format from;
  Format to;
  bool keepsOthers;
  const ParameterInfo* sum;  ///< the schedule that is added up; null: rows are answered
};

struct FailedRow {
  std::uint64_t line;
  std::string text;
};

/// What became of a piece.
struct Done {
  std::string out;
  std::uint64_t rows = 0;
  std::uint64_t failed = 0;
  std::vector<FailedRow> told;
};

/// Works on pieces. One thread's own.
class Worker {
 public:
  Worker(const Job& job, const Clock& clock) : job_(job), call_(job.plan, clock) {}

  const MonthSums& Sums() const noexcept { return sums_; }

  Done operator()(const Piece& piece) {
    Done done;
    std::string_view rest = piece.text;
    std::uint64_t line = piece.line;
    while (!rest.empty()) {
      const std::string_view record = TakeRecord(rest, job_.from);
      if (!IsEmptyLine(record)) Answer(record, line, done);
      line += static_cast<std::uint64_t>(std::ranges::count(record, '\n'));
    }
    return done;
  }

 private:
  void Answer(std::string_view record, std::uint64_t line, Done& done) {
    ++done.rows;
    const std::size_t start = done.out.size();
    bool isRead = false;
    const auto failure = json::Try([&] {
      ReadCells(record, job_.names, cells_, job_.from);
      isRead = true;
      if (job_.sum) return AddUp();
      call_.Run(cells_);
      RecordWriter row = BeginRow(done.out);
      for (const ParameterInfo* result : job_.plan.Results()) {
        row.AddValue(ResultName(result), call_.Result(result));
      }
      row.AddNothing("error");
      row.AddNothing("error_text");
      row.End();
    });
    if (!failure) return;
    done.out.resize(start);
    const std::string text = isRead ? call_.WhyFailed(cells_, *failure) : failure->message;
    const std::string number = std::to_string(static_cast<std::int32_t>(failure->number));
    if (++done.failed <= kTold) done.told.push_back({line, number + " " + text});
    if (!job_.sum) WriteFailure(done.out, number, text);
  }

  void AddUp() {
    bool isTaken = false;
    const calculators::LinesTaker take = [&](std::span<const tSchedule> lines, Date opening) {
      schedule_.Read(lines, opening);
      isTaken = true;
    };
    call_.Run(cells_, job_.sum, &take);
    if (!isTaken) {
      const Value& result = call_.Result(job_.sum);
      WithVariant(result.Type(), result.Get(), [&](const Variant& table) { schedule_.Read(table); });
    }
    sums_.Add(schedule_);
  }

  /// A row with what passes through.
  RecordWriter BeginRow(std::string& out) const {
    RecordWriter row(out, job_.to);
    for (const std::size_t cell : job_.plan.Others()) {
      if (!job_.keepsOthers) break;
      row.AddText(job_.names[cell], cell < cells_.size() ? cells_[cell] : std::string());
    }
    return row;
  }

  void WriteFailure(std::string& out, const std::string& number, const std::string& text) const {
    RecordWriter row = BeginRow(out);
    for (const ParameterInfo* result : job_.plan.Results()) row.AddNothing(ResultName(result));
    row.AddText("error", number);
    row.AddText("error_text", text);
    row.End();
  }

  const Job& job_;
  RowCall call_;
  json::CsvRecord cells_;
  CentSchedule schedule_;
  MonthSums sums_;
};

/// Counts rows, and shows how far they are where standard error is a terminal.
class Progress {
 public:
  explicit Progress(const std::function<void(const std::string&)>& say) : say_(say) {}

  void Add(const Done& done) {
    rows_ += done.rows;
    for (const FailedRow& row : done.told) {
      if (told_++ < kTold) say_("line " + std::to_string(row.line) + ": " + row.text);
    }
    failed_ += done.failed;
    const auto now = std::chrono::steady_clock::now();
    constexpr std::chrono::milliseconds kPause(500);
    if (!isShown_ || now - shown_ < kPause) return;
    shown_ = now;
    const double seconds = std::chrono::duration<double>(now - begun_).count();
    Show(std::to_string(rows_) + " rows, " + std::to_string(failed_) + " failed, " +
         std::to_string(static_cast<std::uint64_t>(static_cast<double>(rows_) / seconds)) + " a second");
  }

  std::uint64_t End() {
    if (isShown_) Show("");
    if (failed_ > 0) say_(std::to_string(failed_) + " of " + std::to_string(rows_) + " rows failed");
    return failed_;
  }

 private:
  void Show(const std::string& text) const {
    const std::string shown = "\r\x1b[K" + text;  // over what stood there
    static_cast<void>(write(STDERR_FILENO, shown.data(), shown.size()) < 0);
  }

  const std::function<void(const std::string&)>& say_;
  std::uint64_t rows_ = 0;
  std::uint64_t failed_ = 0;
  std::size_t told_ = 0;
  bool isShown_ = isatty(STDERR_FILENO) == 1;
  std::chrono::steady_clock::time_point begun_ = std::chrono::steady_clock::now();
  std::chrono::steady_clock::time_point shown_ = begun_;
};

std::string Header(const Job& job) {
  json::CsvRecord header;
  for (const std::size_t cell : job.plan.Others()) {
    if (job.keepsOthers) header.push_back(job.names[cell]);
  }
  for (const ParameterInfo* result : job.plan.Results()) header.emplace_back(ResultName(result));
  header.emplace_back("error");
  header.emplace_back("error_text");
  std::string text;
  json::AppendCsv(text, header, SeparatorOf(job.to));
  return text;
}

Format NeedTable(Format format) {
  if (format == Format::JsonLines) throw json::RequestError("sums are csv or tsv");
  return format;
}

int Merge(const RowsLine& line) {
  MonthSums sums;
  for (const std::string& path : line.merge) {
    try {
      sums.AddText(ReadWhole(path), SeparatorOf(NeedTable(line.from)));
    } catch (json::RequestError& error) {
      throw json::RequestError((path == "-" ? "standard input" : path) + ": " + error.TakeMessage());
    }
  }
  std::string text;
  sums.AppendTo(text, SeparatorOf(NeedTable(line.to.value_or(line.from))));
  WriteAll(STDOUT_FILENO, text);
  return kSuccess;
}

const ParameterInfo* Schedule(const MemberInfo& method, const std::string& name) {
  json::NeedResult(method, name);
  const ParameterInfo* schedule = FindParameter(method, name);
  if (!schedule) throw json::RequestError(json::Quoted(name) + " is no schedule of one loan");
  NeedLoanSchedule(*schedule);
  return schedule;
}

int StatusOf(std::uint64_t failed) {
  constexpr std::uint64_t kMost = 100;
  return failed == 0 ? kSuccess : kRowsFailed + static_cast<int>(std::min(failed, kMost));
}

}  // namespace

int RunRows(const CommandLine& line, const Clock& clock, const std::function<void(const std::string&)>& say) {
  const RowsLine& rows = line.rows;
  if (!rows.merge.empty()) return Merge(rows);
  const json::Target target = json::FindCalled(line.target);
  const ParameterInfo* sum = rows.sum ? Schedule(target.method, *rows.sum) : nullptr;
  const Format to = sum ? NeedTable(rows.to.value_or(rows.from)) : rows.to.value_or(rows.from);
  PieceReader input(STDIN_FILENO, rows.from);
  const json::CsvRecord names = input.TakeHeader();
  if (names.empty() && rows.from != Format::JsonLines) throw json::RequestError("the input has no header");
  const RowPlan plan(target, names, line.arguments, line.only);
  const Job job{plan, names, rows.from, to, !rows.drop, sum};
  if (!rows.drop)
    std::ranges::for_each(plan.Doubts(names), [&](const auto& doubt) { say("note: " + doubt); });

  if (!sum && to != Format::JsonLines) WriteAll(STDOUT_FILENO, Header(job));
  Progress progress(say);
  const auto finish = [&](const Done& done) {
    WriteAll(STDOUT_FILENO, done.out);
    progress.Add(done);
  };
  std::vector<Worker> workers;
  for (unsigned i = 0; i < rows.threads; ++i) workers.emplace_back(job, clock);
  OrderedRun(input, workers, finish).Run();
  if (sum) {
    MonthSums all;
    for (const Worker& worker : workers) all.Add(worker.Sums());
    std::string text;
    all.AppendTo(text, SeparatorOf(job.to));
    WriteAll(STDOUT_FILENO, text);
  }
  return StatusOf(progress.End());
}

}  // namespace amortix2::cli
