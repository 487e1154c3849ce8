#include "amortix2/web/connection.h"

#include <boost/asio/dispatch.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/write.hpp>
#include <boost/beast/core/basic_stream.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/read.hpp>
#include <boost/beast/http/string_body.hpp>
#include <boost/beast/http/write.hpp>
#include <chrono>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>

#include "amortix2/pages/site.h"
#include "amortix2/web/header_scan.h"
#include "amortix2/web/process.h"
#include "amortix2/web/target.h"

namespace amortix2::web {
namespace {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
using Error = boost::system::error_code;
using Stream = beast::basic_stream<Tcp, Strand>;
using Parser = http::request_parser<http::string_body>;
using Header = Parser::value_type::header_type;
using SteadyClock = std::chrono::steady_clock;

/// How long a client may take to see why it was refused before its connection is closed.
constexpr std::chrono::seconds kFarewell{2};

std::string_view View(beast::string_view text) { return {text.data(), text.size()}; }

/// What the parser forgives and other servers may understand in another way.
bool IsClear(const Header& header) {
  const auto count = [&](http::field field) { return header.count(field); };
  const bool isNew = header.version() == 11;
  if (count(http::field::host) > 1 || (isNew && count(http::field::host) == 0)) return false;
  if (!IsVisible(View(header[http::field::host]))) return false;
  const std::size_t lengths = count(http::field::content_length);
  const std::string_view length = View(header[http::field::content_length]);
  if (lengths > 1 || length.find_first_not_of("0123456789") != std::string_view::npos) return false;
  if (count(http::field::transfer_encoding) == 0) return true;
  return isNew && lengths == 0 && count(http::field::transfer_encoding) == 1 &&
         beast::iequals(header[http::field::transfer_encoding], "chunked");
}

class Connection : public Guest, public std::enable_shared_from_this<Connection> {
 public:
  Connection(Hall& hall, Socket&& socket);
  ~Connection() override;
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  /// Answers requests until either side has enough.
  void Start();
  /// Says that there is no room.
  void TurnAway();
  void EndIfIdle() override;

 private:
  void AwaitRequest();
  void Read();
  void OnRead(const Error& error, std::size_t count);
  void OnHeader();
  void ReadBody();
  void OnRequest();
  void Refuse(int status);
  void Send(pages::Page page, bool keepAlive);
  void OnSent(const Error& error);
  void SayFarewell();
  void ReadOut();
  bool HasInput();

  Hall& hall_;
  Stream stream_;
  beast::flat_buffer buffer_;
  HeaderScan scan_;
  std::optional<Parser> parser_;
  http::response<http::string_body> response_;
  std::string line_;  // of the log
  std::size_t unsent_ = 0;
  bool idle_ = false;
  bool isHead_ = false;
};

Connection::Connection(Hall& hall, Socket&& socket)
    : hall_(hall), stream_(std::move(socket)), buffer_(hall.serving.headerBytes) {
  hall_.Enter(this);
}

Connection::~Connection() {
  hall_.unsentBytes -= unsent_;
  hall_.Leave(this);
}

void Connection::Start() {
  asio::dispatch(stream_.get_executor(), [self = shared_from_this()] {
    Error ignored;
    self->stream_.socket().set_option(Tcp::no_delay(true), ignored);
    self->AwaitRequest();
  });
}

void Connection::TurnAway() {
  asio::dispatch(stream_.get_executor(), [self = shared_from_this()] { self->Refuse(503); });
}

bool Connection::HasInput() {
  Error error;
  return buffer_.size() > 0 || stream_.socket().available(error) > 0;
}

void Connection::EndIfIdle() {
  asio::post(stream_.get_executor(), [weak = weak_from_this()] {
    const auto self = weak.lock();
    if (self && self->idle_ && !self->HasInput()) self->stream_.cancel();
  });
}

void Connection::AwaitRequest() {
  if (hall_.IsClosing() && !HasInput()) return;
  scan_ = {};
  parser_.reset();
  if (buffer_.size() > 0) {
    stream_.expires_after(hall_.serving.requestTime);
    return OnRead({}, 0);
  }
  buffer_.shrink_to_fit();
  idle_ = true;
  stream_.expires_after(hall_.serving.idleTime);
  Read();
}

void Connection::Read() {
  const std::size_t room = beast::read_size(buffer_, hall_.serving.headerBytes);
  if (room == 0) return Refuse(scan_.HasLine() ? 431 : 414);
  stream_.async_read_some(
      buffer_.prepare(room),
      [self = shared_from_this()](const Error& error, std::size_t count) { self->OnRead(error, count); });
}

void Connection::OnRead(const Error& error, std::size_t count) {
  if (error) return;
  buffer_.commit(count);
  // The time of the whole request begins with its first byte.
  if (std::exchange(idle_, false)) stream_.expires_after(hall_.serving.requestTime);
  switch (scan_.Read({static_cast<const char*>(buffer_.data().data()), buffer_.size()})) {
    case HeaderState::Unfinished:
      return Read();
    case HeaderState::Wrong:
      return Refuse(400);
    case HeaderState::Complete:
      return OnHeader();
  }
}

void Connection::OnHeader() {
  parser_.emplace();
  parser_->header_limit(static_cast<std::uint32_t>(hall_.serving.headerBytes));
  parser_->body_limit(hall_.serving.bodyBytes);
  Error error;
  const std::size_t used = parser_->put(buffer_.data(), error);
  if (error == http::error::body_limit) return Refuse(413);
  if (error || !parser_->is_header_done() || !IsClear(parser_->get())) return Refuse(400);
  buffer_.consume(used);
  if (parser_->is_done() || !beast::iequals(parser_->get()[http::field::expect], "100-continue")) {
    return ReadBody();
  }
  static constexpr std::string_view kContinue = "HTTP/1.1 100 Continue\r\n\r\n";
  asio::async_write(stream_, asio::buffer(kContinue),
                    [self = shared_from_this()](const Error& failed, std::size_t) {
                      if (!failed) self->ReadBody();
                    });
}

void Connection::ReadBody() {
  if (parser_->is_done()) return OnRequest();
  http::async_read(stream_, buffer_, *parser_, [self = shared_from_this()](const Error& error, std::size_t) {
    if (!error) return self->OnRequest();
    if (error == http::error::body_limit) return self->Refuse(413);
    if (error.category() == make_error_code(http::error::body_limit).category() &&
        error != http::error::partial_message && error != http::error::end_of_stream) {
      self->Refuse(400);
    }
  });
}

void Connection::OnRequest() {
  const auto& message = parser_->get();
  const auto target = ReadTarget(View(message.target()));
  if (!target) return Refuse(400);
  const pages::Request request{View(message.method_string()), target->path, target->query, message.body()};
  isHead_ = request.method == "HEAD";
  const auto start = SteadyClock::now();
  pages::Page page;
  if (request.path == "/healthz" && (isHead_ || request.method == "GET")) {
    page = {.contentType = "text/plain; charset=utf-8", .bytes = "ok\n"};
  } else {
    page = pages::Answer(request, hall_.clock);
  }
  if (hall_.serving.log) {
    // Of a path only what is known to be a page's: all else may be anything that a client has typed.
    const std::string_view path = page.status < 400 ? request.path : "-";
    const auto time = std::chrono::duration_cast<std::chrono::microseconds>(SteadyClock::now() - start);
    line_.append(path).append(" ").append(std::to_string(time.count())).append(" us");
  }
  Send(std::move(page), message.keep_alive() && !hall_.IsClosing());
}

void Connection::Refuse(int status) {
  isHead_ = false;
  line_ = "- 0 us";
  Send(pages::ErrorPage(status), false);
}

void Connection::Send(pages::Page page, bool keepAlive) {
  unsent_ = page.bytes.size();
  if ((hall_.unsentBytes += unsent_) > hall_.serving.unsentBytes && page.status < 400) {
    hall_.unsentBytes -= std::exchange(unsent_, 0);
    return Refuse(503);
  }
  response_ = {static_cast<http::status>(page.status), 11};
  response_.set(http::field::date, UtcText("%a, %d %b %Y %H:%M:%S GMT"));
  response_.set(http::field::content_type,
                beast::string_view(page.contentType.data(), page.contentType.size()));
  for (const auto& [name, value] : pages::Headers()) {
    response_.set(beast::string_view(name.data(), name.size()),
                  beast::string_view(value.data(), value.size()));
  }
  if (!page.allow.empty()) response_.set(http::field::allow, std::string(page.allow));
  if (!page.fileName.empty()) {
    response_.set(http::field::content_disposition,
                  "attachment; filename=\"" + std::string(page.fileName) + "\"");
  }
  response_.content_length(page.bytes.size());
  response_.set(http::field::connection, keepAlive ? "keep-alive" : "close");
  if (!isHead_) response_.body() = std::move(page.bytes);
  stream_.expires_after(hall_.serving.writeTime);
  http::async_write(stream_, response_,
                    [self = shared_from_this()](const Error& error, std::size_t) { self->OnSent(error); });
}

void Connection::OnSent(const Error& error) {
  if (hall_.serving.log) {
    hall_.listeners.answered(UtcText("%Y-%m-%dT%H:%M:%SZ ") + std::to_string(response_.result_int()) + " " +
                             std::to_string(response_.body().size()) + " " + std::exchange(line_, {}));
  }
  const bool keepAlive = response_.keep_alive();
  response_ = {};
  hall_.unsentBytes -= std::exchange(unsent_, 0);
  if (error) return;
  keepAlive ? AwaitRequest() : SayFarewell();
}

// To close a connection on which bytes are waiting would take the answer away from the client.
void Connection::SayFarewell() {
  Error ignored;
  stream_.socket().shutdown(Tcp::socket::shutdown_send, ignored);
  buffer_.clear();
  stream_.expires_after(kFarewell);
  ReadOut();
}

void Connection::ReadOut() {
  stream_.async_read_some(buffer_.prepare(buffer_.max_size()),
                          [self = shared_from_this()](const Error& error, std::size_t) {
                            if (!error) self->ReadOut();
                          });
}

}  // namespace

void StartConnection(Hall& hall, Socket&& socket) {
  std::make_shared<Connection>(hall, std::move(socket))->Start();
}

void TurnAway(Hall& hall, Socket&& socket) {
  std::make_shared<Connection>(hall, std::move(socket))->TurnAway();
}

}  // namespace amortix2::web
