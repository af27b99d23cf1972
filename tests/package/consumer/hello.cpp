#include <msglib/MessageFormatStream.h>

#include <iostream>

int main() {
    using zem::msglib::MessageFormatStream;
    std::cout << (MessageFormatStream("Hello, {0}!") << "world").toString() << '\n';
}
