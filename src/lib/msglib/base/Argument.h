#pragma once

#include "base/Binary64.h"
#include "base/Failure.h"

#include <geom/Angle.h>

#include <boost/any.hpp>

#include <cstdint>
#include <limits>
#include <string>

namespace zem::msglib {

/// The exact type that an argument holds, among those that formatters accept.
enum class ArgumentKind : std::uint8_t {
    Text,
    Short,
    Int,
    Long,
    LongLong,
    UnsignedShort,
    UnsignedInt,
    UnsignedLong,
    UnsignedLongLong,
    Bool,
    Float,
    Double,
    Angle,
    Other,
};

/// Returns the kind of `argument`, which is `Other` for an empty `any`.
ArgumentKind kindOf(const boost::any& argument) noexcept;

/// What visitors are called with for an argument of the kind `Other`.
struct UnknownKind {};

/// Returns `value` if it fits into 32 bits, the width of `long` in this library.
///
/// @throws std::out_of_range if it doesn't
template <class Long>
Long checkedLong(Long value) {
    if constexpr (sizeof(Long) > sizeof(std::int32_t)) {
        constexpr bool isSigned = std::numeric_limits<Long>::is_signed;
        constexpr Long least = isSigned ? static_cast<Long>(INT32_MIN) : 0;
        constexpr Long most =
            isSigned ? static_cast<Long>(INT32_MAX) : static_cast<Long>(UINT32_MAX);
        if (value < least || value > most) {
            raise(Failure::LongOutOfRange);
        }
    }
    return value;
}

/// Returns the value that `argument` holds, of the type that `kindOf` has found.
template <class Value>
const Value& heldValue(const boost::any& argument) noexcept {
    return *boost::unsafe_any_cast<Value>(&argument);
}

/// Calls `visitor` with the value that `argument` holds, in its exact type, or with `UnknownKind`.
///
/// @throws std::out_of_range for a `long` or `unsigned long` outside its 32-bit range
template <class Visitor>
auto visitArgument(const boost::any& argument, Visitor&& visitor) {
    switch (kindOf(argument)) {
    case ArgumentKind::Text: return visitor(heldValue<std::string>(argument));
    case ArgumentKind::Short: return visitor(heldValue<short>(argument));
    case ArgumentKind::Int: return visitor(heldValue<int>(argument));
    case ArgumentKind::Long: return visitor(checkedLong(heldValue<long>(argument)));
    case ArgumentKind::LongLong: return visitor(heldValue<long long>(argument));
    case ArgumentKind::UnsignedShort: return visitor(heldValue<unsigned short>(argument));
    case ArgumentKind::UnsignedInt: return visitor(heldValue<unsigned int>(argument));
    case ArgumentKind::UnsignedLong:
        return visitor(checkedLong(heldValue<unsigned long>(argument)));
    case ArgumentKind::UnsignedLongLong: return visitor(heldValue<unsigned long long>(argument));
    case ArgumentKind::Bool: return visitor(heldValue<bool>(argument));
    case ArgumentKind::Float: return visitor(heldValue<float>(argument));
    case ArgumentKind::Double: return visitor(heldValue<double>(argument));
    case ArgumentKind::Angle: return visitor(heldValue<geom::Angle>(argument));
    case ArgumentKind::Other: break;
    }
    return visitor(UnknownKind());
}

} // namespace zem::msglib
