#include "amortix2/charts/tag_balance.h"

namespace amortix2 {
namespace {

struct Tag {
  std::string_view name;  // as far as it tells the tags apart
  char element;
  char parent;
};

constexpr Tag kTags[] = {{"TD", 'D', 'R'}, {"TR", 'R', 'T'}, {"TA", 'T', 'D'}};

}  // namespace

int TagBalance::Follow(std::string_view fragment) {
  int errors = 0;
  bool insideQuotes = false;
  for (std::size_t i = 0; i < fragment.size(); ++i) {
    if (fragment[i] == '"') insideQuotes = !insideQuotes;
    if (fragment[i] != '<' || insideQuotes) continue;
    std::string_view tag = fragment.substr(i + 1);
    const bool closing = tag.starts_with('/');
    if (closing) tag.remove_prefix(1);
    for (const Tag& known : kTags) {
      if (!tag.starts_with(known.name)) continue;
      if (!(closing ? Close(known.element) : Open(known.element, known.parent))) ++errors;
    }
  }
  return errors;
}

std::string TagBalance::OpenElements() const {
  return stack_.empty() ? stack_ : std::string(kSyncError) + stack_;
}

bool TagBalance::Open(char element, char parent) {
  const bool fits = stack_.empty() || stack_.back() == parent;
  stack_ += element;
  return fits;
}

bool TagBalance::Close(char element) {
  if (stack_.empty() || stack_.back() != element) return false;
  stack_.pop_back();
  return true;
}

}  // namespace amortix2
