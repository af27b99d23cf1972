#pragma once

#include <stdexcept>

namespace zem::msglib::tool {

/// Thrown if the program cannot do its work: because of a wrong command line, or of a file that
/// cannot be read or written. The program prints the message and ends with status 2.
class CannotRun : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace zem::msglib::tool
