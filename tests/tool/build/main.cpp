#include "Größe und Gewicht.h"
#include "generated.h"
#include "lateCalls.h"
#include "messages.h"

#include <msglib/MessageFormatStream.h>

#include <iostream>

std::string textOfArchive();
std::string textOfShared();

int main() {
    registerMessages();
    registerGrößeUndGewicht();
    registerGenerated();
    registerLate();
    for (const unsigned int id : {MSG_OWN, MSG_SIZE, MSG_GENERATED}) {
        std::cout << zem::msglib::MessageFormatStream(id).toString();
    }
    std::cout << app::late::MSG_LATE().toString();
    std::cout << textOfArchive() << textOfShared();
}
