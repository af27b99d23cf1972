#include "tool/text/Progress.h"

#include "tool/text/Terminal.h"

#include <cstdio>
#include <iostream>
#include <utility>

namespace zem::msglib::tool {

namespace {

constexpr std::chrono::milliseconds patience(500);
constexpr std::chrono::milliseconds interval(100);

} // namespace

Progress::Progress(std::string doing, std::size_t total, bool isPrinting)
    : Progress(std::move(doing), total,
               isTerminal(stderr) && !(isPrinting && isTerminal(stdout)) ? &std::cerr : nullptr,
               &Clock::now) {}

Progress::Progress(std::string doing, std::size_t total, std::ostream* out,
                   Clock::time_point (*now)())
    : doing_(std::move(doing)),
      total_(total),
      out_(out),
      now_(now),
      next_(now() + patience) {}

Progress::~Progress() {
    if (width_ > 0) {
        *out_ << '\r' << std::string(width_, ' ') << '\r' << std::flush;
    }
}

void Progress::step() {
    ++done_;
    if (out_ != nullptr && now_() >= next_) {
        show();
    }
}

void Progress::show() {
    const std::string text = doing_ + ' ' + std::to_string(done_) + " of " + std::to_string(total_);
    *out_ << '\r' << text << std::flush;
    width_ = text.size(); // never shrinks, since the count grows
    next_ = now_() + interval;
}

} // namespace zem::msglib::tool
