#include "PlugIn.h"

#include <stdexcept>

#if defined(_WIN32)
#include <windows.h>

PlugIn::PlugIn(const std::string& name) : handle_(LoadLibraryA((name + PLUG_IN_SUFFIX).c_str())) {
    if (handle_ == nullptr) {
        throw std::runtime_error("no plug-in " + name);
    }
}

void* PlugIn::address(const char* name) const {
    const auto found = GetProcAddress(static_cast<HMODULE>(handle_), name);
    if (found == nullptr) {
        throw std::runtime_error(std::string("no function ") + name);
    }
    return reinterpret_cast<void*>(found);
}
#else
#include <dlfcn.h>

#include <filesystem>

namespace {

std::string besideProgram(const std::string& file) {
    return std::filesystem::read_symlink("/proc/self/exe").replace_filename(file);
}

} // namespace

PlugIn::PlugIn(const std::string& name)
    : handle_(dlopen(besideProgram(name + PLUG_IN_SUFFIX).c_str(), RTLD_NOW | RTLD_LOCAL)) {
    if (handle_ == nullptr) {
        throw std::runtime_error(dlerror());
    }
}

void* PlugIn::address(const char* name) const {
    void* found = dlsym(handle_, name);
    if (found == nullptr) {
        throw std::runtime_error(dlerror());
    }
    return found;
}
#endif
