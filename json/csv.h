#pragma once

// Comma-separated values (RFC 4180): records of fields, quoted where they have to be. Written with CRLF at
// the end of each record, as the format has it; read with CRLF or LF.

#include <string>
#include <string_view>
#include <vector>

namespace amortix2::json {

using CsvRecord = std::vector<std::string>;

void AppendCsv(std::string& out, const CsvRecord& record);

/// Empty lines and a byte order mark are read over. Raises RequestError, with the line, for a quote that is
/// not closed or stands within a field, and for a record that is not as long as the first.
std::vector<CsvRecord> ParseCsv(std::string_view text);

}  // namespace amortix2::json
