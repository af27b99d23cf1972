#pragma once

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace zem::msglib::tool {

/// Files that are written together: all of them completely, or none if one cannot be written.
///
/// A file that already has the same bytes is not touched, so its dependents are not built again.
class OutputFiles {
public:
    /// @param folder  created if it does not exist
    explicit OutputFiles(std::filesystem::path folder);

    /// Adds a file.
    ///
    /// @param name  in UTF-8, without a folder
    void add(const std::string& name, std::string bytes);

    /// Writes all files: first beside their places, then each to its place at once.
    ///
    /// @throws CannotRun if one cannot be written; files written beside their places are removed
    void write() const;

private:
    std::filesystem::path folder_;
    std::vector<std::pair<std::filesystem::path, std::string>> files_;
};

} // namespace zem::msglib::tool
