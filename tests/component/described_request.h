#pragma once

// Requests made from the description: "loan + vPayment=1500" is the example request of the member whose
// address is "loan", with one input changed ("-" leaves it out, "_" is a blank; without "+" nothing but what
// is named is given).

#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/error.h"
#include "amortix2/component/call_values.h"
#include "amortix2/component/invocation.h"
#include "amortix2/component/notes.h"
#include "amortix2/json/tree.h"
#include "amortix2/json/variant_reader.h"

namespace amortix2 {

inline Variant FromJson(std::string_view text) { return json::ToVariant(*json::ParseTree(text).tree); }

/// One call of a described member: its inputs, what came back, and the error if there was one.
class DescribedRequest {
 public:
  explicit DescribedRequest(const ClassMember& member) : type_(member.type), call_(*member.member) {}
  explicit DescribedRequest(const std::string& text) : DescribedRequest(Addressed(text)) {
    std::istringstream words(text);
    std::string word;
    words >> word;
    while (words >> word) {
      const std::size_t equals = word.find('=');
      if (word == "+") {
        GiveExamples();
      } else {
        Give(word.substr(0, equals), word.substr(equals + 1));
      }
    }
    Call();
  }

  void GiveExamples() {
    for (const ParameterInfo& parameter : Member().parameters) {
      if (parameter.IsInput() && !parameter.example.empty())
        Give(parameter.name, std::string(parameter.example));
    }
  }
  void Give(std::string_view name, std::string text) {
    for (char& c : text) c = c == '_' ? ' ' : c;
    const ParameterInfo& parameter = *FindParameter(Member(), name);
    Value& place = call_.Arguments()[static_cast<std::size_t>(&parameter - Member().parameters.data())];
    if (parameter.type->kind != TypeKind::Variant) return;
    const bool isJson = text.starts_with('[');
    parameter.type->write(place.Get(), text == "-" ? Variant()
                                       : isJson    ? FromJson(text)
                                                   : Variant(std::string_view(text)));
  }
  /// Any variant in the place of a parameter that is one.
  void GiveVariant(std::size_t place, const Variant& value) {
    const ParameterInfo& parameter = Member().parameters[place];
    if (parameter.type->kind == TypeKind::Variant)
      parameter.type->write(call_.Arguments()[place].Get(), value);
  }
  void Call() {
    inputs_.emplace(Member(), call_.Arguments());
    Object object(*type_, clock_);
    try {
      call_.Call(object);
    } catch (const AutomationError& failure) {
      error_ = failure.Number();
    }
  }

  const MemberInfo& Member() const { return call_.Member(); }
  const Inputs& In() const { return *inputs_; }
  Results Out() const { return {Member(), call_.Arguments()}; }
  const std::optional<ErrorNumber>& Error() const { return error_; }
  std::vector<Note> Notes() const { return NotesOn(In(), Out(), clock_.Today()); }

 private:
  static const ClassMember& Addressed(const std::string& text) {
    const std::string address = text.substr(0, text.find(' '));
    for (const ClassMember& member : MembersInOrder()) {
      if (member.member->address == address) return member;
    }
    throw std::runtime_error("no member is called " + address);
  }

  FixedClock clock_{MakeDate(2026, 11, 21)};
  const ClassInfo* type_;
  Invocation call_;
  std::optional<Inputs> inputs_;
  std::optional<ErrorNumber> error_;
};

}  // namespace amortix2
