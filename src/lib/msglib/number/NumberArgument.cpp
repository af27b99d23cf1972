#include "number/NumberArgument.h"

#include "base/Argument.h"

#include <type_traits>

namespace zem::msglib {

namespace {

struct ReadNumber {
    template <class Number, class = std::enable_if_t<std::is_arithmetic_v<Number>>>
    double operator()(Number value) const {
        return static_cast<double>(value);
    }
    double operator()(const geom::Angle& value) const {
        return (value.radians() * 180.0) / 3.141592653589793;
    }
    double operator()(const std::string&) const { raise(Failure::NotANumber); }
    double operator()(UnknownKind) const { raise(Failure::NotANumber); }
};

} // namespace

double readNumber(const boost::any& argument) {
    return visitArgument(argument, ReadNumber());
}

} // namespace zem::msglib
