#pragma once

// How the rules of notes look at a call and write their notes.

#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "amortix2/automation/date.h"
#include "amortix2/component/call_values.h"
#include "amortix2/component/notes.h"

namespace amortix2 {

/// One call, and the notes on it so far.
class NoteWriter {
 public:
  NoteWriter(const Inputs& inputs, const Results& results, Date today)
      : inputs_(inputs), results_(results), today_(today) {}

  const MemberInfo& Member() const { return inputs_.Member(); }
  Date Today() const { return today_; }
  const Inputs& In() const { return inputs_; }
  const Results& Out() const { return results_; }

  double Number(std::string_view input) const { return inputs_.Number(input); }
  bool IsGiven(std::string_view input) const { return amortix2::IsGiven(inputs_.At(input)); }

  /// A note about what was given: `vIntRate="6.5%" is no number`.
  void OnInput(std::string_view code, const ParameterInfo& parameter, const Variant& given,
               std::string sentence);
  void OnInput(std::string_view code, std::string_view name, std::string sentence);
  /// A note that is a sentence of its own about a parameter.
  void About(std::string_view code, std::string_view name, std::string sentence);

  std::vector<Note> Take() { return std::move(notes_); }

 private:
  const Inputs& inputs_;
  const Results& results_;
  Date today_;
  std::vector<Note> notes_;
};

/// An input as a person gave it: texts in quotes, numbers as they are; long texts are cut.
std::string GivenText(const Variant& value);

/// "1,264.14".
std::string MoneyText(double amount);

/// What of the description alone can be said of any member's inputs.
void NoteInputs(NoteWriter& notes);

/// What is special to members, by a table of rules each: loans, leases and comparisons; savings, retirement
/// and the survey.
void NoteLoans(NoteWriter& notes);
void NotePlans(NoteWriter& notes);

/// A rule of one member, or (without a name) of all.
struct Rule {
  std::string_view member;
  void (*note)(NoteWriter& notes);
};
void Apply(std::span<const Rule> rules, NoteWriter& notes);

/// The input whose quantity was found; empty when nothing was, or always the same is.
std::string_view FoundInput(const NoteWriter& notes);

/// To cents as the engine rounds, but without an error: what is too large stays it.
double Cents(double amount);

bool IsFrequency(double code);

}  // namespace amortix2
