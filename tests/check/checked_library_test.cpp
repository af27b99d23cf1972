// What the check accepts is what the library accepts, on patterns made by the grammar with faults.
// The fuzzer `check` holds the same for every short pattern and for what it grows from its seeds.

#include "support/CheckProperties.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace zem::msglib::tool {
namespace {

/// Makes patterns by the grammar, with a fault here and there.
class PatternMaker {
public:
    std::string message(int depth) {
        std::string pattern = text();
        for (int count = upTo(2); count >= 0; --count) {
            pattern += placeholder(depth) + text();
        }
        return pattern;
    }

private:
    int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(random_); }

    template <std::size_t count>
    std::string oneOf(const char* const (&texts)[count]) {
        return texts[upTo(static_cast<int>(count) - 1)];
    }

    std::string text() {
        return oneOf({"", "a", "b c", "it's d", "it''s", "'{'", "''''", "'x'", "é", "'é ", "%1",
                      "|", "#", "''''''''''", "’", "}", "{"}) +
               oneOf({"", "", "x y"});
    }

    std::string placeholder(int depth) {
        const std::string index = oneOf({"0", "1", "2", " 3", "0]", "-1", "x"});
        if (depth == 0 || upTo(2) == 0) {
            return "{" + index +
                   oneOf({"", ",number", ",Number", ",number,0.0", ",number,0 ä", ",number,0 E",
                          ",number,0%%", ",date,d 'a", ",choice", ",time,h'h'mm", ",{"}) +
                   oneOf({"}", "}", "}", "}", "}}", ""});
        }
        std::string choice = "{" + index + ",choice,";
        for (int count = upTo(2); count >= 0; --count) {
            choice += oneOf({"0#", "1<", "-1#", "2+", "x#", "1e+3#", "|", "0"}) +
                      message(depth - 1) + (count > 0 ? "|" : "");
        }
        return choice + "}";
    }

    std::mt19937 random_{20031};
};

TEST(CheckedLibrary, GeneratedPatterns) {
    PatternMaker maker;
    for (int count = 0; count < 20000; ++count) {
        const std::string pattern = maker.message(count % 4);
        ASSERT_EQ(checkViolation(pattern), "") << pattern;
    }
}

} // namespace
} // namespace zem::msglib::tool
