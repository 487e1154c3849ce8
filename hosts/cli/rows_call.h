#pragma once

// One call a row: which columns are inputs of the method, which results are wanted, and the call itself. A
// cell is read as a VALUE of the command line is, but that it names no file; an empty one leaves its input
// out. Numbers and dates go straight to the component, and all else through what `call` reads them with.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "amortix2/calculators/left_out_tables.h"
#include "amortix2/component/invocation.h"
#include "amortix2/json/csv.h"
#include "amortix2/json/lookup.h"
#include "amortix2/json/request_error.h"
#include "amortix2/json/tree.h"

namespace amortix2::cli {

inline std::string_view ResultName(const ParameterInfo* result) { return result ? result->name : "return"; }

/// What is the same for all rows. Refers to what it was made of.
class RowPlan {
 public:
  /// `constants` are NAME=VALUE; without `results` all that are single values are wanted. Raises RequestError
  /// for an input that is given twice, a result that there is not, and when no column is an input.
  RowPlan(const json::Target& target, const json::CsvRecord& names, const std::vector<std::string>& constants,
          const std::vector<std::string>& results);

  const ClassInfo& Class() const noexcept { return *type_; }
  const MemberInfo& Method() const noexcept { return *method_; }

  struct Bound {
    std::size_t cell;
    const ParameterInfo* parameter;
  };
  const std::vector<Bound>& Inputs() const noexcept { return inputs_; }
  const json::Fields& Constants() const noexcept { return constants_; }

  /// Cells of columns that are no inputs.
  const std::vector<std::size_t>& Others() const noexcept { return others_; }

  /// Parameters that came back, or null for what the method returns.
  const std::vector<const ParameterInfo*>& Results() const noexcept { return results_; }

  bool Wants(const ParameterInfo& result) const;

  /// A word on each column that is probably meant as an input.
  std::vector<std::string> Doubts(const json::CsvRecord& names) const;

 private:
  void Bind(std::size_t cell, const ParameterInfo& input);
  bool IsGiven(const ParameterInfo& input) const;

  const ClassInfo* type_;
  const MemberInfo* method_;
  std::vector<Bound> inputs_;
  json::Fields constants_;
  std::vector<std::size_t> others_;
  std::vector<const ParameterInfo*> results_;
};

/// Calls for one row after the other. One thread's own.
class RowCall {
 public:
  /// Both must outlive it.
  RowCall(const RowPlan& plan, const Clock& clock);

  /// Calls with a row's cells for the plan's results. Raises what reading and calling raise.
  void Run(const json::CsvRecord& cells) { Run(cells, nullptr, nullptr); }

  /// Calls for one schedule: `lines` gets its lines, or else it is in the result `schedule` as a table.
  void Run(const json::CsvRecord& cells, const ParameterInfo* schedule, const calculators::LinesTaker* lines);

  /// Of the last call that raised nothing.
  const Value& Result(const ParameterInfo* result) const;

  /// What `call` says of such a row, where `failure` says nothing itself.
  std::string WhyFailed(const json::CsvRecord& cells, const json::Failure& failure) const;

 private:
  const RowPlan& plan_;
  const Clock& clock_;
  std::optional<Object> object_;
  std::optional<Invocation> call_;
};

}  // namespace amortix2::cli
