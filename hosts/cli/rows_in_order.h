#pragma once

// Pieces of input worked on by several threads, their answers put out in the order of the pieces. Each thread
// holds one piece at a time, so memory grows with threads alone.

#include <condition_variable>
#include <cstdint>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

#include "amortix2/cli/rows_format.h"

namespace amortix2::cli {

/// A worker is called with a piece, by one thread; `finish` with what that returned, never twice at once.
template <class Worker, class Finish>
class OrderedRun {
 public:
  OrderedRun(PieceReader& input, std::vector<Worker>& workers, const Finish& finish)
      : input_(input), workers_(workers), finish_(finish) {}

  /// Returns at the end of the input. Raises the first error of reading, of a worker or of `finish`; what
  /// comes before it is finished.
  void Run() {
    {
      std::vector<std::jthread> threads;
      for (std::size_t i = 1; i < workers_.size(); ++i) {
        try {
          threads.emplace_back([this, i] { WorkOn(workers_[i]); });
        } catch (const std::system_error&) {  // fewer threads do the same
          break;
        }
      }
      WorkOn(workers_.front());
    }
    if (error_) std::rethrow_exception(error_);
  }

 private:
  void WorkOn(Worker& worker) noexcept {
    std::uint64_t turn = 0;
    try {
      for (Piece piece; Take(piece, turn);) {
        auto done = worker(piece);
        std::unique_lock lock(order_);
        turns_.wait(lock, [&] { return next_ == turn || error_; });
        if (error_) return;
        finish_(done);
        ++next_;
        turns_.notify_all();
      }
    } catch (...) {
      const std::scoped_lock lock(order_);
      if (!error_) error_ = std::current_exception();
      turns_.notify_all();
    }
  }

  bool Take(Piece& piece, std::uint64_t& turn) {
    const std::scoped_lock lock(reading_);
    {
      const std::scoped_lock order(order_);
      if (error_) return false;
    }
    turn = taken_;
    if (!input_.Next(piece)) return false;
    ++taken_;
    return true;
  }

  PieceReader& input_;
  std::vector<Worker>& workers_;
  const Finish& finish_;
  std::mutex reading_;  // guards input_ and taken_
  std::uint64_t taken_ = 0;
  std::mutex order_;  // guards the rest
  std::condition_variable turns_;
  std::uint64_t next_ = 0;
  std::exception_ptr error_;
};

}  // namespace amortix2::cli
