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

/// Tells whether two texts agree but for the case of ASCII letters.
bool equalInAnyCase(std::string_view one, std::string_view other) noexcept;

/// Tells whether a text has the form of a name in C++, of ASCII characters.
bool isIdentifier(std::string_view text);

/// Returns the candidate that a wrong word is probably meant to be: the one that the fewest
/// insertions, deletions and replacements of characters lead to, in any case. None if that takes
/// more than one for each three characters of the word.
std::optional<std::string_view> nearest(std::string_view word,
                                        const std::vector<std::string_view>& candidates);

/// The names of one kind that a message text file declares, such as facilities, and their numbers.
/// They are found in any case.
class DeclaredNames {
public:
    struct Entry {
        std::string name; ///< as it is declared
        std::uint32_t number;
    };

    DeclaredNames(std::initializer_list<Entry> predefined);

    /// Adds a name, or gives one that is there a new number.
    void declare(std::string_view name, std::uint32_t number);

    /// Returns the entry of a name; null if there is none. It stays valid until the next call of
    /// `declare`.
    const Entry* find(std::string_view name) const;

    /// Returns the declared name that a wrong one is probably meant to be. There is none among very
    /// many names.
    std::optional<std::string_view> nearestTo(std::string_view name) const;

private:
    std::map<std::string, Entry> entries_; ///< by the name in lower case
};

} // namespace zem::msglib::tool
