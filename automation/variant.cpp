#include "amortix2/automation/variant.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>

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

/// A text too long to lie inside: its length and, behind it in the same block, its characters.
struct Variant::TextBlock {
  std::size_t size;

  char* Characters() noexcept { return reinterpret_cast<char*>(this + 1); }

  static TextBlock* Make(std::string_view text) {
    auto* const block = new (::operator new(sizeof(TextBlock) + text.size())) TextBlock{text.size()};
    std::copy_n(text.data(), text.size(), block->Characters());
    return block;
  }
};

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

Variant::Words Variant::TextWords(std::string_view text) {
  if (text.size() > kInlineText) return OnHeap(VariantType::String, TextBlock::Make(text));
  Words words{Head(VariantType::String, static_cast<std::uint8_t>(text.size()))};
  std::copy_n(text.data(), text.size(), reinterpret_cast<char*>(&words) + kInlineTextAt);
  return words;
}

Variant::Words Variant::CopyHeap(const Variant& other) {
  if (other.Type() == VariantType::String) {
    return OnHeap(VariantType::String, TextBlock::Make(other.GetString()));
  }
  const NestingLevel level;
  return OnHeap(VariantType::Array, std::make_unique<ArrayNode>(other.GetArray()).release());
}

void Variant::ReleaseHeap(Words words) noexcept {
  if (words.Type() == VariantType::String) {
    ::operator delete(FromPayload<TextBlock*>(words));
  } else {
    ArrayNode::Release(FromPayload<ArrayNode*>(words));
  }
}

std::string_view Variant::GetString() const {
  if (Type() != VariantType::String) RaiseTypeMismatch();
  if (words_.OwnHeap()) {
    auto* const block = FromPayload<TextBlock*>(words_);
    return {block->Characters(), block->size};
  }
  if (words_.TextLength() == kLiteral) {
    return {FromPayload<const char*>(words_), static_cast<std::size_t>(words_.head >> 16)};
  }
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
