#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <vector>

#include "amortix2/automation/array.h"
#include "amortix2/automation/variant.h"
#include "support.h"

namespace amortix2 {
namespace {

constexpr std::string_view kLong = "a text that is too long to be held inside a variant";

std::vector<Variant> OneOfEach() {
  Array table(Bounds{1, 2}, Bounds{0, 1});
  table.At(2, 1) = kLong;
  return {Variant(),
          kNull,
          kMissing,
          true,
          std::uint8_t{7},
          std::int16_t{-7},
          70000,
          0.5,
          Currency{-1},
          Date{36922},
          "",
          "fourteen bytes",
          "fifteen bytes..",
          kLong,
          std::move(table),
          Array(Bounds{})};
}

TEST(Variants, CopyMoveAndAssignKeepTheValue) {
  const std::vector<Variant> originals = OneOfEach();
  for (const Variant& from : originals) {
    for (const Variant& onto : originals) {
      EXPECT_EQ(from == onto, &from == &onto);
      Variant target = onto;
      target = from;
      EXPECT_EQ(target, from);
      Variant source = from;
      target = onto;
      target = std::move(source);
      EXPECT_EQ(target, from);
      EXPECT_EQ(source.Type(), VariantType::Empty);  // NOLINT(bugprone-use-after-move): that is the promise
      source = target;
      EXPECT_EQ(source, from);
      Variant other = onto;
      SwapValues(target, other);
      EXPECT_EQ(target, onto);
      EXPECT_EQ(other, from);
      SwapValues(other, other);
      EXPECT_EQ(other, from);
    }
  }
}

TEST(Variants, GiveOnlyWhatTheyHold) {
  for (const Variant& value : OneOfEach()) {
    const auto expected = [&](VariantType type) {
      return value.Type() == type ? std::nullopt : std::optional(ErrorNumber::TypeMismatch);
    };
    EXPECT_EQ(ErrorOf([&] { value.GetBoolean(); }), expected(VariantType::Boolean));
    EXPECT_EQ(ErrorOf([&] { value.GetLong(); }), expected(VariantType::Long));
    EXPECT_EQ(ErrorOf([&] { value.GetDouble(); }), expected(VariantType::Double));
    EXPECT_EQ(ErrorOf([&] { value.GetDate(); }), expected(VariantType::Date));
    EXPECT_EQ(ErrorOf([&] { value.GetString(); }), expected(VariantType::String));
    EXPECT_EQ(ErrorOf([&] { value.GetArray(); }), expected(VariantType::Array));
  }
}

// A value may be replaced by what it contains.
TEST(Variants, AnArrayGivesWayToItsOwnCell) {
  Array inner(Bounds{3, 4});
  inner.At(4) = kLong;
  Array outer(Bounds{0, 0});
  outer.At(0) = Variant(inner);
  const Variant nested(outer);

  Variant copied = nested;  // another array: what happens to it must not show in the one it was copied from
  copied = copied.GetArray().At(0);
  EXPECT_EQ(copied.GetArray(), inner);
  Variant moved = nested;
  moved = std::move(moved.GetArray().At(0));
  EXPECT_EQ(moved.GetArray(), inner);
  Array array = outer;
  array = array.At(0).GetArray();
  EXPECT_EQ(array, inner);
  outer = std::move(outer.At(0).GetArray());
  EXPECT_EQ(outer, inner);
  outer.At(3) = Variant(outer);
  EXPECT_EQ(outer.At(3).GetArray(), inner);
}

TEST(Variants, DeepNestingCostsNoStack) {
  Variant deep;
  for (int level = 0; level < 1'000'000; ++level) {
    Array around(Bounds{0, 1});
    around.At(0) = std::move(deep);
    around.At(1) = Array(Bounds{0, 0});
    deep = std::move(around);
    if (level + 1 == kDeepestNesting) {
      EXPECT_EQ(ErrorOf([&] { EXPECT_EQ(Variant(deep), deep); }), ErrorNumber::OutOfMemory);
      EXPECT_EQ(ErrorOf([&] { EXPECT_EQ(Variant(deep.GetArray().At(0)), deep.GetArray().At(0)); }),
                std::nullopt);
    }
  }
  EXPECT_EQ(ErrorOf([&] { return Variant(deep); }), ErrorNumber::OutOfMemory);
}

TEST(Arrays, EveryCellHasItsOwnPlaceWithinTheBounds) {
  Array table(Bounds{-1, 2}, Bounds{5, 7});
  for (std::int32_t row = -1; row <= 2; ++row) {
    for (std::int32_t column = 5; column <= 7; ++column) table.At(row, column) = row * 10 + column;
  }
  std::vector<std::int32_t> inOrder;
  for (const Variant& cell : table.Cells()) inOrder.push_back(cell.GetLong());
  EXPECT_EQ(inOrder, (std::vector<std::int32_t>{-5, -4, -3, 5, 6, 7, 15, 16, 17, 25, 26, 27}));
  EXPECT_EQ(table.Dimension(1), (Bounds{-1, 2}));
  EXPECT_EQ(table.Dimension(2), (Bounds{5, 7}));
}

TEST(Arrays, NothingIsReachedOutsideTheBounds) {
  Array row(Bounds{1, 3});
  Array emptied = row;
  Array table(Bounds{0, 1}, Bounds{0, 1});
  Array edge(Bounds{INT32_MAX, INT32_MAX});
  RecordArray<std::array<double, 3>> records(1, 2);
  const Array taken = std::move(emptied);
  // clang-format off
  const std::initializer_list<std::function<void()>> accesses{
      [&] { row.At(0); }, [&] { row.At(4); }, [&] { row.At(INT64_MIN); }, [&] { row.At(INT64_MAX); },
      [&] { row.At(1, 1); }, [&] { row.Dimension(2); }, [&] { row.Dimension(0); }, [&] { row.Resize(-1); },
      [&] { table.At(0); }, [&] { table.At(0, 2); }, [&] { table.At(-1, 1); }, [&] { table.Resize(5); },
      [&] { edge.At(INT32_MIN); }, [&] { records.At(0); }, [&] { records.At(3); },
      [&] { Array(Bounds{0, -2}); }, [&] { Array(Bounds{0, 1}, Bounds{5, 3}); }, [&] { RecordArray<int>(3, 1); },
      [&] { emptied.At(1); }};  // NOLINT(bugprone-use-after-move): has to be safe
  // clang-format on
  int index = 0;
  for (const auto& access : accesses) EXPECT_EQ(ErrorOf(access), ErrorNumber::SubscriptOutOfRange) << index++;
}

TEST(Arrays, TooManyCellsAreRefusedBeforeAnyAreMade) {
  EXPECT_EQ(ErrorOf([] { Array(Bounds{1, 1 << 24}); }), std::nullopt);
  EXPECT_EQ(ErrorOf([] { Array(Bounds{0, 1 << 24}); }), ErrorNumber::OutOfMemory);
  EXPECT_EQ(ErrorOf([] {
              Array(Bounds{INT32_MIN, INT32_MAX}, Bounds{INT32_MIN, INT32_MAX});
            }),
            ErrorNumber::OutOfMemory);
  EXPECT_EQ(ErrorOf([] { RecordArray<char>(0, 1 << 24); }), ErrorNumber::OutOfMemory);
  EXPECT_EQ(RecordArray<char>(INT32_MAX - 2, INT32_MAX).Upper(), INT32_MAX);
}

TEST(Arrays, ResizingKeepsTheCellsThatRemain) {
  Array array(Bounds{2, 3});
  array.At(3) = kLong;
  array.Resize(200);
  EXPECT_EQ(array.At(3), Variant(kLong));
  EXPECT_EQ(array.At(200), Variant());
  EXPECT_EQ(ErrorOf([&] { array.Resize(INT32_MAX); }), ErrorNumber::OutOfMemory);
  EXPECT_EQ(array.Dimension(1), (Bounds{2, 200}));
  array.Resize(1);
  EXPECT_EQ(array.Dimension(1).Count(), 0);
}

}  // namespace
}  // namespace amortix2
