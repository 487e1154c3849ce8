#pragma once

// A connection of a client: requests come, pages go, within the limits of time and size that were given. What
// is wrong with a request is answered, the connection then closed in a way that leaves the answer readable.

#include <atomic>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/strand.hpp>
#include <cstddef>
#include <mutex>
#include <unordered_set>

#include "amortix2/automation/date.h"
#include "amortix2/common/serving.h"
#include "amortix2/web/server.h"

namespace amortix2::web {

using Tcp = boost::asio::ip::tcp;
using Strand = boost::asio::strand<boost::asio::io_context::executor_type>;
using Socket = boost::asio::basic_stream_socket<Tcp, Strand>;

/// Who is in the hall.
class Guest {
 public:
  Guest() = default;
  Guest(const Guest&) = delete;
  Guest& operator=(const Guest&) = delete;
  virtual ~Guest() = default;

  /// From any thread: goes if nothing has come that wants an answer.
  virtual void EndIfIdle() = 0;
};

/// All connections, and what they share.
class Hall {
 public:
  Hall(const Serving& given, const Clock& today, const Listeners& heard)
      : serving(given), clock(today), listeners(heard) {}

  const Serving& serving;
  const Clock& clock;
  const Listeners& listeners;
  std::atomic<std::size_t> unsentBytes = 0;

  void Enter(Guest* guest) {
    const std::scoped_lock lock(mutex_);
    guests_.insert(guest);
  }
  void Leave(Guest* guest) {
    const std::scoped_lock lock(mutex_);
    guests_.erase(guest);
  }
  std::size_t Count() {
    const std::scoped_lock lock(mutex_);
    return guests_.size();
  }
  bool IsClosing() const { return closing_; }
  void Close() {
    closing_ = true;
    const std::scoped_lock lock(mutex_);
    for (Guest* guest : guests_) guest->EndIfIdle();
  }

 private:
  std::atomic<bool> closing_ = false;
  std::mutex mutex_;
  std::unordered_set<Guest*> guests_;
};

/// Answers a client's requests until either side has enough. The hall must outlive the socket's context.
void StartConnection(Hall& hall, Socket&& socket);

/// Tells a client that there is no room.
void TurnAway(Hall& hall, Socket&& socket);

}  // namespace amortix2::web
