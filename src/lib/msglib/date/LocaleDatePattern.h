#pragma once

#include "base/LocaleValue.h"
#include "msglib/DateFormat.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace zem::msglib {

/// A date or time pattern by the platform's locale values. A value that the platform doesn't have
/// is the empty pattern.
class LocaleDatePattern {
public:
    /// Asks for the pattern of dates in `style`, which is empty for a value outside the
    /// enumeration.
    explicit LocaleDatePattern(DateFormat::Style style) noexcept;

    /// Asks for the pattern of the time of day.
    static LocaleDatePattern time() noexcept;

    /// Returns the pattern, which lives as long as this object.
    std::string_view text() const noexcept { return value_ ? value_->text() : fixed_; }

private:
    explicit LocaleDatePattern(std::uint32_t lctype) noexcept : value_(lctype) {}

    std::optional<LocaleDateValue> value_;
    std::string_view fixed_;
};

} // namespace zem::msglib
