#include HEADER

#include <msglib/MessageFormatStream.h>

std::string TEXT() {
    REGISTER();
    return zem::msglib::MessageFormatStream(MSG_PART).toString();
}
