#include "support/Rendering.h"

#include <cstdlib>
#include <string_view>

namespace zem::msglib {
namespace {

/// Makes a locale global that writes 1.234,5, if MSGLIB_TEST_LOCALE is "hostile".
class HostileEnvironment : public testing::Environment {
    void SetUp() override {
        const char* wanted = std::getenv("MSGLIB_TEST_LOCALE");
        if (wanted != nullptr && wanted == std::string_view("hostile")) {
            std::locale::global(std::locale(std::locale::classic(), new CommaForms));
        }
    }
};

// Owned by the test framework.
const testing::Environment* const environment =
    testing::AddGlobalTestEnvironment(new HostileEnvironment);

} // namespace
} // namespace zem::msglib
