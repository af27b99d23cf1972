#pragma once

#include <string>

/// A plug-in that stays loaded, since its messages may be rendered at any later time.
class PlugIn {
public:
    /// Opens the plug-in `name`, which is in the program's folder.
    ///
    /// @throws std::runtime_error if it can't be opened
    explicit PlugIn(const std::string& name);

    /// Returns the function `name` of the plug-in.
    ///
    /// @throws std::runtime_error if there is none
    template <class Function>
    Function* function(const char* name) const {
        return reinterpret_cast<Function*>(address(name));
    }

private:
    void* address(const char* name) const;

    void* handle_;
};
