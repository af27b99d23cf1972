#pragma once

#include <chrono>
#include <cstddef>
#include <iosfwd>
#include <string>

namespace zem::msglib::tool {

/// Shows on a terminal how far a long work is, from half a second on: `checking 1200 of 20000`. The
/// line is taken away at the end of the object.
class Progress {
public:
    using Clock = std::chrono::steady_clock;

    /// Shows it on standard error, if that is a terminal.
    ///
    /// @param doing       what is done, as in `checking`
    /// @param total       the number of steps
    /// @param isPrinting  whether the work also prints; if that goes to a terminal, nothing else is
    ///                    shown
    Progress(std::string doing, std::size_t total, bool isPrinting = false);

    /// @param out  where to show it; null for nowhere
    /// @param now  tells the time
    Progress(std::string doing, std::size_t total, std::ostream* out, Clock::time_point (*now)());

    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress();

    /// Counts one step.
    void step();

private:
    void show();

    std::string doing_;
    std::size_t total_;
    std::ostream* out_;
    Clock::time_point (*now_)();
    Clock::time_point next_; ///< when to show it again
    std::size_t done_ = 0;
    std::size_t width_ = 0; ///< of what is shown
};

} // namespace zem::msglib::tool
