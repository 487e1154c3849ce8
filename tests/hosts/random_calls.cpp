// Calls every member of every class with values that nobody planned for, as many times as the argument says:
// each call must end in a result or an AutomationError, soon, and no result may be infinite or not a number.
//
//   random_calls COUNT [SEED]

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <optional>
#include <vector>

#include "amortix2/automation/error.h"
#include "amortix2/automation/page.h"
#include "amortix2/cli/typed_json.h"
#include "amortix2/component/description.h"
#include "hosts/garbage.h"

namespace amortix2::testing {
namespace {

using std::chrono::steady_clock;
constexpr std::chrono::seconds kLongestCall{10};

class SomeDay final : public Clock {
 public:
  Date Today() const override { return Date{36922}; }
};

class Page final : public ScriptingContext, private PageResponse {
 public:
  PageResponse& Response() override { return *this; }

 private:
  void BinaryWrite(std::span<const std::uint8_t>) override {}
};

/// Every call is made of its number alone, so that one that shows a fault can be repeated.
class RandomCalls {
 public:
  void Run(std::uint64_t number) {
    garbage_ = Garbage(number);
    const auto classes = Classes();
    const ClassInfo& type = *classes[static_cast<std::size_t>(garbage_.Pick(std::ssize(classes)))];
    Object object(type, clock_);
    // Some calls meet an object that others have changed.
    for (std::int64_t calls = garbage_.Pick(4) == 0 ? 3 : 1; calls > 0; --calls) {
      const MemberInfo& member =
          type.members[static_cast<std::size_t>(garbage_.Pick(std::ssize(type.members)))];
      const std::vector<Value> arguments = MakeArguments(member);
      const std::string fault = Invoke(object, member, arguments);
      if (!fault.empty()) Report(number, type, member, arguments, fault);
    }
  }

  int Summary() const {
    for (const auto& [number, count] : outcomes_) {
      std::printf("%8ld  %s\n", count, number == ErrorNumber{0} ? "result" : ErrorName(number).data());
    }
    std::printf("slowest call: %.3f s, %s\n", std::chrono::duration<double>(slowest_).count(),
                slowestName_.c_str());
    return faults_ == 0 ? 0 : 1;
  }

 private:
  std::vector<Value> MakeArguments(const MemberInfo& member) {
    std::vector<Value> arguments;
    for (const ParameterInfo& parameter : member.parameters) {
      arguments.emplace_back(*parameter.type);
      Fill(*parameter.type, arguments.back().Get());
    }
    return arguments;
  }

  /// What is wrong with the outcome; empty when all is well.
  std::string Invoke(Object& object, const MemberInfo& member, const std::vector<Value>& arguments) {
    std::vector<void*> places;
    places.reserve(arguments.size());
    for (const Value& argument : arguments) places.push_back(const_cast<void*>(argument.Get()));
    std::optional<Value> result;
    if (member.result) result.emplace(*member.result);
    const auto start = steady_clock::now();
    try {
      member.call(object.Get(), places, result ? result->Get() : nullptr);
      ++outcomes_[ErrorNumber{0}];
    } catch (const AutomationError& error) {
      ++outcomes_[error.Number()];
    } catch (const std::exception& other) {
      return std::string("raised ") + other.what();
    }
    const auto took = steady_clock::now() - start;
    if (took > slowest_) {
      slowest_ = took;
      slowestName_ = member.name;
    }
    if (took > kLongestCall)
      return "took " + std::to_string(std::chrono::duration<double>(took).count()) + " s";
    for (const Value& argument : arguments) {
      if (!IsSound(argument.Type(), argument.Get())) return "gave a result that is infinite or not a number";
    }
    return {};
  }

  void Report(std::uint64_t number, const ClassInfo& type, const MemberInfo& member,
              const std::vector<Value>& arguments, const std::string& fault) {
    ++faults_;
    std::string text = "call " + std::to_string(number) + " " + fault + ": " + std::string(type.name) + ".";
    text.append(member.name);
    for (std::size_t i = 0; i < arguments.size(); ++i) {
      text.append(" ").append(member.parameters[i].name).append("=");
      cli::AppendArgument(text, arguments[i], cli::JsonForm::WithTypes);
    }
    std::puts(text.substr(0, 4000).c_str());
    std::fflush(stdout);
  }

  void Fill(const TypeInfo& type, void* value) {
    if (type.kind == TypeKind::ScriptingContext) {
      if (garbage_.Pick(4) > 0) *static_cast<std::shared_ptr<ScriptingContext>*>(value) = page_;
    } else if (type.kind == TypeKind::Record) {
      for (const FieldInfo& field : type.record->fields) Fill(*field.type, field.in(value));
    } else if (type.kind == TypeKind::RecordArray) {
      FillRecords(type, value);
    } else {
      FillSingle(type, value);
    }
  }

  void FillRecords(const TypeInfo& type, void* value) {
    const auto lower = static_cast<std::int32_t>(garbage_.Pick(3));
    try {
      type.resize(value, {lower, lower + static_cast<std::int32_t>(garbage_.Pick(4)) - 1});
    } catch (const AutomationError&) {  // a list that starts at 0 stays as it is
    }
    const Bounds bounds = type.bounds(value);
    for (std::int64_t i = bounds.lower; i <= bounds.upper; ++i) {
      for (const FieldInfo& field : type.record->fields) Fill(*field.type, field.in(type.at(value, i)));
    }
  }

  void FillSingle(const TypeInfo& type, void* value) {
    static constexpr std::array<std::int32_t, 10> kCodes{1, 2, 3, 4, 5, 7, 101, 102, 103, 104};
    try {
      if (type.kind == TypeKind::Enumeration && garbage_.Pick(8) > 0) {
        type.write(value, garbage_.OneOf(kCodes));
      } else if (type.kind == TypeKind::Double && garbage_.Pick(3) > 0) {
        type.write(value, garbage_.Number());
      } else {
        type.write(value, garbage_.Any());
      }
    } catch (const AutomationError&) {  // no value of this type: it keeps its zero
    }
  }

  static bool IsSound(const TypeInfo& type, const void* value) {
    if (type.kind == TypeKind::ScriptingContext) return true;
    if (type.kind == TypeKind::Record) return IsSoundRecord(*type.record, const_cast<void*>(value));
    if (type.kind != TypeKind::RecordArray) return IsSound(type.read(value));
    const Bounds bounds = type.bounds(value);
    for (std::int64_t i = bounds.lower; i <= bounds.upper; ++i) {
      if (!IsSoundRecord(*type.record, type.at(const_cast<void*>(value), i))) return false;
    }
    return true;
  }

  static bool IsSoundRecord(const RecordInfo& record, void* value) {
    return std::ranges::all_of(record.fields,
                               [&](const FieldInfo& field) { return IsSound(*field.type, field.in(value)); });
  }

  static bool IsSound(const Variant& value) {
    if (value.Type() == VariantType::Double) return std::isfinite(value.GetDouble());
    if (value.Type() == VariantType::Date) return value.GetDate() >= kFirstDay && value.GetDate() <= kLastDay;
    if (value.Type() != VariantType::Array) return true;
    return std::ranges::all_of(value.GetArray().Cells(), [](const Variant& cell) { return IsSound(cell); });
  }

  Garbage garbage_{0};
  SomeDay clock_;
  std::shared_ptr<Page> page_ = std::make_shared<Page>();
  std::map<ErrorNumber, long> outcomes_;
  long faults_ = 0;
  steady_clock::duration slowest_{};
  std::string slowestName_;
};

}  // namespace
}  // namespace amortix2::testing

int main(int argc, char** argv) {
  const std::uint64_t count = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 100000;
  const std::uint64_t first = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1;
  // Some members write files, under names as random as everything else.
  namespace fs = std::filesystem;
  const fs::path folder = fs::temp_directory_path() / ("random_calls_" + std::to_string(first));
  fs::create_directory(folder);
  fs::current_path(folder);
  amortix2::testing::RandomCalls calls;
  for (std::uint64_t number = first; number < first + count; ++number) calls.Run(number);
  fs::current_path("/");
  fs::remove_all(folder);
  return calls.Summary();
}
