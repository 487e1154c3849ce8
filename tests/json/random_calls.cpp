// Calls every member of every class with values that nobody planned for, as many times as the argument says:
// each call must end in a result or an AutomationError, soon, and no result may be infinite, not a number, -0
// or a date outside the calendar.
//
//   random_calls COUNT [SEED]
//
// AMORTIX2_ALL makes the count a million.

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <utility>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/error.h"
#include "amortix2/automation/page.h"
#include "amortix2/component/invocation.h"
#include "amortix2/json/typed_value.h"
#include "json/random_values.h"
#include "support.h"

namespace amortix2::testing {
namespace {

using std::chrono::steady_clock;
constexpr std::chrono::seconds kLongestCall{100};  // the largest grid of payments, under sanitizers

class SilentPage final : public ScriptingContext, private PageResponse {
 public:
  PageResponse& Response() override { return *this; }

 private:
  void BinaryWrite(std::span<const std::uint8_t>) override {}
};

/// Every call is made of its number alone, so that one that shows a fault can be repeated.
class RandomCalls {
 public:
  void Run(std::uint64_t number) {
    random_ = RandomValues(number);
    const auto classes = Classes();
    const ClassInfo& type = *classes[static_cast<std::size_t>(random_.Pick(std::ssize(classes)))];
    Object object(type, kClock);
    // Some calls meet an object that others have changed.
    for (std::int64_t calls = random_.Pick(4) == 0 ? 3 : 1; calls > 0; --calls) {
      const MemberInfo& member =
          type.members[static_cast<std::size_t>(random_.Pick(std::ssize(type.members)))];
      Invocation call(member);
      for (Value& argument : call.Arguments()) Fill(argument.Type(), argument.Get());
      const std::string fault = Outcome(call, object);
      if (!fault.empty()) Report(number, type, call, fault);
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
  /// What is wrong with the outcome; empty when all is well.
  std::string Outcome(Invocation& call, Object& object) {
    const auto start = steady_clock::now();
    try {
      call.Call(object);
      ++outcomes_[ErrorNumber{0}];
    } catch (const AutomationError& error) {
      ++outcomes_[error.Number()];
    } catch (const std::exception& other) {
      return std::string("raised ") + other.what();
    }
    const auto took = steady_clock::now() - start;
    if (took > slowest_) {
      slowest_ = took;
      slowestName_ = call.Member().name;
    }
    if (took > kLongestCall)
      return "took " + std::to_string(std::chrono::duration<double>(took).count()) + " s";
    bool sound = true;
    for (const Value& argument : std::as_const(call).Arguments()) {
      ForEachSingle(argument.Type(), argument.Get(), [&](const TypeInfo& type, const void* value) {
        if (type.read) sound = sound && WithVariant(type, value, IsSound);
      });
    }
    return sound ? "" : "gave an unsound result";
  }

  void Report(std::uint64_t number, const ClassInfo& type, const Invocation& call, const std::string& fault) {
    ++faults_;
    std::string text = "call " + std::to_string(number) + " " + fault + ": " + std::string(type.name) + ".";
    text.append(call.Member().name);
    for (std::size_t i = 0; i < call.Arguments().size(); ++i) {
      text.append(" ").append(call.Member().parameters[i].name).append("=");
      json::AppendArgument(text, call.Arguments()[i], json::Form::WithTypes);
    }
    std::puts(text.substr(0, 4000).c_str());
    std::fflush(stdout);
  }

  /// An array of records gets some records first, unless it is a list that starts at 0.
  void Fill(const TypeInfo& type, void* value) {
    if (type.record == nullptr) return FillSingle(type, value);
    if (type.kind == TypeKind::Record) return FillRecord(*type.record, value);
    const auto lower = static_cast<std::int32_t>(random_.Pick(3));
    try {
      type.resize(value, {lower, lower + static_cast<std::int32_t>(random_.Pick(4)) - 1});
    } catch (const AutomationError&) {
    }
    ForEachRecord(type, value, [&](std::int64_t, void* record) { FillRecord(*type.record, record); });
  }

  void FillRecord(const RecordInfo& info, void* record) {
    ForEachField(info, record, [&](const FieldInfo& field, void* place) { Fill(*field.type, place); });
  }

  void FillSingle(const TypeInfo& type, void* value) {
    static constexpr std::array<std::int32_t, 10> kCodes{1, 2, 3, 4, 5, 7, 101, 102, 103, 104};
    if (type.kind == TypeKind::ScriptingContext) {
      if (random_.Pick(4) > 0) *static_cast<std::shared_ptr<ScriptingContext>*>(value) = page_;
      return;
    }
    try {
      if (type.kind == TypeKind::Enumeration && random_.Pick(8) > 0) {
        type.write(value, random_.OneOf(kCodes));
      } else if (type.kind == TypeKind::Double && random_.Pick(3) > 0) {
        type.write(value, random_.Number());
      } else {
        type.write(value, random_.Any());
      }
    } catch (const AutomationError&) {  // no value of this type: it keeps its zero
    }
  }

  /// What looks like a schedule's date, which begins with its month, is one.
  static bool IsSoundText(std::string_view text) {
    const auto isDigit = [&](std::size_t at) { return text[at] >= '0' && text[at] <= '9'; };
    const bool looksLikeADate =
        text.size() == sizeof(DateText) && isDigit(0) && isDigit(1) && text[2] == '-' && text[5] == '-';
    return !looksLikeADate || ParseDate(text).has_value();
  }

  static bool IsSound(const Variant& value) {
    if (value.Type() == VariantType::Double) {
      const double number = value.GetDouble();
      return std::isfinite(number) && !(number == 0 && std::signbit(number));
    }
    if (value.Type() == VariantType::String) return IsSoundText(value.GetString());
    if (value.Type() == VariantType::Date) return value.GetDate() >= kFirstDay && value.GetDate() <= kLastDay;
    if (value.Type() != VariantType::Array) return true;
    return std::ranges::all_of(value.GetArray().Cells(), IsSound);
  }

  RandomValues random_{0};
  std::shared_ptr<ScriptingContext> page_ = std::make_shared<SilentPage>();
  std::map<ErrorNumber, long> outcomes_;
  long faults_ = 0;
  steady_clock::duration slowest_{};
  std::string slowestName_;
};

}  // namespace
}  // namespace amortix2::testing

int main(int argc, char** argv) {
  const int sample = argc > 1 ? std::atoi(argv[1]) : 100'000;
  const auto count = static_cast<std::uint64_t>(amortix2::Cases(sample, 1'000'000));
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
