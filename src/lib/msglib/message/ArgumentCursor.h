#pragma once

#include "base/Failure.h"

#include <boost/any.hpp>

#include <cstddef>
#include <list>

namespace zem::msglib {

/// Finds arguments by their index. It remembers the last position, so that arguments in order take
/// one step each. It borrows the list.
class ArgumentCursor {
public:
    explicit ArgumentCursor(const std::list<boost::any>& args) noexcept
        : args_(args),
          argument_(args.begin()) {}

    /// Returns the whole list.
    const std::list<boost::any>& list() const noexcept { return args_; }

    /// Returns the argument with `index`, which counts from 0. Takes as many steps through the list
    /// as `index` is away from the last one, or from 0 if that is closer.
    ///
    /// @throws std::runtime_error "Argument index in format exceeds number of specified arguments"
    const boost::any& at(int index) {
        const auto wanted = static_cast<std::size_t>(index);
        if (index < 0 || wanted >= args_.size()) {
            raise(Failure::ArgumentIndexTooHigh);
        }
        if (wanted < position_ / 2) {
            argument_ = args_.begin();
            position_ = 0;
        }
        for (; position_ < wanted; ++position_) {
            ++argument_;
        }
        for (; position_ > wanted; --position_) {
            --argument_;
        }
        return *argument_;
    }

private:
    const std::list<boost::any>& args_;
    std::list<boost::any>::const_iterator argument_;
    std::size_t position_ = 0; // of argument_ in args_
};

} // namespace zem::msglib
