#include "base/Argument.h"

#include <cstring>
#include <typeinfo>

namespace zem::msglib {

namespace {

struct KindOfType {
    const std::type_info* type;
    ArgumentKind kind;
};

const KindOfType kindsOfTypes[] = {
    {&typeid(std::string), ArgumentKind::Text},
    {&typeid(int), ArgumentKind::Int},
    {&typeid(double), ArgumentKind::Double},
    {&typeid(unsigned int), ArgumentKind::UnsignedInt},
    {&typeid(long long), ArgumentKind::LongLong},
    {&typeid(unsigned long long), ArgumentKind::UnsignedLongLong},
    {&typeid(long), ArgumentKind::Long},
    {&typeid(unsigned long), ArgumentKind::UnsignedLong},
    {&typeid(short), ArgumentKind::Short},
    {&typeid(unsigned short), ArgumentKind::UnsignedShort},
    {&typeid(bool), ArgumentKind::Bool},
    {&typeid(float), ArgumentKind::Float},
    {&typeid(geom::Angle), ArgumentKind::Angle},
};

} // namespace

ArgumentKind kindOf(const boost::any& argument) noexcept {
    const std::type_info& held = argument.type();
    for (const KindOfType& row : kindsOfTypes) {
        if (&held == row.type) {
            return row.kind;
        }
    }
    // Another module may have its own `type_info` object for the same type, and clang's standard
    // library compares nothing but addresses.
    for (const KindOfType& row : kindsOfTypes) {
        if (held == *row.type || std::strcmp(held.name(), row.type->name()) == 0) {
            return row.kind;
        }
    }
    return ArgumentKind::Other;
}

} // namespace zem::msglib
