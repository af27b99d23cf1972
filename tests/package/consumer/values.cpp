// Copies, assigns, moves and destroys objects of each class by the thousand. Each of them holds something of the C++ run-time
// library, of which the program may have another copy than the library.

#include <msglib/ChoiceFormat.h>
#include <msglib/DecimalFormat.h>
#include <msglib/MessageFormat.h>
#include <msglib/MessageFormatStream.h>
#include <msglib/SimpleDateFormat.h>

#include <cstring>
#include <iostream>
#include <list>
#include <locale>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

namespace {

using namespace zem::msglib;

void expect(bool holds, const std::string& words) {
    if (!holds) {
        throw std::logic_error(words);
    }
}

// Returns how many objects share what `locale` refers to, so that it lives. An object counts itself by one run-time library and
// must be given back by the same, because none counts the users of its own classic locale.
int useCount(const std::locale& locale) {
#ifdef __GLIBCXX__
    const int* shared = nullptr; // a locale is a pointer to a count and more
    static_assert(sizeof locale == sizeof shared);
    std::memcpy(&shared, &locale, sizeof shared);
    return *shared;
#else
    return 0;
#endif
}

// A part of a locale that counts how often it has been destroyed.
struct Witness : std::locale::facet {
    static std::locale::id id;
    static inline int destroyed = 0;
    ~Witness() override { ++destroyed; }
};

std::locale::id Witness::id;

// Formatters of the program itself copy their bases.
struct OwnNumber : NumberFormat {
    using NumberFormat::format;
    std::string& format(long, std::string& out) const override { return out += "long"; }
    std::string& format(double, std::string& out) const override { return out += "double"; }
};

struct OwnDate : DateFormat {
    using DateFormat::format;
    std::string& format(const boost::any&, std::string& out) const override { return out += "day"; }
};

std::string textOf(const DecimalFormatSymbols& symbols) {
    return symbols.getInfinity() + symbols.getDecimalSeparator();
}

std::string textOf(const MessageFormatStream& stream) {
    return MessageFormatStream(stream).toString();
}

std::string textOf(const MessageFormat& message) {
    const std::list<boost::any> args = {0.5};
    std::string text;
    return message.format(args, text);
}

std::string textOf(const Format& format) {
    std::string text;
    return format.format(boost::any(1.5), text);
}

template <class Value>
void use(const Value& value) {
    const std::string text = textOf(value);
    Value assigned(value);
    for (int round = 0; round < 5000; ++round) {
        Value copy(value);
        Value moved(std::move(copy));
        copy = moved;
        assigned = std::move(copy);
        assigned = static_cast<const Value&>(assigned);
    }
    expect(textOf(assigned) == text && textOf(value) == text, "a copy gives another text");
}

void useFormatters(const std::locale& locale) {
    use(OwnNumber());
    use(OwnDate());
    use(MessageFormatStream("a text of some length, {0}, {1}") << 1 << "and another long text");
    use(DecimalFormatSymbols(locale));
    use(DecimalFormat("'a prefix of some length' 0.0", DecimalFormatSymbols(locale)));
    use(ChoiceFormat("0#a text of some length|1#another text of some length"));
    use(SimpleDateFormat("'a day of some length' yyyy", locale));

    MessageFormat message(
        "a text of some length, {0,number} {0,date,yyyy} {0,choice,0#none|1#one}");
    message.setLocale(locale);
    use(message);
    expect(message.getLocale() == locale, "a message has another locale");

    for (int round = 0; round < 5000; ++round) {
        const std::locale kept(message.getLocale());
        const std::unique_ptr<Format> owned[] = {
            std::unique_ptr<Format>(NumberFormat::getNumberInstance(locale)),
            std::unique_ptr<Format>(DateFormat::getTimeInstance(locale)),
        };
        message.setLocale(kept);
    }
}

void useAll(const std::locale& locale) {
    const int before = useCount(locale);
    useFormatters(locale);
    expect(useCount(locale) == before, "a locale has lost or gained users");
}

} // namespace

int main() {
    try {
        useAll(std::locale::classic());
        useAll(std::locale());
        useAll(MessageFormat("").getLocale());
        {
            const std::locale watched(std::locale::classic(), new Witness);
            useAll(watched);
            expect(std::has_facet<Witness>(watched) && Witness::destroyed == 0, "lost too early");
        }
        expect(Witness::destroyed == 1, "kept or lost twice");
        std::cout << 1.5 << " and all is well" << std::endl;
    } catch (const std::exception& failure) {
        std::cout << failure.what() << std::endl;
    }
}
