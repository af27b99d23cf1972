#pragma once

#include <cstdint>
#include <string_view>

namespace zem::msglib {

/// What the type and style of a placeholder ask for.
enum class PlaceholderStyle : std::uint8_t {
    ByKind, ///< no type, or an unknown one: the argument's kind decides
    Number,
    Integer,
    Currency,
    Percent,
    CustomNumber,
    ShortDate,
    MediumDate,
    LongDate,
    Time,
    CustomDate, ///< of a date or a time
    Choice,
};

/// Compares type and style, as they stand, with the keywords of messages.
PlaceholderStyle placeholderStyle(std::string_view type, std::string_view style) noexcept;

} // namespace zem::msglib
