#include "amortix2/json/reply.h"

#include <optional>
#include <utility>

#include "amortix2/json/execution.h"
#include "amortix2/json/json_text.h"
#include "amortix2/json/request.h"
#include "amortix2/json/request_error.h"
#include "amortix2/json/tree.h"
#include "amortix2/json/typed_value.h"

namespace amortix2::json {
namespace {

void AppendError(std::string& out, const Failure& failure) {
  ObjectWriter error(out);
  AppendNumber(error.Field("number"), static_cast<std::int64_t>(failure.number));
  AppendText(error.Field("name"), failure.name);
  if (!failure.message.empty()) AppendText(error.Field("message"), failure.message);
  error.Close();
}

void AppendResults(std::string& out, const Invocation* call, Form form) {
  ObjectWriter results(out);
  for (std::size_t i = 0; call && i < call->Arguments().size(); ++i) {
    const ParameterInfo& parameter = call->Member().parameters[i];
    if (parameter.byReference) AppendArgument(results.Field(parameter.name), call->Arguments()[i], form);
  }
  results.Close();
}

std::string ErrorReply(const Failure& failure, const Tree* id) {
  std::string out;
  ObjectWriter reply(out);
  if (id) AppendTree(reply.Field("id"), *id);
  AppendError(reply.Field("error"), failure);
  reply.Close();
  return out;
}

std::string FullReply(const Execution& execution, const Tree* id, Form form) {
  std::string out;
  ObjectWriter reply(out);
  if (id) AppendTree(reply.Field("id"), *id);
  if (execution.Error()) AppendError(reply.Field("error"), *execution.Error());
  const Invocation* call = execution.Call();
  AppendResults(reply.Field("results"), call, form);
  if (call && call->Result()) AppendArgument(reply.Field("return"), *call->Result(), form);
  if (!execution.Response().empty()) AppendBase64(reply.Field("response"), execution.Response());
  reply.Close();
  return out;
}

std::string Reply(const Execution& execution, const Tree* id, Form form) {
  if (execution.Error() && execution.Error()->ofRequest) return ErrorReply(*execution.Error(), id);
  std::string reply;
  const auto failure = Try([&] { reply = FullReply(execution, id, form); });
  return failure ? ErrorReply(*failure, id) : reply;
}

std::string_view Trimmed(std::string_view text) noexcept {
  const std::size_t last = text.find_last_not_of(" \t\r");
  return text.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

Tree ParseRequest(std::string_view text) {
  if (text.size() > kLongestRequest) {
    throw RequestError("the line is longer than " + std::to_string(kLongestRequest) + " bytes");
  }
  text = Trimmed(text);
  if (text.empty()) throw RequestError("the line is empty");
  auto [tree, badByte] = ParseTree(text);
  if (!tree) throw RequestError("the line is no JSON: byte " + std::to_string(badByte) + " does not fit");
  return std::move(*tree);
}

}  // namespace

std::string Answer(std::string_view requestText, const Options& options, const Clock& clock) noexcept {
  std::optional<Tree> tree;
  std::string reply;
  const auto id = [&] { return tree ? FieldNamed(*tree, "id") : nullptr; };
  const auto failure = Try([&] {
    tree = ParseRequest(requestText);
    reply = Reply(Execution(ReadRequest(*tree), clock), id(), options.form);
  });
  if (failure) Try([&] { reply = ErrorReply(*failure, id()); });
  return reply;
}

std::string ReplyTo(const Execution& execution, const Options& options) {
  return Reply(execution, nullptr, options.form);
}

}  // namespace amortix2::json
