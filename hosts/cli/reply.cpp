#include "amortix2/cli/reply.h"

#include "amortix2/cli/base64.h"
#include "amortix2/cli/json_text.h"
#include "amortix2/cli/request.h"
#include "amortix2/cli/request_error.h"
#include "amortix2/cli/typed_json.h"

namespace amortix2::cli {
namespace {

/// An object that is being written: each name begins a field, whose value the caller appends.
class ObjectWriter {
 public:
  explicit ObjectWriter(std::string& out) : out_(out) { out_ += '{'; }
  std::string& Field(std::string_view name) {
    if (!first_) out_ += ',';
    first_ = false;
    AppendText(out_, name);
    out_ += ':';
    return out_;
  }
  void Close() { out_ += '}'; }

 private:
  std::string& out_;
  bool first_ = true;
};

void AppendError(std::string& out, const Failure& failure) {
  ObjectWriter error(out);
  AppendNumber(error.Field("number"), static_cast<std::int64_t>(failure.number));
  AppendText(error.Field("name"), failure.name);
  if (!failure.message.empty()) AppendText(error.Field("message"), failure.message);
  error.Close();
}

void AppendResults(std::string& out, const Call& call, JsonForm form) {
  ObjectWriter results(out);
  for (std::size_t i = 0; i < call.Arguments().size(); ++i) {
    const ParameterInfo& parameter = call.Method()->parameters[i];
    if (parameter.byReference) AppendArgument(results.Field(parameter.name), call.Arguments()[i], form);
  }
  results.Close();
}

std::string ErrorReply(const Failure& failure, const Json* id) {
  std::string out;
  ObjectWriter reply(out);
  if (id) AppendJson(reply.Field("id"), *id);
  AppendError(reply.Field("error"), failure);
  reply.Close();
  return out;
}

std::string FullReply(const Call& call, const Json* id, JsonForm form) {
  std::string out;
  ObjectWriter reply(out);
  if (id) AppendJson(reply.Field("id"), *id);
  if (call.Error()) AppendError(reply.Field("error"), *call.Error());
  AppendResults(reply.Field("results"), call, form);
  if (call.Result()) AppendArgument(reply.Field("return"), *call.Result(), form);
  if (!call.Response().empty()) {
    reply.Field("response") += '"';
    AppendBase64(out, call.Response());
    out += '"';
  }
  reply.Close();
  return out;
}

std::string_view Trimmed(std::string_view line) noexcept {
  const std::size_t last = line.find_last_not_of(" \t\r");
  return line.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

Json ParseLine(std::string_view line) {
  if (line.size() > kLongestLine) {
    throw RequestError("the line is longer than " + std::to_string(kLongestLine) + " bytes");
  }
  line = Trimmed(line);
  if (line.empty()) throw RequestError("the line is empty");
  std::size_t badByte = 0;
  std::optional<Json> json = ParseJson(line, &badByte);
  if (!json) throw RequestError("the line is no JSON: byte " + std::to_string(badByte) + " does not fit");
  return std::move(*json);
}

}  // namespace

std::string ReplyTo(const Call& call, const Json* id, JsonForm form) {
  if (call.Error() && call.Error()->ofRequest) return ErrorReply(*call.Error(), id);
  std::string reply;
  const auto failure = Try([&] { reply = FullReply(call, id, form); });
  return failure ? ErrorReply(*failure, id) : reply;
}

std::string Answer(std::string_view line, const Clock& clock, JsonForm form) noexcept {
  Json json;
  std::string reply;
  const auto failure = Try([&] {
    json = ParseLine(line);
    reply = ReplyTo(Call(ReadRequest(json), clock), FindId(json), form);
  });
  if (failure) Try([&] { reply = ErrorReply(*failure, FindId(json)); });
  return reply;
}

}  // namespace amortix2::cli
