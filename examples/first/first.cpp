#include <msglib/MessageFormatStream.h>

#include <iostream>

int main() {
    using zem::msglib::MessageFormatStream;

    const char* copied = "{0,choice,0#Nothing was|1#One file was|1<{0} files were} copied to {1}.";
    for (const int files : {0, 1, 1234}) {
        std::cout << (MessageFormatStream(copied) << files << "Büro").toString() << '\n';
    }
    const char* paid = "{0,number,currency} paid on {1,date,long}, {2,number,percent} of the sum.";
    std::cout << (MessageFormatStream(paid) << 1250.5 << 1000000000 << 0.4).toString() << '\n';
}
