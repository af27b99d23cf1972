// Passes an argument of every kind to the library and catches a failure.

#include <geom/Angle.h>
#include <msglib/MessageFormat.h>

#include <cstdint>
#include <iostream>
#include <list>
#include <stdexcept>
#include <string>

int main() {
    using zem::msglib::MessageFormat;
    const std::list<boost::any> integers = {
        static_cast<short>(-1), 2, 3L, 4LL, static_cast<unsigned short>(5), 6U, 7UL, 8ULL, true};
    std::list<boost::any> all = {0.5F, 9.5,         std::string("text"), zem::geom::Angle(0.25),
                                 'c',  boost::any()};
    all.insert(all.begin(), integers.begin(), integers.end());
    const std::list<boost::any>& arguments = all;

    std::string text;
    const MessageFormat each("{0} {1} {2} {3} {4} {5} {6} {7} {8} {9} {10} {11} {12} [{13}{14}]");
    each.format(boost::any(&arguments), text);
    MessageFormat(", {8,choice,0#no|1#yes} {10,number,currency} {12,number} {3,date,yyyy-MM-dd}")
        .format(arguments, text);
    try {
        MessageFormat("{0,number}").format(boost::any(&arguments), text);
        MessageFormat("{11,number}").format(arguments, text);
    } catch (const std::runtime_error& failure) {
        std::cout << text << '\n' << failure.what() << '\n';
    }
}
