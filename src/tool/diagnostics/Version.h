#pragma once

#include <msglib/Version.h>

#include <string>

namespace zem::msglib::tool {

/// Returns the version of library and tool, such as 1.2.3.
inline std::string versionText() {
    return std::to_string(MSGLIB_VERSION_MAJOR) + '.' + std::to_string(MSGLIB_VERSION_MINOR) + '.' +
           std::to_string(MSGLIB_VERSION_PATCH);
}

} // namespace zem::msglib::tool
