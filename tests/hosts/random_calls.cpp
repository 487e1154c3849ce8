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

#include "automation/error.h"
#include "automation/page.h"
#include "component/description.h"
#include "hosts/garbage.h"

namespace amortix2::testing {
namespace {

using std::chrono::steady_clock;
constexpr std::chrono::seconds kLongestCall{30};

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

class RandomCalls {
 public:
  explicit RandomCalls(std::uint64_t seed) : garbage_(seed) {}

  void Call() {
    const auto classes = Classes();
    const ClassInfo& type = *classes[static_cast<std::size_t>(garbage_.Pick(std::ssize(classes)))];
    // An object serves several calls, so that settings of one meet the next.
    if (!object_ || &object_->Class() != &type || garbage_.Pick(8) == 0) object_.emplace(type, clock_);
    Invoke(type.members[static_cast<std::size_t>(garbage_.Pick(std::ssize(type.members)))]);
  }

  int Report() const {
    for (const auto& [number, count] : outcomes_) {
      std::printf("%8ld  %s\n", count, number == ErrorNumber{0} ? "result" : ErrorName(number).data());
    }
    std::printf("slowest call: %.3f s, %s\n", std::chrono::duration<double>(slowest_).count(),
                slowestName_.c_str());
    if (slowest_ > kLongestCall) std::printf("too slow\n");
    return faults_ == 0 && slowest_ <= kLongestCall ? 0 : 1;
  }

 private:
  void Invoke(const MemberInfo& member) {
    std::vector<Value> values;
    std::vector<void*> places;
    for (const ParameterInfo& parameter : member.parameters) {
      values.emplace_back(*parameter.type);
      Fill(*parameter.type, values.back().Get());
    }
    for (Value& value : values) places.push_back(value.Get());
    std::optional<Value> result;
    if (member.result) result.emplace(*member.result);
    const auto start = steady_clock::now();
    try {
      member.call(object_->Get(), places, result ? result->Get() : nullptr);
      ++outcomes_[ErrorNumber{0}];
    } catch (const AutomationError& error) {
      ++outcomes_[error.Number()];
    } catch (const std::exception& other) {
      Fault(member, other.what());
    }
    if (const auto took = steady_clock::now() - start; took > slowest_) {
      slowest_ = took;
      slowestName_ = member.name;
    }
    for (const Value& value : values) {
      if (!IsSound(value.Type(), value.Get())) Fault(member, "a result is infinite or not a number");
    }
  }

  void Fault(const MemberInfo& member, const char* what) {
    ++faults_;
    std::printf("%s.%s: %s\n", object_->Class().name.data(), std::string(member.name).c_str(), what);
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

  Garbage garbage_;
  SomeDay clock_;
  std::shared_ptr<Page> page_ = std::make_shared<Page>();
  std::optional<Object> object_;
  std::map<ErrorNumber, long> outcomes_;
  long faults_ = 0;
  steady_clock::duration slowest_{};
  std::string slowestName_;
};

}  // namespace
}  // namespace amortix2::testing

int main(int argc, char** argv) {
  const long count = argc > 1 ? std::atol(argv[1]) : 100000;
  const auto seed = static_cast<std::uint64_t>(argc > 2 ? std::atol(argv[2]) : 1);
  // Some members write files, under names as random as everything else.
  namespace fs = std::filesystem;
  const fs::path folder = fs::temp_directory_path() / ("random_calls_" + std::to_string(seed));
  fs::create_directory(folder);
  fs::current_path(folder);
  amortix2::testing::RandomCalls calls(seed);
  for (long i = 0; i < count; ++i) calls.Call();
  fs::current_path("/");
  fs::remove_all(folder);
  return calls.Report();
}
