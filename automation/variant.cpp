#include "amortix2/automation/variant.h"

#include <algorithm>
#include <memory>
#include <string>

#include "amortix2/automation/array.h"
#include "amortix2/automation/error.h"

namespace amortix2 {
namespace {

/// One level of nested arrays in a copy or a comparison, which go down the stack level by level.
class NestingLevel {
 public:
  NestingLevel() {
    if (depth == kDeepestNesting) Raise(ErrorNumber::OutOfMemory);
    ++depth;
  }
  ~NestingLevel() { --depth; }
  NestingLevel(const NestingLevel&) = delete;
  NestingLevel& operator=(const NestingLevel&) = delete;

 private:
  static thread_local int depth;
};

thread_local int NestingLevel::depth = 0;

}  // namespace

/// An owned array, and a link for the time of its release.
struct Variant::ArrayNode {
  explicit ArrayNode(Array owned) noexcept : array(std::move(owned)) {}

  Array array;
  ArrayNode* next = nullptr;

  static void Release(ArrayNode* node) noexcept;
};

// The destructor of an array releases the arrays in its cells. They are put into a list instead, which the
// outermost release works off, so that the depth of nesting costs no stack.
void Variant::ArrayNode::Release(ArrayNode* node) noexcept {
  static thread_local ArrayNode* waiting = nullptr;
  static thread_local bool isReleasing = false;
  node->next = std::exchange(waiting, node);
  if (isReleasing) return;
  isReleasing = true;
  while (waiting != nullptr) {
    const std::unique_ptr<ArrayNode> released(std::exchange(waiting, waiting->next));
  }
  isReleasing = false;
}

void Variant::RaiseTypeMismatch() { Raise(ErrorNumber::TypeMismatch); }

Variant::Variant(Array array)
    : words_(OnHeap(VariantType::Array, std::make_unique<ArrayNode>(std::move(array)).release())) {}

void Variant::StoreText(std::string_view text) {
  if (text.size() <= kInlineText) {
    words_.head = Head(VariantType::String, static_cast<std::uint8_t>(text.size()));
    std::copy_n(text.data(), text.size(), reinterpret_cast<char*>(&words_) + kInlineTextAt);
  } else {
    words_ = OnHeap(VariantType::String, std::make_unique<std::string>(text).release());
  }
}

Variant::Words Variant::CopyHeap(const Variant& other) {
  if (other.Type() == VariantType::String) {
    return OnHeap(VariantType::String, std::make_unique<std::string>(other.GetString()).release());
  }
  const NestingLevel level;
  return OnHeap(VariantType::Array, std::make_unique<ArrayNode>(other.GetArray()).release());
}

void Variant::ReleaseHeap(Words words) noexcept {
  if (words.Type() == VariantType::String) {
    delete FromPayload<std::string*>(words);
  } else {
    ArrayNode::Release(FromPayload<ArrayNode*>(words));
  }
}

std::string_view Variant::GetString() const {
  if (Type() != VariantType::String) RaiseTypeMismatch();
  if (words_.OwnHeap()) return *FromPayload<std::string*>(words_);
  return {reinterpret_cast<const char*>(&words_) + kInlineTextAt, words_.TextLength()};
}

const Array& Variant::GetArray() const { return Load<ArrayNode*>(VariantType::Array)->array; }

Array& Variant::GetArray() { return Load<ArrayNode*>(VariantType::Array)->array; }

bool operator==(const Variant& a, const Variant& b) {
  if (a.Type() != b.Type()) return false;
  switch (a.Type()) {
    case VariantType::Empty:
    case VariantType::Null:
    case VariantType::Missing:
      return true;
    case VariantType::String:
      return a.GetString() == b.GetString();
    case VariantType::Array: {
      const NestingLevel level;
      return a.GetArray() == b.GetArray();
    }
    default:
      return a.words_ == b.words_;
  }
}

}  // namespace amortix2
