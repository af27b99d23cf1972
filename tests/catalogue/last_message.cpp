// Renders by identifier in the destructor of a static object that was made before the message
// library: the last that a program can ask of it.

#include "ProgramTexts.h"

#include <msglib/MessageFormatStream.h>

#include <cstdio>

namespace {

struct LastMessage {
    ~LastMessage() {
        std::puts((zem::msglib::MessageFormatStream(MSG_VALUE) << 7).toString().c_str());
    }
};

const LastMessage lastMessage;

} // namespace

int main() {
    registerProgramTexts();
}
