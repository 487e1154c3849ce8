#include "amortix2/cli/rows_format.h"

#include <algorithm>

#include "amortix2/automation/text_scanner.h"
#include "amortix2/cli/lines.h"
#include "amortix2/component/invocation.h"
#include "amortix2/json/json_text.h"
#include "amortix2/json/plain_text.h"
#include "amortix2/json/request_error.h"
#include "amortix2/json/typed_value.h"

namespace amortix2::cli {
namespace {

constexpr std::string_view kTooLong = "a record of more than a megabyte";

/// A field of an object as the cell of a table.
std::string CellOf(const json::Tree& value) {
  if (const std::string* text = json::TextOf(value)) return *text;
  std::string cell;
  if (!value.is_null()) json::AppendTree(cell, value);
  return cell;
}

json::Tree ReadObject(std::string_view record) {
  auto [tree, badByte] = json::ParseTree(record);
  if (!tree)
    throw json::RequestError("the line is no JSON: byte " + std::to_string(badByte) + " does not fit");
  if (!json::FieldsOf(*tree)) throw json::RequestError("the line is no JSON object");
  return std::move(*tree);
}

void ReadFields(std::string_view record, const json::CsvRecord& names, json::CsvRecord& cells) {
  cells.assign(names.size(), {});
  const json::Tree object = ReadObject(record);
  for (const auto& [name, value] : *json::FieldsOf(object)) {
    const auto place = std::ranges::find(names, name);
    if (place == names.end()) {
      throw json::RequestError("the first line has no field " + json::Quoted(name));
    }
    cells[static_cast<std::size_t>(place - names.begin())] = CellOf(value);
  }
}

/// As CsvRecordLength.
std::size_t LengthOfRecord(std::string_view text, bool isAll, Format format) {
  if (format != Format::JsonLines) return json::CsvRecordLength(text, isAll, SeparatorOf(format));
  const std::size_t end = text.find('\n');
  if (end != std::string_view::npos) return end + 1;
  return isAll ? text.size() : 0;
}

}  // namespace

bool IsEmptyLine(std::string_view record) {
  return record.find_first_not_of("\r\n") == std::string_view::npos;
}

bool IsJsonNumber(std::string_view text) {
  TextScanner scanner(text);
  scanner.Take('-');
  const std::string_view whole = scanner.TakeWhile(IsDigit);
  if (whole.empty() || (whole.size() > 1 && whole.front() == '0')) return false;
  if (scanner.Take('.') && scanner.TakeWhile(IsDigit).empty()) return false;
  if (scanner.Take('e') || scanner.Take('E')) {
    scanner.Take('+') || scanner.Take('-');
    if (scanner.TakeWhile(IsDigit).empty()) return false;
  }
  return scanner.AtEnd();
}

std::string_view TakeRecord(std::string_view& text, Format format) {
  const std::size_t length = LengthOfRecord(text, true, format);
  const std::string_view record = text.substr(0, length);
  text.remove_prefix(length);
  return record;
}

void ReadCells(std::string_view record, const json::CsvRecord& names, json::CsvRecord& cells, Format format) {
  if (record.size() > json::kLongestRecord) {
    cells.clear();
    throw json::RequestError(std::string(kTooLong));
  }
  if (format == Format::JsonLines) return ReadFields(record, names, cells);
  json::ReadCsvRecord(record, cells, SeparatorOf(format));
  if (cells.size() != names.size()) {
    throw json::RequestError("the row has " + std::to_string(cells.size()) + " values, the header " +
                             std::to_string(names.size()));
  }
}

// ---- Input

/// Reads on; false at the end. What a line has beyond the longest record is dropped.
bool PieceReader::Fill() {
  if (atEnd_) return false;
  constexpr std::size_t kReadSize = std::size_t{1} << 16;
  const std::size_t size = waiting_.size();
  waiting_.resize(size + kReadSize);
  const std::size_t count = ReadSome(descriptor_, waiting_.data() + size, kReadSize);
  waiting_.resize(size + count);
  atEnd_ = count == 0;
  if (!isBegun_ && (waiting_.size() >= 3 || atEnd_)) {
    std::string_view text = waiting_;
    json::SkipByteOrderMark(text);
    waiting_.erase(0, waiting_.size() - text.size());
    isBegun_ = true;
  }
  if (size > json::kLongestRecord && waiting_.find('\n') >= size) {
    waiting_.erase(json::kLongestRecord + 1, size - json::kLongestRecord - 1);
  }
  return true;
}

std::string PieceReader::Take(std::size_t length) {
  std::string taken = waiting_.substr(0, length);
  waiting_.erase(0, length);
  line_ += static_cast<std::uint64_t>(std::ranges::count(taken, '\n'));
  return taken;
}

bool PieceReader::Next(Piece& piece) {
  do {
    std::size_t length = 0;
    while (length < waiting_.size()) {
      const std::size_t next = LengthOfRecord(std::string_view(waiting_).substr(length), atEnd_, format_);
      if (next == 0) break;
      length += next;
    }
    if (length > 0) {
      piece.line = line_;
      piece.text = Take(length);
      return true;
    }
  } while (Fill());
  return false;
}

json::CsvRecord PieceReader::TakeHeader() {
  json::CsvRecord names;
  for (;;) {
    Piece piece;
    const std::uint64_t line = line_;
    if (!Next(piece)) return names;
    std::string_view rest = piece.text;
    const std::string_view record = TakeRecord(rest, format_);
    const bool isHeader = !IsEmptyLine(record);
    if (isHeader && record.size() > json::kLongestRecord)
      throw json::RequestError("header: " + std::string(kTooLong));
    if (isHeader && format_ == Format::JsonLines) {
      const json::Tree object = ReadObject(record);
      for (const auto& [name, value] : *json::FieldsOf(object)) names.push_back(name);
      rest = piece.text;
    } else if (isHeader) {
      json::ReadCsvRecord(record, names, SeparatorOf(format_));
    }
    const auto taken = std::string_view(piece.text).substr(0, piece.text.size() - rest.size());
    line_ = line + static_cast<std::uint64_t>(std::ranges::count(taken, '\n'));
    waiting_.insert(0, rest);
    if (isHeader) return names;
  }
}

// ---- Output

/// Opens a field; true in JSON.
bool RecordWriter::Begin(std::string_view name) {
  const bool isJson = format_ == Format::JsonLines;
  if (!isFirst_) out_ += isJson ? ',' : SeparatorOf(format_);
  if (isJson) {
    if (isFirst_) out_ += '{';
    json::AppendText(out_, name);
    out_ += ':';
  }
  isFirst_ = false;
  return isJson;
}

void RecordWriter::AddText(std::string_view name, std::string_view text) {
  if (!Begin(name)) {
    json::AppendCsvField(out_, text, SeparatorOf(format_));
  } else if (IsJsonNumber(text)) {
    out_ += text;
  } else {
    json::AppendText(out_, text);
  }
}

void RecordWriter::AddNothing(std::string_view name) {
  if (Begin(name)) out_ += "null";
}

void RecordWriter::AddValue(std::string_view name, const Value& value) {
  if (Begin(name)) return json::AppendArgument(out_, value, json::Form::Plain);
  const char separator = SeparatorOf(format_);
  std::string cell;
  if (value.Type().read == nullptr) {  // records are their JSON
    json::AppendArgument(cell, value, json::Form::Plain);
    return json::AppendCsvField(out_, cell, separator);
  }
  WithVariant(value.Type(), value.Get(), [&](const Variant& variant) {
    switch (variant.Type()) {
      case VariantType::Empty:
      case VariantType::Null:
      case VariantType::Missing:
        return;
      case VariantType::String:
        return json::AppendCsvField(out_, variant.GetString(), separator);
      case VariantType::Array:
        json::AppendVariant(cell, variant, json::Form::Plain);
        return json::AppendCsvField(out_, cell, separator);
      default:
        json::AppendCsvField(out_, json::PlainText(variant), separator);
    }
  });
}

void RecordWriter::End() {
  if (format_ == Format::JsonLines) {
    out_ += isFirst_ ? "{}\n" : "}\n";
  } else {
    json::AppendCsvEnd(out_, SeparatorOf(format_));
  }
}

}  // namespace amortix2::cli
