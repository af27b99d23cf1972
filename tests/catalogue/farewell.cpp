// A static object renders by identifier when it is destroyed, though it is older than the message
// library.

#include "ProgramTexts.h"
#include "msglib/MessageFormatStream.h"

#include <iostream>

namespace {

class Farewell {
public:
    constexpr Farewell() = default;
    ~Farewell() {
        std::cout << (zem::msglib::MessageFormatStream(MSG_VALUE) << "goodbye").toString();
    }
};

const Farewell farewell;

} // namespace

int main() {
    registerProgramTexts();
}
