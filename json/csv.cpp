#include "amortix2/json/csv.h"

#include <algorithm>
#include <array>
#include <utility>

#include "amortix2/json/request_error.h"

namespace amortix2::json {
namespace {

/// Takes fields from the text of one record, one after the other.
class FieldScanner {
 public:
  FieldScanner(std::string_view text, char separator)
      : text_(text), separator_(separator), ends_{separator, '"', '\r', '\n'} {}

  bool Take(char c) {
    if (!text_.starts_with(c)) return false;
    text_.remove_prefix(1);
    return true;
  }
  bool TakeSeparator() { return Take(separator_); }
  bool AtEnd() const noexcept { return text_.empty(); }

  void Read(std::string& field) {
    field.clear();
    Take('"') ? ReadQuoted(field) : ReadPlain(field);
  }

 private:
  void ReadPlain(std::string& field) {
    const std::string_view ends(ends_.data(), ends_.size());
    std::size_t end = 0;
    while (end < text_.size() && ends.find(text_[end]) == std::string_view::npos) ++end;
    field = text_.substr(0, end);
    text_.remove_prefix(end);
  }

  void ReadQuoted(std::string& field) {
    for (;;) {
      const std::size_t quote = text_.find('"');
      if (quote == std::string_view::npos) throw RequestError("a quote that is not closed");
      field += text_.substr(0, quote);
      text_.remove_prefix(quote + 1);
      if (!Take('"')) return;
      field += '"';
    }
  }

  std::string_view text_;
  char separator_;
  std::array<char, 4> ends_;  // of a field without quotes
};

/// The place behind the quote that closes the one at `open`; npos when none does.
std::size_t EndOfQuoted(std::string_view text, std::size_t open) {
  for (std::size_t from = open + 1;;) {
    const std::size_t quote = text.find('"', from);
    if (quote == std::string_view::npos) return quote;
    if (!text.substr(quote + 1).starts_with('"')) return quote + 1;
    from = quote + 2;
  }
}

/// The place behind the LF that ends the record; npos when its quotes stay open or no LF comes.
std::size_t EndOfRecord(std::string_view text, char separator) {
  bool isStart = true;  // of a field
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (isStart && text[i] == '"') i = EndOfQuoted(text, i);
    if (i >= text.size()) break;
    if (text[i] == '\n') return i + 1;
    isStart = text[i] == separator;
  }
  return std::string_view::npos;
}

}  // namespace

void AppendCsvField(std::string& out, std::string_view field, char separator) {
  const auto needsQuotes = [separator](char c) {
    return c == separator || c == '"' || c == '\r' || c == '\n';
  };
  if (std::ranges::none_of(field, needsQuotes)) {
    out += field;
    return;
  }
  out += '"';
  for (const char c : field) out.append(c == '"' ? 2 : 1, c);
  out += '"';
}

void AppendCsvEnd(std::string& out, char separator) { out += separator == '\t' ? "\n" : "\r\n"; }

void AppendCsv(std::string& out, const CsvRecord& record, char separator) {
  bool first = true;
  for (const std::string& field : record) {
    if (!first) out += separator;
    first = false;
    AppendCsvField(out, field, separator);
  }
  AppendCsvEnd(out, separator);
}

std::size_t CsvRecordLength(std::string_view text, bool isAll, char separator) {
  const std::string_view most = text.substr(0, kLongestRecord);
  const std::size_t line = most.find('\n');
  // Nearly all lines have no quotes, which is quickly found.
  if (line != std::string_view::npos && most.substr(0, line).find('"') == std::string_view::npos) {
    return line + 1;
  }
  const std::size_t end = EndOfRecord(most, separator);
  if (end != std::string_view::npos) return end;
  if (!isAll && text.size() <= kLongestRecord) return 0;
  const std::size_t first = text.find('\n');
  if (first != std::string_view::npos) return first + 1;
  return isAll ? text.size() : 0;
}

void ReadCsvRecord(std::string_view text, CsvRecord& record, char separator) {
  FieldScanner fields(text, separator);
  record.clear();
  do {
    fields.Read(record.emplace_back());
  } while (fields.TakeSeparator());
  fields.Take('\r');
  fields.Take('\n');
  if (!fields.AtEnd()) throw RequestError("a quote within a value");
}

void SkipByteOrderMark(std::string_view& text) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
}

std::vector<CsvRecord> ParseCsv(std::string_view text, char separator) {
  SkipByteOrderMark(text);
  std::vector<CsvRecord> records;
  std::size_t line = 1;
  for (CsvRecord record; !text.empty();) {
    const std::size_t length = CsvRecordLength(text, true, separator);
    const std::string_view part = text.substr(0, length);
    const std::string where = "line " + std::to_string(line);
    try {
      ReadCsvRecord(part, record, separator);
    } catch (RequestError& error) {
      throw RequestError(where + ": " + error.TakeMessage());
    }
    line += static_cast<std::size_t>(std::ranges::count(part, '\n'));
    text.remove_prefix(length);
    if (record.size() == 1 && record.front().empty()) continue;
    if (!records.empty() && record.size() != records.front().size()) {
      throw RequestError(where + " has " + std::to_string(record.size()) + " values, the first one " +
                         std::to_string(records.front().size()));
    }
    records.push_back(std::move(record));
    record = {};
  }
  return records;
}

}  // namespace amortix2::json
