#pragma once

#include <chrono>
#include <cstddef>
#include <iosfwd>
#include <string>

namespace zem::msglib::tool {

/// Shows the progress of long work on a terminal, after half a second: `checking 1200 of 20000`.
/// The destructor removes the line.
class Progress {
public:
    using Clock = std::chrono::steady_clock;

    /// Shows the progress on standard error, if that is a terminal.
    ///
    /// @param doing       the work, such as `checking`
    /// @param total       the number of steps
    /// @param isPrinting  whether the work also prints; if it prints to a terminal, no progress is
    ///                    shown
    Progress(std::string doing, std::size_t total, bool isPrinting = false);

    /// @param out  where to show the progress; null for nowhere
    /// @param now  returns the time
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
    Clock::time_point next_; ///< the next time to show the progress
    std::size_t done_ = 0;
    std::size_t width_ = 0; ///< of the shown line
};

} // namespace zem::msglib::tool
