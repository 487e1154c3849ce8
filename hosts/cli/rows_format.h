#pragma once

// Rows as text: comma-separated values with a header, the same with tabs, or a JSON object a line. Input
// comes in pieces of whole records, whatever the pieces in which it arrives, so that memory does not grow
// with it; each piece can be read, and its answers written, by itself.

#include <cstdint>
#include <string>
#include <string_view>

#include "amortix2/component/description.h"
#include "amortix2/json/csv.h"

namespace amortix2::cli {

enum class Format { Csv, Tsv, JsonLines };

/// What parts fields: a comma or a tab.
constexpr char SeparatorOf(Format format) { return format == Format::Tsv ? '\t' : ','; }

/// Whole records as they came.
struct Piece {
  std::string text;
  std::uint64_t line = 1;  ///< on which the first begins
};

class PieceReader {
 public:
  PieceReader(int descriptor, Format format) : descriptor_(descriptor), format_(format) {}

  /// The records that are there, waiting for one when there is none; false at the end. A record longer than
  /// kLongestRecord comes as its first kLongestRecord + 1 bytes. Raises std::system_error.
  bool Next(Piece& piece);

  /// The names of the columns: the header, which is taken, or the fields of the first object, which is left.
  /// None where the input is empty. Raises RequestError, std::system_error.
  json::CsvRecord TakeHeader();

 private:
  bool Fill();
  std::string Take(std::size_t length);

  int descriptor_;
  Format format_;
  std::string waiting_;
  std::uint64_t line_ = 1;
  bool isBegun_ = false;
  bool atEnd_ = false;
};

/// Takes the first record off `text`, which are whole records.
std::string_view TakeRecord(std::string_view& text, Format format);

/// True for an empty line, which is no record.
bool IsEmptyLine(std::string_view record);

/// A record's cells in the order of `names`; a field of an object that is left out is an empty one. Raises
/// RequestError for a record that is none or has not these fields; `cells` then are those that could be read.
void ReadCells(std::string_view record, const json::CsvRecord& names, json::CsvRecord& cells, Format format);

/// Writes one record: its fields in order, then its end.
class RecordWriter {
 public:
  RecordWriter(std::string& out, Format format) : out_(out), format_(format) {}

  /// A text as it is; in JSON, one that JSON reads as a number is a number.
  void AddText(std::string_view name, std::string_view text);
  /// An empty field; in JSON, null.
  void AddNothing(std::string_view name);
  /// A value that a call left: in JSON as replies have it, else as --csv writes it, and a table as JSON.
  /// Raises Overflow for a number that is not finite.
  void AddValue(std::string_view name, const Value& value);
  void End();

 private:
  bool Begin(std::string_view name);

  std::string& out_;
  Format format_;
  bool isFirst_ = true;
};

/// True for what JSON reads as a number.
bool IsJsonNumber(std::string_view text);

}  // namespace amortix2::cli
