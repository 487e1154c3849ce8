#pragma once

// One question of a person: a member's inputs as they were typed, read, and answered when nothing is wrong
// with them. The query holds an input by its parameter's name; a list's items by the same name once more for
// each, in order; a survey's answers behind a point ("vSurvey.1"); and "find", the name of the input that is
// to be found, so that nobody has to type 0. All other names are left alone.

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "amortix2/automation/date.h"
#include "amortix2/component/call_values.h"
#include "amortix2/component/description.h"
#include "amortix2/component/notes.h"
#include "amortix2/json/execution.h"
#include "amortix2/json/tree.h"
#include "amortix2/pages/query.h"

namespace amortix2::pages {

struct FieldError {
  const ParameterInfo* parameter;  ///< null: the question as a whole
  std::size_t item = 0;            ///< of a list or a survey, from 0
  std::string sentence;
};

class Calculation {
 public:
  /// Reads the inputs and, when all can be read, makes the call. The clock is used only here.
  Calculation(const ClassMember& member, const Query& query, const Clock& clock);

  const MemberInfo& Member() const noexcept { return *member_.member; }
  const ClassMember& Target() const noexcept { return member_; }

  /// What is asked for; null when no choice is left to a person, or nothing says which.
  const FindInfo* Find() const noexcept { return find_; }

  /// What was wrong, in the order of the fields; empty when there is an answer.
  const std::vector<FieldError>& Errors() const noexcept { return errors_; }
  bool IsAnswered() const noexcept { return errors_.empty(); }

  /// "Calculator.FixedPayment" and its arguments by name, as a request of JSON holds them.
  std::string Call() const;
  const json::Fields& Arguments() const noexcept { return arguments_; }

  // The next ones only when it is answered. The execution keeps its inputs.
  const json::Execution& Execution() const noexcept { return *execution_; }
  const Inputs& In() const noexcept { return *execution_->Given(); }
  Results Out() const { return {Member(), execution_->Call()->Arguments()}; }

 private:
  void ReadSingle(const ParameterInfo& parameter, const Query& query);
  void ReadList(const ListInfo& list, const Query& query);
  void ReadSurvey(const ParameterInfo& parameter, const Query& query);
  void RefuseFailed();
  void CheckFind();
  void Need(std::string_view name);
  bool IsRefused(const ParameterInfo& parameter) const;
  void Refuse(const ParameterInfo* parameter, std::string sentence, std::size_t item = 0);

  ClassMember member_;
  const FindInfo* find_ = nullptr;
  json::OwnFields arguments_;
  std::vector<FieldError> errors_;
  std::optional<json::Execution> execution_;
};

/// The inputs of the description's example, which make a sensible question.
Query ExampleQuery(const MemberInfo& member);

/// What a query asks a member to find: what it names in "find", else the first that it leaves empty; null
/// when the member leaves no choice, or the query nothing empty.
const FindInfo* FindAsked(const MemberInfo& member, const Query& query);

/// The list that an input belongs to; null when it is a single value.
const ListInfo* ListOf(const MemberInfo& member, const ParameterInfo& parameter);

}  // namespace amortix2::pages
