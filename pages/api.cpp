#include "amortix2/pages/api.h"

#include "amortix2/json/description_json.h"
#include "amortix2/json/reply.h"
#include "amortix2/pages/openapi.h"

namespace amortix2::pages {
namespace {

Page JsonPage(std::string text, int status = 200) {
  return {.status = status, .contentType = "application/json", .bytes = std::move(text += '\n')};
}

Page NotAllowed(std::string_view allowed) {
  Page page = JsonPage(R"({"error":{"number":0,"name":"BadRequest","message":"no such method here"}})", 405);
  page.allow = allowed;
  return page;
}

Page Call(const Request& request, const Clock& clock) {
  std::string fault;
  std::string reply = json::Answer(request.body, {.notes = true, .strangers = true}, clock, &fault);
  if (reply.empty()) return JsonPage(std::string(json::kNoMemoryReply), 503);
  return JsonPage(std::move(reply), fault.empty() ? 200 : 400);
}

}  // namespace

std::optional<Page> ApiPage(const Request& request, const Clock& clock) {
  if (request.path == "/call") {
    return request.method == "POST" ? Call(request, clock) : NotAllowed("POST");
  }
  if (request.path != "/api" && request.path != "/openapi.json") return std::nullopt;
  if (request.method != "GET" && request.method != "HEAD") return NotAllowed("GET, HEAD");
  static const std::string kDescription = json::DescriptionJson();
  static const std::string kOpenApi = OpenApiJson();
  return JsonPage(request.path == "/api" ? kDescription : kOpenApi);
}

}  // namespace amortix2::pages
