#include "GreetingsCalls.h"

#include <iostream>

int main() {
    registerGreetings();
    std::cout << Greetings::MSG_GOOD_MORNING("world").toString();
}
