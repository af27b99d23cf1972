#pragma once

#include "base/LocaleValue.h"
#include "msglib/DateFormat.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace zem::msglib {

/// A date or time pattern from the platform's locale values. It is empty if the platform lacks the
/// value.
class LocaleDatePattern {
public:
    /// Queries the pattern of dates in `style`. It is empty for a value outside the enumeration.
    explicit LocaleDatePattern(DateFormat::Style style) noexcept;

    /// Queries the pattern of the time of day.
    static LocaleDatePattern time() noexcept;

    /// Returns the pattern, which is valid as long as this object.
    std::string_view text() const noexcept { return value_ ? value_->text() : fixed_; }

private:
    explicit LocaleDatePattern(std::uint32_t lctype) noexcept : value_(lctype) {}

    std::optional<LocaleDateValue> value_;
    std::string_view fixed_;
};

} // namespace zem::msglib
