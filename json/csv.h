#pragma once

// Comma-separated values (RFC 4180): records of fields, quoted where they have to be. Commas may be tabs
// instead. Written with CRLF at the end of each record, as the format has it (LF after tabs); read with CRLF
// or LF. A record can be cut off a text that goes on, and a quote that is never closed spoils its own line
// alone.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace amortix2::json {

using CsvRecord = std::vector<std::string>;

/// A record that breaks lines within quotes is no longer than this.
inline constexpr std::size_t kLongestRecord = std::size_t{1} << 20;

void AppendCsv(std::string& out, const CsvRecord& record, char separator = ',');

/// The parts of the same: a field, quoted where it has to be, and the end of a record.
void AppendCsvField(std::string& out, std::string_view field, char separator);
void AppendCsvEnd(std::string& out, char separator);

/// The length of the text's first record with the end of its line; 0 when more text is needed to tell, never
/// when this `isAll`. A quote that is not closed within kLongestRecord bytes ends with its line.
std::size_t CsvRecordLength(std::string_view text, bool isAll, char separator = ',');

/// Overwrites `record` by the one record that the text is. Raises RequestError for a quote that is not closed
/// or stands within a field; `record` then ends with that field.
void ReadCsvRecord(std::string_view text, CsvRecord& record, char separator = ',');

/// Removes a byte order mark.
void SkipByteOrderMark(std::string_view& text);

/// All records. Empty lines and a byte order mark are read over. Raises RequestError, with the line, as
/// ReadCsvRecord does and for a record that is not as long as the first.
std::vector<CsvRecord> ParseCsv(std::string_view text, char separator = ',');

}  // namespace amortix2::json
