#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zem::msglib::tool {

/// Returns ASCII letters in lower case and everything else as it is.
std::string lowerCase(std::string_view text);

/// Returns whether two texts are equal except for the case of ASCII letters.
bool equalInAnyCase(std::string_view one, std::string_view other) noexcept;

/// Returns whether a text is an identifier of C++ in ASCII characters; keywords are too.
bool isIdentifier(std::string_view text);

/// Returns the candidate that was probably meant by a wrong word: the one with the fewest
/// insertions, deletions and replacements of characters, ignoring case. Returns nothing if more
/// than one is needed for each three characters of the word.
std::optional<std::string_view> nearest(std::string_view word,
                                        const std::vector<std::string_view>& candidates);

/// The names of one kind that a message text file declares, such as facilities, and their numbers.
/// They are found regardless of case.
class DeclaredNames {
public:
    struct Entry {
        std::string name; ///< as it is declared
        std::uint32_t number;
    };

    DeclaredNames(std::initializer_list<Entry> predefined);

    /// Adds a name, or changes the number of an existing one.
    void declare(std::string_view name, std::uint32_t number);

    /// Returns the entry of a name; null if there is none. The pointer is valid until the next call
    /// of `declare`.
    const Entry* find(std::string_view name) const;

    /// Returns the declared name that was probably meant by a wrong one. Returns nothing if very
    /// many names are declared.
    std::optional<std::string_view> nearestTo(std::string_view name) const;

private:
    std::map<std::string, Entry> entries_; ///< by the name in lower case
};

} // namespace zem::msglib::tool
