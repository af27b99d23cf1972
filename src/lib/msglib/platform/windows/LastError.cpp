#include "platform/LastError.h"

// The system's header comes last: it defines macros with the names of our constants.
#include <windows.h>

namespace zem::msglib::platform {

std::uint32_t GetLastError() noexcept {
    return ::GetLastError();
}

} // namespace zem::msglib::platform
