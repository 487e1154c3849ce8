#include "amortix2/json/csv.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "amortix2/json/request_error.h"

namespace amortix2::json {
namespace {

/// Takes records from a text, one after the other.
class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  bool AtEnd() const noexcept { return text_.empty(); }
  std::size_t Line() const noexcept { return line_; }

  CsvRecord Record() {
    CsvRecord record;
    do {
      record.push_back(Take('"') ? Quoted() : Plain());
    } while (Take(','));
    Take('\r');
    if (!AtEnd() && !Take('\n')) Refuse("a quote within a value");
    return record;
  }

  [[noreturn]] void Refuse(const std::string& what) const {
    throw RequestError("line " + std::to_string(line_) + ": " + what);
  }

 private:
  bool Take(char c) {
    if (!text_.starts_with(c)) return false;
    if (c == '\n') ++line_;
    text_.remove_prefix(1);
    return true;
  }

  std::string Plain() {
    const std::size_t end = std::min(text_.find_first_of("\",\r\n"), text_.size());
    std::string field(text_.substr(0, end));
    text_.remove_prefix(end);
    return field;
  }

  std::string Quoted() {
    std::string field;
    for (;;) {
      const std::size_t quote = text_.find('"');
      if (quote == std::string_view::npos) Refuse("a quote that is not closed");
      const std::string_view part = text_.substr(0, quote);
      line_ += static_cast<std::size_t>(std::ranges::count(part, '\n'));
      field += part;
      text_.remove_prefix(quote + 1);
      if (!Take('"')) return field;
      field += '"';
    }
  }

  std::string_view text_;
  std::size_t line_ = 1;
};

}  // namespace

void AppendCsv(std::string& out, const CsvRecord& record) {
  bool first = true;
  for (const std::string& field : record) {
    if (!first) out += ',';
    first = false;
    if (field.find_first_of("\",\r\n") == std::string::npos) {
      out += field;
      continue;
    }
    out += '"';
    for (const char c : field) out.append(c == '"' ? 2 : 1, c);
    out += '"';
  }
  out += "\r\n";
}

std::vector<CsvRecord> ParseCsv(std::string_view text) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  std::vector<CsvRecord> records;
  for (Reader reader(text); !reader.AtEnd();) {
    const std::size_t line = reader.Line();
    CsvRecord record = reader.Record();
    if (record.size() == 1 && record.front().empty()) continue;
    if (!records.empty() && record.size() != records.front().size()) {
      throw RequestError("line " + std::to_string(line) + " has " + std::to_string(record.size()) +
                         " values, the first one " + std::to_string(records.front().size()));
    }
    records.push_back(std::move(record));
  }
  return records;
}

}  // namespace amortix2::json
