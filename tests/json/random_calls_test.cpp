// Calls of every member of every class with values that nobody planned for: each must end in a result or an
// AutomationError, and no result may be infinite, not a number, -0 or a date outside the calendar.

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <utility>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/page.h"
#include "amortix2/component/invocation.h"
#include "amortix2/json/typed_value.h"
#include "json/random_values.h"
#include "property.h"
#include "support.h"

namespace amortix2 {
namespace {

class SilentPage final : public ScriptingContext, private PageResponse {
 public:
  PageResponse& Response() override { return *this; }

 private:
  void BinaryWrite(std::span<const std::uint8_t>) override {}
};

class RandomArguments {
 public:
  explicit RandomArguments(Random& random) : random_(random), values_(random) {}

  /// An array of records gets some records first, unless it is a list that starts at 0.
  void Fill(const TypeInfo& type, void* value) {
    if (type.record == nullptr) return FillSingle(type, value);
    if (type.kind == TypeKind::Record) return FillRecord(*type.record, value);
    const auto lower = static_cast<std::int32_t>(random_.Below(3));
    const auto upper = lower + static_cast<std::int32_t>(random_.Below(4)) - 1;
    ErrorOf([&] { type.resize(value, {lower, upper}); });
    ForEachRecord(type, value, [&](std::int64_t, void* record) { FillRecord(*type.record, record); });
  }

 private:
  void FillRecord(const RecordInfo& info, void* record) {
    ForEachField(info, record, [&](const FieldInfo& field, void* place) { Fill(*field.type, place); });
  }

  /// What has no value of the type keeps its zero.
  void FillSingle(const TypeInfo& type, void* value) {
    static constexpr std::int32_t kCodes[] = {1, 2, 3, 4, 5, 7, 101, 102, 103, 104};
    if (type.kind == TypeKind::ScriptingContext) {
      if (!random_.OneIn(4))
        *static_cast<std::shared_ptr<ScriptingContext>*>(value) = std::make_shared<SilentPage>();
      return;
    }
    const bool isCode = type.kind == TypeKind::Enumeration && !random_.OneIn(8);
    const bool isNumber = type.kind == TypeKind::Double && !random_.OneIn(3);
    const Variant any = isCode     ? Variant(random_.OneOf(kCodes))
                        : isNumber ? Variant(values_.Number())
                                   : values_.Any();
    ErrorOf([&] { type.write(value, any); });
  }

  Random& random_;
  RandomValues values_;
};

/// What looks like a schedule's date, which begins with its month, is one.
bool IsSoundText(std::string_view text) {
  const auto isDigit = [&](std::size_t at) { return text[at] >= '0' && text[at] <= '9'; };
  const bool looksLikeADate =
      text.size() == sizeof(DateText) && isDigit(0) && isDigit(1) && text[2] == '-' && text[5] == '-';
  return !looksLikeADate || ParseDate(text).has_value();
}

bool IsSound(const Variant& value) {
  if (value.Type() == VariantType::Double) {
    const double number = value.GetDouble();
    return std::isfinite(number) && !(number == 0 && std::signbit(number));
  }
  if (value.Type() == VariantType::String) return IsSoundText(value.GetString());
  if (value.Type() == VariantType::Date) return value.GetDate() >= kFirstDay && value.GetDate() <= kLastDay;
  if (value.Type() != VariantType::Array) return true;
  return std::ranges::all_of(value.GetArray().Cells(), IsSound);
}

std::string Shown(const Invocation& call) {
  std::string text(call.Member().name);
  for (std::size_t i = 0; i < call.Arguments().size(); ++i) {
    text.append(" ").append(call.Member().parameters[i].name).append("=");
    json::AppendArgument(text, call.Arguments()[i], json::Form::WithTypes);
  }
  return text.substr(0, 4000);
}

TEST(RandomCalls, EndInSoundResultsOrErrors) {
  // Some members write files, under names as random as everything else.
  const auto folder = std::filesystem::temp_directory_path() / ("random_calls_" + std::to_string(getpid()));
  std::filesystem::create_directory(folder);
  std::filesystem::current_path(folder);
  ForAll(Cases(10000, 1000000), [](Random& random) {
    const ClassInfo& type = *random.OneOf(Classes());
    Object object(type, kClock);
    // Some calls meet an object that others have changed.
    for (int calls = random.OneIn(4) ? 3 : 1; calls > 0; --calls) {
      const MemberInfo& member = random.OneOf(type.members);
      Invocation call(member);
      for (Value& argument : call.Arguments()) RandomArguments(random).Fill(argument.Type(), argument.Get());
      ErrorOf([&] { call.Call(object); });
      bool isSound = true;
      for (const Value& argument : std::as_const(call).Arguments()) {
        ForEachSingle(argument.Type(), argument.Get(), [&](const TypeInfo& single, const void* value) {
          if (single.read) isSound = isSound && WithVariant(single, value, IsSound);
        });
      }
      EXPECT_TRUE(isSound) << Shown(call);
    }
  });
  std::filesystem::current_path("/");
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace amortix2
