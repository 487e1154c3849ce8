#include "amortix2/json/reply.h"

#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "amortix2/json/execution.h"
#include "amortix2/json/json_text.h"
#include "amortix2/json/reply_size.h"
#include "amortix2/json/request.h"
#include "amortix2/json/request_error.h"
#include "amortix2/json/strangers.h"
#include "amortix2/json/tree.h"
#include "amortix2/json/typed_value.h"

namespace amortix2::json {
namespace {

void AppendError(std::string& out, const Failure& failure, const std::optional<Cause>& cause) {
  ObjectWriter error(out);
  AppendNumber(error.Field("number"), static_cast<std::int64_t>(failure.number));
  AppendText(error.Field("name"), failure.name);
  if (!failure.message.empty()) AppendText(error.Field("message"), failure.message);
  if (cause && !failure.ofRequest) AppendText(error.Field("text"), cause->text);
  if (cause && !cause->parameter.empty()) AppendText(error.Field("parameter"), cause->parameter);
  error.Close();
}

void AppendNotes(std::string& out, std::span<const Note> notes) {
  out += '[';
  AppendSeparated(out, notes, [&](const Note& note) {
    ObjectWriter object(out);
    AppendText(object.Field("code"), note.code);
    AppendText(object.Field("parameter"), note.parameter->name);
    AppendText(object.Field("text"), note.Text());
    object.Close();
  });
  out += ']';
}

void AppendResults(std::string& out, const Execution& execution, Form form) {
  const Invocation* call = execution.Call();
  ObjectWriter results(out);
  for (std::size_t i = 0; call && i < call->Arguments().size(); ++i) {
    const ParameterInfo& parameter = call->Member().parameters[i];
    if (!parameter.byReference || !execution.Wants(parameter.name)) continue;
    AppendArgument(results.Field(parameter.name), call->Arguments()[i], form);
  }
  results.Close();
}

std::string ErrorReply(const Failure& failure, const Tree* id, const std::optional<Cause>& cause = {}) {
  std::string out;
  ObjectWriter reply(out);
  if (id) AppendTree(reply.Field("id"), *id);
  AppendError(reply.Field("error"), failure, cause);
  reply.Close();
  return out;
}

std::optional<Cause> CauseOf(const Execution& execution, const Options& options) {
  return options.notes ? std::optional(execution.WhyFailed()) : std::nullopt;
}

std::string FullReply(const Execution& execution, const Tree* id, const Options& options) {
  const ReplySize size = SizeOfReply(execution, options.form);
  if (options.strangers) CheckAnswer(size);
  constexpr std::size_t kNames = 512;
  std::string out;
  // A text that grows is copied, and takes its size twice.
  out.reserve(size.most + kNames);
  ObjectWriter reply(out);
  if (id) AppendTree(reply.Field("id"), *id);
  if (execution.Error()) {
    AppendError(reply.Field("error"), *execution.Error(), CauseOf(execution, options));
  }
  const Invocation* call = execution.Call();
  AppendResults(reply.Field("results"), execution, options.form);
  if (call && call->Result() && execution.Wants("return")) {
    AppendArgument(reply.Field("return"), *call->Result(), options.form);
  }
  const bool hasResponse = !execution.Response().empty() && execution.Wants("response");
  if (hasResponse) AppendBase64(reply.Field("response"), execution.Response());
  if (const auto notes = options.notes ? execution.Notes() : std::vector<Note>(); !notes.empty()) {
    AppendNotes(reply.Field("notes"), notes);
  }
  reply.Close();
  return out;
}

std::string Reply(const Execution& execution, const Tree* id, const Options& options,
                  std::optional<Failure>* unwritten) {
  const std::optional<Failure>& error = execution.Error();
  if (error && error->ofRequest) return ErrorReply(*error, id, CauseOf(execution, options));
  std::string reply;
  auto failure = Try([&] {
    reply = FullReply(execution, id, options);
    if (options.strangers) CheckReplyLength(reply.size());
  });
  if (!failure) return reply;
  reply = ErrorReply(*failure, id);
  if (unwritten) *unwritten = std::move(failure);
  return reply;
}

std::string_view WithoutLineEnd(std::string_view text) noexcept {
  const std::size_t last = text.find_last_not_of(" \t\r");
  return text.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

/// A tree that ends without taking memory.
struct ReadTree {
  ReadTree() = default;
  ReadTree(const ReadTree&) = delete;
  ReadTree& operator=(const ReadTree&) = delete;
  ~ReadTree() {
    if (tree) TakeApart(*tree);
  }

  std::optional<Tree> tree;
};

Tree ParseRequest(std::string_view text, std::size_t longest) {
  if (text.size() > longest) {
    throw RequestError("the line is longer than " + std::to_string(longest) + " bytes");
  }
  text = WithoutLineEnd(text);
  if (text.empty()) throw RequestError("the line is empty");
  auto [tree, badByte] = ParseTree(text);
  if (!tree) throw RequestError("the line is no JSON: byte " + std::to_string(badByte) + " does not fit");
  return std::move(*tree);
}

}  // namespace

std::string Answer(std::string_view requestText, const Options& options, const Clock& clock,
                   std::string* fault) noexcept {
  ReadTree request;
  std::string noMemoryReply;  // made ahead, while there is memory
  std::string reply;
  const auto id = [&] { return request.tree ? FieldNamed(*request.tree, "id") : nullptr; };
  const auto failure = Try([&] {
    request.tree = ParseRequest(requestText, options.LongestRequest());
    noMemoryReply = ErrorReply({ErrorNumber::OutOfMemory, ErrorName(ErrorNumber::OutOfMemory)}, id());
    const Execution execution(ReadRequest(*request.tree), clock, options.notes ? Keep::Inputs : Keep::Results,
                              options.strangers ? Caller::Stranger : Caller::Owner);
    if (fault && execution.Error() && execution.Error()->ofRequest) *fault = execution.WhyFailed().text;
    reply = Reply(execution, id(), options, nullptr);
  });
  if (!failure) return reply;
  if (failure->ofRequest && fault) Try([&] { *fault = failure->message; });
  if (Try([&] { reply = ErrorReply(*failure, id()); })) return noMemoryReply;
  return reply;
}

std::string ReplyTo(const Execution& execution, const Options& options, std::optional<Failure>* unwritten) {
  return Reply(execution, nullptr, options, unwritten);
}

}  // namespace amortix2::json
