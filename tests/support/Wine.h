#pragma once

#define BOOST_DLL_USE_STD_FS
#include <boost/dll/shared_library.hpp>

namespace zem::msglib {

/// Returns whether this program runs under Wine, where some operations differ from the
/// documentation of the operating system.
inline bool runsUnderWine() {
    std::error_code error;
    const boost::dll::shared_library system("ntdll.dll", error,
                                            boost::dll::load_mode::search_system_folders);
    return system.is_loaded() && system.has("wine_get_version");
}

} // namespace zem::msglib
