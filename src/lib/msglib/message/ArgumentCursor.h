#pragma once

#include "base/Failure.h"

#include <boost/any.hpp>

#include <cstddef>
#include <iterator>
#include <list>

namespace zem::msglib {

/// Finds arguments by their index. It remembers where the last one was, so that arguments in order
/// cost one step each. It borrows the list.
class ArgumentCursor {
public:
    explicit ArgumentCursor(const std::list<boost::any>& args) noexcept
        : args_(args),
          argument_(args.begin()) {}

    /// Returns the argument with `index`, counted from 0.
    ///
    /// @throws std::runtime_error "Argument index in format exceeds number of specified arguments"
    const boost::any& at(int index) {
        if (index < 0 || static_cast<std::size_t>(index) >= args_.size()) {
            raise(Failure::ArgumentIndexTooHigh);
        }
        if (index < position_ / 2) {
            argument_ = args_.begin();
            position_ = 0;
        }
        std::advance(argument_, index - position_);
        position_ = index;
        return *argument_;
    }

private:
    const std::list<boost::any>& args_;
    std::list<boost::any>::const_iterator argument_;
    int position_ = 0; // of argument_ in args_
};

} // namespace zem::msglib
