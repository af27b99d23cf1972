#pragma once

#include <cstdint>
#include <deque>
#include <string>

namespace zem::msglib {

/// Stands in for the platform's pictures of date and time, in programs that link FakePictures.cpp.
///
/// The object made last is in force.
struct FakePictures {
    struct Answer {
        int result;           ///< what the operation returns
        std::string bytes;    ///< what it writes
        std::uint32_t reason; ///< the last error that it leaves, 122 or 87, if not 0
    };

    explicit FakePictures(std::deque<Answer> inTurn);

    std::deque<Answer> answers;

    /// Operation, picture and size of each call, as in "Dyy:64 Th:64"; "?" for one that has no
    /// answer.
    std::string calls;
};

} // namespace zem::msglib
