#pragma once

// A diagnostic for the markup of charts: follows tables, rows and cells as they open and close and marks the
// fragment in which they stop fitting together. It knows the six upper-case tags that the chart's skeleton is
// made of and ignores every other. Normal builds leave it off (see MarkupWriter).

#include <string>
#include <string_view>

namespace amortix2 {

inline constexpr std::string_view kSyncError = " <!- SYNC ERROR ->";

class TagBalance {
 public:
  /// Follows the tags of the next fragment, those inside double quotes apart, and returns how many of them do
  /// not fit: a cell opened outside a row, a row outside a table, a table outside a cell (the outermost
  /// element may stand alone), or an end tag of another element than the innermost. Every fragment starts
  /// outside quotes.
  int Follow(std::string_view fragment);

  /// The open elements from the outermost in, "T" a table, "R" a row, "D" a cell; behind kSyncError when
  /// there are any.
  std::string OpenElements() const;

 private:
  bool Open(char element, char parent);
  bool Close(char element);

  std::string stack_;
};

}  // namespace amortix2
