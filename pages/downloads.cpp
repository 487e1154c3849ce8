#include "amortix2/pages/downloads.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "amortix2/automation/conversion.h"
#include "amortix2/json/csv.h"
#include "amortix2/json/json_text.h"
#include "amortix2/json/plain_text.h"
#include "amortix2/json/reply.h"
#include "amortix2/json/result_table.h"
#include "amortix2/pages/answer_charts.h"
#include "amortix2/pages/frame.h"

namespace amortix2::pages {
namespace {

constexpr std::string_view kFigures = "figures";

bool IsTable(const Calculation& calculation, const ParameterInfo& parameter) {
  if (!parameter.IsResult()) return false;
  const Variant* value = calculation.Out().Find({.parameter = parameter.name});
  return value && value->Type() == VariantType::Array;
}

std::vector<const ParameterInfo*> TablesOf(const Calculation& calculation) {
  std::vector<const ParameterInfo*> tables;
  for (const ParameterInfo& parameter : calculation.Member().parameters) {
    if (IsTable(calculation, parameter)) tables.push_back(&parameter);
  }
  return tables;
}

/// The results that are no tables, a line each.
std::string FiguresAsCsv(const Calculation& calculation) {
  std::string out;
  json::AppendCsv(out, {"Figure", "Value"});
  for (const ParameterInfo& parameter : calculation.Member().parameters) {
    if (!parameter.IsResult() || IsTable(calculation, parameter)) continue;
    const Variant* value = calculation.Out().Find({.parameter = parameter.name});
    if (value) json::AppendCsv(out, {std::string(parameter.title), json::PlainText(*value)});
  }
  return out;
}

/// The first schedule, else the first table, else the single figures.
std::string_view FirstTable(const Calculation& calculation) {
  const auto tables = TablesOf(calculation);
  if (tables.empty()) return kFigures;
  const auto schedule = std::ranges::find_if(
      tables, [](const ParameterInfo* result) { return result->table && result->table->isSchedule; });
  return (schedule == tables.end() ? tables.front() : *schedule)->name;
}

std::optional<Page> Csv(const Calculation& calculation, std::string_view table) {
  if (!calculation.IsAnswered()) return std::nullopt;
  if (table.empty()) table = FirstTable(calculation);
  Page page{.contentType = "text/csv; charset=utf-8", .bytes = {}, .fileName = "answer.csv"};
  if (table == kFigures) {
    page.bytes = FiguresAsCsv(calculation);
    return page;
  }
  const ParameterInfo* parameter = FindParameter(calculation.Member(), table);
  if (!parameter || !IsTable(calculation, *parameter)) return std::nullopt;
  page.bytes = json::ResultAsCsv(calculation.Execution(), parameter->name);
  page.fileName = "schedule.csv";
  return page;
}

std::string ErrorJson(const FieldError& error) {
  std::string out;
  json::ObjectWriter reply(out);
  json::ObjectWriter object(reply.Field("error"));
  json::AppendNumber(object.Field("number"), std::int64_t{0});
  json::AppendText(object.Field("name"), "BadRequest");
  json::AppendText(object.Field("message"), error.sentence);
  if (error.parameter) json::AppendText(object.Field("parameter"), error.parameter->name);
  object.Close();
  reply.Close();
  return out;
}

Page Json(const Calculation& calculation) {
  Page page{.contentType = "application/json", .bytes = {}};
  if (calculation.IsAnswered()) {
    page.bytes = json::ReplyTo(calculation.Execution(), {.strangers = true}) + "\n";
  } else {
    page.status = 400;
    page.bytes = ErrorJson(calculation.Errors().front()) + "\n";
  }
  return page;
}

std::optional<Page> Gif(const Calculation& calculation, std::string_view chart) {
  const auto number = ParseNumber(chart.empty() ? "1" : chart);
  const std::size_t charts = calculation.Member().charts.size();
  const bool isThere =
      calculation.IsAnswered() && number && *number >= 1 && *number <= static_cast<double>(charts);
  if (!isThere) return std::nullopt;
  auto bytes = ChartGif(calculation, static_cast<std::size_t>(*number));
  if (!bytes) return std::nullopt;
  return Page{.contentType = "image/gif", .bytes = std::move(*bytes), .fileName = "chart.gif"};
}

void AppendDownload(EscapedMarkup& out, Query query, std::string_view format, std::string_view table,
                    const std::string& text) {
  query.Remove("chart");
  query.Remove("table");
  query.Set("format", format);
  if (format == "csv") query.Set("table", table);
  out.Open("li");
  AppendLink(out, "?" + query.Text(), text);
  out.Close();
}

}  // namespace

std::optional<Page> Download(const Calculation& calculation, const Query& query) {
  const std::string_view format = query.Get("format");
  if (format == "json") return Json(calculation);
  if (format == "csv") return Csv(calculation, query.Get("table"));
  if (format == "gif") return Gif(calculation, query.Get("chart"));
  return std::nullopt;
}

void AppendDownloads(EscapedMarkup& out, const Calculation& calculation, const Query& query) {
  out.Open("ul", {{"class", "downloads"}});
  for (const ParameterInfo* table : TablesOf(calculation)) {
    AppendDownload(out, query, "csv", table->name, std::string(table->title) + " (CSV)");
  }
  AppendDownload(out, query, "csv", kFigures, "Figures (CSV)");
  AppendDownload(out, query, "json", {}, "The whole answer (JSON)");
  out.Close();
}

}  // namespace amortix2::pages
