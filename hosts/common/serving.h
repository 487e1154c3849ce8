#pragma once

// How the page server runs and what it grants a client: settings that a person makes on the command line and
// the server keeps to.

#include <chrono>
#include <cstddef>
#include <string>

namespace amortix2 {

struct Serving {
  std::string listen = "127.0.0.1:8080";  ///< a numeric address and a port; port 0: any that is free
  unsigned threads = 0;                   ///< 0: one for each processor
  std::size_t headerBytes = 8192;         ///< of a request's line and header
  std::size_t bodyBytes = 65536;          ///< of a request's body
  std::chrono::seconds requestTime{10};   ///< from a request's first byte to its last
  std::chrono::seconds writeTime{60};     ///< for an answer to be taken
  std::chrono::seconds idleTime{75};      ///< between requests, and before the first
  std::size_t connections = 16384;        ///< at a time
  std::size_t unsentBytes = 256U << 20;   ///< of all answers that wait for their clients to take them
  bool log = false;                       ///< a line for each answer
};

}  // namespace amortix2
