#include <gtest/gtest.h>

#include <cstdlib>
#include <locale>
#include <string>
#include <string_view>

namespace zem::msglib {
namespace {

class CommaDecimal : public std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\2"; }
};

/// Puts a locale in force that writes 1.234,5 if MSGLIB_TEST_LOCALE is "hostile".
class HostileEnvironment : public testing::Environment {
    void SetUp() override {
        const char* wanted = std::getenv("MSGLIB_TEST_LOCALE");
        if (wanted != nullptr && wanted == std::string_view("hostile")) {
            std::locale::global(std::locale(std::locale::classic(), new CommaDecimal));
        }
    }
};

// The test framework owns it.
const testing::Environment* const environment =
    testing::AddGlobalTestEnvironment(new HostileEnvironment);

} // namespace
} // namespace zem::msglib
