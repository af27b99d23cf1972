#include "Greetings.h"

#include <msglib/MessageFormatStream.h>

#include <iostream>

int main() {
    using zem::msglib::MessageFormatStream;
    registerGreetings();
    std::cout << (MessageFormatStream(MSG_GOOD_MORNING) << "world").toString();
}
