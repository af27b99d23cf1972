// Copies, moves, assigns and destroys values of every class some thousand times. If the library
// contains its own C++ run-time library, mixing the two would break reference counts that they
// share.

#include <msglib/ChoiceFormat.h>
#include <msglib/DecimalFormat.h>
#include <msglib/DecimalFormatSymbols.h>
#include <msglib/MessageFormat.h>
#include <msglib/MessageFormatStream.h>
#include <msglib/SimpleDateFormat.h>

#include <cstring>
#include <iostream>
#include <list>
#include <locale>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr int rounds = 5000;

template <class Value>
void exercise(const Value& value) {
    for (int round = 0; round < rounds; ++round) {
        Value copy(value);
        Value assigned(value);
        assigned = copy;
        Value moved(std::move(copy));
        assigned = std::move(moved);
        std::vector<Value> several(3, assigned);
        several.erase(several.begin());
    }
}

// Returns the reference count of the locale's parts, which GNU's run-time library keeps in the
// first word that a locale points to.
int references(const std::locale& locale) {
    int count = 0;
#if defined(__GLIBCXX__)
    const void* parts = nullptr;
    std::memcpy(&parts, &locale, sizeof parts);
    std::memcpy(&count, parts, sizeof count);
#endif
    return count;
}

std::string shown(const boost::any& argument, zem::msglib::Format& format) {
    return format.format(argument);
}

} // namespace

int main() {
    using namespace zem::msglib;
    std::ios_base::sync_with_stdio(false);
    ChoiceFormat choice("0#a text too long for the string object itself|1#one");
    DecimalFormatSymbols symbols;
    DecimalFormat decimal("'a prefix too long for the string object itself '#,##0.00", symbols);
    MessageFormat message("{0,number,currency} {1,date,yyyy}, {2,choice,0#none|1#one}");
    MessageFormatStream stream("{0}");
    SimpleDateFormat date("yyyy-MM-dd 'at' HH:mm:ss", std::locale::classic());
    const int before = references(std::locale::classic());
    stream << "an argument too long for the string object itself";
    exercise(choice);
    exercise(symbols);
    exercise(decimal);
    exercise(message);
    exercise(stream);
    exercise(date);
    for (int round = 0; round < rounds; ++round) {
        const std::unique_ptr<NumberFormat> format(NumberFormat::getNumberInstance(std::locale()));
    }
    std::string text;
    const std::list<boost::any> arguments = {9.5, 0, 1};
    std::cout << references(std::locale::classic()) - before << ' ' << shown(7, choice) << ' '
              << shown(0, date) << ' ' << message.format(arguments, text) << '\n';
}
