#pragma once

#include <stdexcept>

namespace zem::msglib::tool {

/// What keeps the program from doing its work at all: a wrong command line, a file that cannot be
/// read or written. Its words say everything; the program ends with status 2.
class CannotRun : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace zem::msglib::tool
