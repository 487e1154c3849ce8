#pragma once

// Variant: one automation value of any type, the currency of every public call. Sixteen bytes: a tag, and
// either a number, a text of up to 14 bytes held inside, or an owned pointer to a longer text or an array.
// Copies are deep (a copied array is another array), moves are cheap and leave Empty behind. Text is UTF-8.
// Not safe for two threads to write at once; any number may read.

#include <cstdint>
#include <cstring>
#include <string_view>
#include <utility>

#include "automation/date.h"

namespace amortix2 {

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
  Variant() noexcept : type_(VariantType::Empty) {}
  // Implicit on purpose: a result is written as `vResPayment = loan.payment`.
  Variant(NullValue) noexcept : type_(VariantType::Null) {}
  Variant(MissingValue) noexcept : type_(VariantType::Missing) {}
  Variant(bool value) noexcept : type_(VariantType::Boolean) { Store(value); }
  Variant(std::uint8_t value) noexcept : type_(VariantType::Byte) { Store(value); }
  Variant(std::int16_t value) noexcept : type_(VariantType::Integer) { Store(value); }
  Variant(std::int32_t value) noexcept : type_(VariantType::Long) { Store(value); }
  Variant(double value) noexcept : type_(VariantType::Double) { Store(value); }
  Variant(Currency value) noexcept : type_(VariantType::Currency) { Store(value); }
  Variant(Date value) noexcept : type_(VariantType::Date) { Store(value); }
  Variant(std::string_view text) : type_(VariantType::String) { StoreText(text); }
  Variant(const char* text) : Variant(std::string_view(text)) {}
  Variant(const void*) = delete;  // or a pointer would silently be a Boolean
  Variant(Array array);

  Variant(const Variant& other) : type_(other.type_) { CopyFrom(other); }
  Variant(Variant&& other) noexcept : type_(other.type_) { TakeFrom(other); }
  Variant& operator=(const Variant& other) {
    if (this != &other) *this = Variant(other);
    return *this;
  }
  Variant& operator=(Variant&& other) noexcept {
    if (this != &other) {
      // Released only at the end: `other` may be a cell of the array that is replaced.
      const Variant replaced(std::move(*this));
      type_ = other.type_;
      TakeFrom(other);
    }
    return *this;
  }
  ~Variant() { Release(); }

  VariantType Type() const noexcept { return type_; }

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

  static constexpr std::size_t kInlineText = 14;
  static constexpr std::size_t kPayload = 6;  // offset in storage_: eight bytes into the object
  static constexpr std::uint8_t kOnHeap = 0xFF;

  template <class T>
  void Store(T value) noexcept {
    static_assert(sizeof(T) <= 8);
    std::memcpy(storage_ + kPayload, &value, sizeof value);
  }
  template <class T>
  T Payload() const noexcept {
    T value;
    std::memcpy(&value, storage_ + kPayload, sizeof value);
    return value;
  }
  template <class T>
  T Load(VariantType type) const {
    if (type_ != type) RaiseTypeMismatch();
    return Payload<T>();
  }
  [[noreturn]] static void RaiseTypeMismatch();

  bool OwnsHeap() const noexcept { return textLength_ == kOnHeap; }
  void StoreText(std::string_view text);
  void CopyFrom(const Variant& other) {
    if (other.OwnsHeap()) {
      CopyHeap(other);
    } else {
      TakeBytes(other);
    }
  }
  void TakeFrom(Variant& other) noexcept {
    TakeBytes(other);
    other.type_ = VariantType::Empty;
    other.textLength_ = 0;
  }
  void TakeBytes(const Variant& other) noexcept {
    textLength_ = other.textLength_;
    std::memcpy(storage_, other.storage_, sizeof storage_);
  }
  void CopyHeap(const Variant& other);
  void Release() noexcept {
    if (OwnsHeap()) ReleaseHeap();
  }
  void ReleaseHeap() noexcept;

  alignas(8) VariantType type_;
  std::uint8_t textLength_ = 0;  // bytes of an inline text; kOnHeap when the payload is an owned pointer
  unsigned char storage_[14] = {};
};

static_assert(sizeof(Variant) == 16);

/// Exchanges two variants.
inline void SwapValues(Variant& a, Variant& b) noexcept { std::swap(a, b); }

}  // namespace amortix2
