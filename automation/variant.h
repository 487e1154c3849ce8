#pragma once

// Variant: one automation value of any type, the currency of every public call. Sixteen bytes: a tag, and
// either a number, a text of up to 14 bytes held inside, or an owned pointer to a longer text or an array.
// Copies are deep (a copied array is another array), moves are cheap and leave Empty behind. Text is UTF-8.
// Not safe for two threads to write at once; any number may read.

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <utility>

#include "amortix2/automation/checked.h"
#include "amortix2/automation/date.h"
#include "amortix2/automation/public.h"

namespace AMORTIX2_PUBLIC amortix2 {

class Array;

enum class VariantType : std::uint8_t {
  Empty,
  Null,
  Missing,  ///< an optional argument that was left out
  Boolean,
  Byte,
  Integer,  ///< 16 bits
  Long,     ///< 32 bits
  Double,
  Currency,
  Date,
  String,
  Array,
};

/// A fixed-point amount of four decimals: `scaled` is the amount times 10000.
struct Currency {
  std::int64_t scaled = 0;

  friend constexpr bool operator==(Currency, Currency) = default;
};

struct NullValue {};
struct MissingValue {};
inline constexpr NullValue kNull{};
inline constexpr MissingValue kMissing{};

inline constexpr int kDeepestNesting = 1000;

class Variant {
 public:
  Variant() noexcept = default;
  // Implicit on purpose: a result is written as `vResPayment = loan.payment`.
  Variant(NullValue) noexcept : words_{Head(VariantType::Null), 0} {}
  Variant(MissingValue) noexcept : words_{Head(VariantType::Missing), 0} {}
  Variant(bool value) noexcept : words_{Head(VariantType::Boolean), Payload(value)} {}
  Variant(std::uint8_t value) noexcept : words_{Head(VariantType::Byte), Payload(value)} {}
  Variant(std::int16_t value) noexcept : words_{Head(VariantType::Integer), Payload(value)} {}
  Variant(std::int32_t value) noexcept : words_{Head(VariantType::Long), Payload(value)} {}
  Variant(double value) noexcept  // -0 becomes 0
      : words_{Head(VariantType::Double), Payload(WithoutMinusZero(value))} {}
  Variant(Currency value) noexcept : words_{Head(VariantType::Currency), Payload(value)} {}
  Variant(Date value) noexcept : words_{Head(VariantType::Date), Payload(value)} {}
  Variant(std::string_view text) : words_(TextWords(text)) {}
  Variant(const char* text) : Variant(std::string_view(text)) {}
  Variant(const DateText& text) noexcept {
    std::uint64_t firstEight = 0;
    std::uint64_t lastTwo = 0;
    std::memcpy(&firstEight, text.data(), 8);
    std::memcpy(&lastTwo, text.data() + 8, 2);
    words_ = {Head(VariantType::String, sizeof text) | firstEight << 16, firstEight >> 48 | lastTwo << 16};
  }
  /// A text that outlives the variant and all copies of it, as a literal of the program does; it is not
  /// copied.
  static Variant OfLiteral(std::string_view text) noexcept {
    Variant variant;
    variant.words_ = {Head(VariantType::String, kLiteral) | std::uint64_t{text.size()} << 16,
                      Payload(text.data())};
    return variant;
  }
  Variant(const void*) = delete;  // or a pointer would silently be a Boolean
  Variant(Array array);

  Variant(const Variant& other) : words_(other.words_.OwnHeap() ? CopyHeap(other) : other.words_) {}
  Variant(Variant&& other) noexcept : words_(std::exchange(other.words_, Words{})) {}
  Variant& operator=(const Variant& other) {
    if (this != &other) *this = Variant(other);
    return *this;
  }
  Variant& operator=(Variant&& other) noexcept {
    // Released only at the end: `other` may be a cell of the array that is replaced.
    const Words replaced = std::exchange(words_, std::exchange(other.words_, Words{}));
    if (replaced.OwnHeap()) ReleaseHeap(replaced);
    return *this;
  }
  ~Variant() {
    if (words_.OwnHeap()) ReleaseHeap(words_);
  }

  VariantType Type() const noexcept { return words_.Type(); }

  // The value as it is held, without conversion (automation/conversion.h converts). Each raises TypeMismatch
  // when the variant is of another type.
  bool GetBoolean() const { return Load<bool>(VariantType::Boolean); }
  std::uint8_t GetByte() const { return Load<std::uint8_t>(VariantType::Byte); }
  std::int16_t GetInteger() const { return Load<std::int16_t>(VariantType::Integer); }
  std::int32_t GetLong() const { return Load<std::int32_t>(VariantType::Long); }
  double GetDouble() const { return Load<double>(VariantType::Double); }
  Currency GetCurrency() const { return Load<Currency>(VariantType::Currency); }
  Date GetDate() const { return Load<Date>(VariantType::Date); }
  std::string_view GetString() const;
  const Array& GetArray() const;
  Array& GetArray();

  /// The same type and the same value (arrays: bounds and cells; doubles by their bits).
  friend bool operator==(const Variant& a, const Variant& b);

 private:
  struct ArrayNode;
  struct TextBlock;

  static constexpr std::size_t kInlineTextAt = 2;
  static constexpr std::size_t kInlineText = 14;
  static constexpr std::uint8_t kOnHeap = 0xFF;
  static constexpr std::uint8_t kLiteral = 0xFE;

  // Byte 0 is the type; byte 1 the length of a text held inside, which follows it, or kOnHeap, or kLiteral
  // with the length behind it; bytes 8 to 15 are a number or a pointer, bytes that it leaves unused are zero.
  // Two words that pass through registers: kept as bytes, a value would be stored in pieces and read back as
  // a whole, which stalls the processor.
  struct Words {
    std::uint64_t head = 0;
    std::uint64_t payload = 0;

    VariantType Type() const noexcept { return static_cast<VariantType>(head & 0xFF); }
    std::uint8_t TextLength() const noexcept { return static_cast<std::uint8_t>(head >> 8 & 0xFF); }
    bool OwnHeap() const noexcept { return TextLength() == kOnHeap; }
    friend bool operator==(const Words&, const Words&) = default;
  };
  static_assert(std::endian::native == std::endian::little);

  static constexpr std::uint64_t Head(VariantType type, std::uint8_t textLength = 0) noexcept {
    return static_cast<std::uint64_t>(type) | std::uint64_t{textLength} << 8;
  }
  template <class T>
  static std::uint64_t Payload(T value) noexcept {
    std::uint64_t word = 0;
    static_assert(sizeof value <= sizeof word);
    std::memcpy(&word, &value, sizeof value);
    return word;
  }
  template <class T>
  static T FromPayload(const Words& words) noexcept {
    std::array<unsigned char, sizeof(T)> bytes;  // NOLINT(bugprone-sizeof-expression): a pointer too
    std::memcpy(bytes.data(), &words.payload, sizeof bytes);
    return std::bit_cast<T>(bytes);
  }
  template <class T>
  T Load(VariantType type) const {
    if (Type() != type) RaiseTypeMismatch();
    return FromPayload<T>(words_);
  }
  [[noreturn]] static void RaiseTypeMismatch();

  static Words OnHeap(VariantType type, const void* pointer) noexcept {
    return {Head(type, kOnHeap), Payload(pointer)};
  }
  static Words TextWords(std::string_view text);
  static Words CopyHeap(const Variant& other);
  static void ReleaseHeap(Words words) noexcept;

  Words words_;
};

static_assert(sizeof(Variant) == 16);

/// Exchanges two variants.
inline void SwapValues(Variant& a, Variant& b) noexcept { std::swap(a, b); }

}  // namespace amortix2
