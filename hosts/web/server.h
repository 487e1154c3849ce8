#pragma once

// The site behind an address: HTTP/1.1 requests in, pages out. Made to be met by strangers: every request,
// answer and wait has its limit, and the next client is served whatever the last one sent. It keeps nothing
// from one request to the next, opens no file, and may share its port with other processes of its kind.

#include <functional>
#include <string>

#include "amortix2/automation/date.h"
#include "amortix2/common/serving.h"

namespace amortix2::web {

/// What the server has to say. Both may be called by any thread, and must not throw once it listens.
struct Listeners {
  std::function<void(const std::string& address)> listening;  ///< "http://127.0.0.1:8080/", once
  std::function<void(const std::string& line)> answered;      ///< with Serving::log, of each answer
};

/// Serves until SIGINT or SIGTERM: then takes no more connections, ends those that wait, finishes every
/// answer that was begun, and returns; a second signal ends the process at once. Raises json::RequestError
/// when `serving.listen` is no address and port, std::system_error when it cannot be had.
void Serve(const Serving& serving, const Clock& clock, const Listeners& listeners);

}  // namespace amortix2::web
