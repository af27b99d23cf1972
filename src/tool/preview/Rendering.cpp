#include "tool/preview/Rendering.h"

#include "base/Failure.h"
#include "message/MessageRenderer.h"

#include <boost/any.hpp>

#include <list>
#include <stdexcept>

namespace zem::msglib::tool {

Rendering render(std::string_view pattern, const std::vector<WrittenArgument>& arguments) {
    std::list<boost::any> values;
    for (const WrittenArgument& argument : arguments) {
        values.push_back(argument.value);
    }
    try {
        return {renderPattern(pattern, values), false};
    } catch (const std::runtime_error& failure) {
        return {failure.what(), true};
    }
}

Rendering renderMissing() {
    try {
        raise(Failure::InvalidMessageId);
    } catch (const std::runtime_error& failure) {
        return {failure.what(), true};
    }
}

} // namespace zem::msglib::tool
