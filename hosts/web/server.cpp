#include "amortix2/web/server.h"

#include <sys/socket.h>

#include <algorithm>
#include <boost/asio/basic_signal_set.hpp>
#include <boost/asio/basic_socket_acceptor.hpp>
#include <boost/asio/basic_waitable_timer.hpp>
#include <boost/asio/dispatch.hpp>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <csignal>
#include <string>
#include <string_view>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "amortix2/json/request_error.h"
#include "amortix2/pages/site.h"
#include "amortix2/web/connection.h"
#include "amortix2/web/process.h"

namespace amortix2::web {
namespace {

namespace asio = boost::asio;
using Error = boost::system::error_code;
using Acceptor = asio::basic_socket_acceptor<Tcp, Strand>;
using SteadyClock = std::chrono::steady_clock;

/// Connections above the limit that are told so at a time.
constexpr std::size_t kTurnedAway = 128;

Tcp::endpoint EndpointOf(const std::string& listen) {
  const std::size_t colon = listen.rfind(':');
  std::string host = listen.substr(0, colon);
  if (host.starts_with('[') && host.ends_with(']')) host = host.substr(1, host.size() - 2);
  const std::string_view digits =
      colon == std::string::npos ? std::string_view() : std::string_view(listen).substr(colon + 1);
  std::uint16_t port = 0;
  const auto [end, fault] = std::from_chars(digits.data(), digits.data() + digits.size(), port);
  Error error;
  const auto address = asio::ip::make_address(host, error);
  if (error || digits.empty() || fault != std::errc() || end != digits.data() + digits.size()) {
    throw json::RequestError("--listen: " + json::Quoted(listen) +
                             " is no address and port (127.0.0.1:8080, [::1]:8080)");
  }
  return {address, port};
}

unsigned ThreadCount(const Serving& serving) {
  return serving.threads > 0 ? serving.threads : std::max(1U, std::thread::hardware_concurrency());
}

class Server {
 public:
  Server(const Serving& serving, const Clock& clock, const Listeners& listeners)
      : connections_(RaiseFileLimit(serving.connections, kTurnedAway)),
        hall_(serving, clock, listeners),
        context_(static_cast<int>(ThreadCount(serving))),
        strand_(asio::make_strand(context_)),
        acceptor_(strand_),
        pause_(strand_),
        signals_(strand_, SIGINT, SIGTERM) {
    Listen(EndpointOf(serving.listen));
  }

  void Run() {
    // Made at the first request and kept: without memory its trees could not even end, so make it now.
    pages::Answer({"GET", "/openapi.json"}, hall_.clock);
    const Tcp::endpoint endpoint = acceptor_.local_endpoint();
    const std::string address = endpoint.address().to_string();
    hall_.listeners.listening("http://" + (endpoint.address().is_v6() ? "[" + address + "]" : address) + ":" +
                              std::to_string(endpoint.port()) + "/");
    signals_.async_wait([this](const Error& error, int) {
      if (!error) Stop();
    });
    asio::dispatch(strand_, [this] { Accept(); });
    std::vector<std::jthread> threads;
    for (unsigned i = 1; i < ThreadCount(hall_.serving); ++i) threads.emplace_back([this] { Work(); });
    Work();
  }

 private:
  void Listen(const Tcp::endpoint& endpoint) {
    const auto raise = [&](int error) {
      throw std::system_error(error, std::generic_category(), "cannot listen on " + hall_.serving.listen);
    };
    try {
      acceptor_.open(endpoint.protocol());
      acceptor_.set_option(Acceptor::reuse_address(true));
      const int on = 1;
      if (setsockopt(acceptor_.native_handle(), SOL_SOCKET, SO_REUSEPORT, &on, sizeof on) != 0) raise(errno);
      acceptor_.bind(endpoint);
      acceptor_.listen();
      acceptor_.non_blocking(true);
    } catch (const boost::system::system_error& error) {
      raise(error.code().value());
    }
  }

  /// What fails for want of memory ends the connection that it happened to, and nothing else.
  void Work() noexcept {
    for (bool isDone = false; !isDone;) {
      try {
        context_.run();
        isDone = true;
      } catch (...) {  // the handler's connection is gone with it
      }
    }
  }

  void Accept() {
    acceptor_.async_accept(asio::make_strand(context_), [this](const Error& error, Socket socket) {
      if (!hall_.IsClosing()) error ? AcceptLater() : Accept();
      if (!error) Welcome(std::move(socket));
    });
  }

  /// Out of file descriptors or memory: some come free as connections end.
  void AcceptLater() {
    pause_.expires_after(std::chrono::milliseconds(50));
    pause_.async_wait([this](const Error& error) {
      if (!error) Accept();
    });
  }

  void Welcome(Socket&& socket) {
    const std::size_t before = hall_.Count();
    if (before >= connections_ + kTurnedAway) return;
    before < connections_ ? StartConnection(hall_, std::move(socket)) : TurnAway(hall_, std::move(socket));
  }

  void Stop() {
    signals_.clear();  // the next one does what it does to any program
    pause_.cancel();
    Error error;
    for (;;) {  // those that have come already
      Socket socket = acceptor_.accept(asio::make_strand(context_), error);
      if (error) break;
      Welcome(std::move(socket));
    }
    acceptor_.close(error);
    hall_.Close();
  }

  const std::size_t connections_;
  Hall hall_;  // outlives the connections, which the context's last handlers may hold
  asio::io_context context_;
  Strand strand_;
  Acceptor acceptor_;
  asio::basic_waitable_timer<SteadyClock, asio::wait_traits<SteadyClock>, Strand> pause_;
  asio::basic_signal_set<Strand> signals_;
};

}  // namespace

void Serve(const Serving& serving, const Clock& clock, const Listeners& listeners) {
  Server(serving, clock, listeners).Run();
}

}  // namespace amortix2::web
