#include "Bench.h"

#include "BenchMessages.h"

#include <msglib/MessageLibrary.h>

#include <fmt/format.h>
#include <libintl.h>

#include <clocale>
#include <cstdlib>
#include <vector>

namespace bench {

namespace {

using zem::msglib::MessageLibrary;

constexpr unsigned int messageCount = BENCH_MESSAGE_COUNT;
constexpr const char* domain = "bench";

const std::string file = "Annual report.odt";
const std::string folder = "Backup";

/// Visits all message numbers, from 0 on, with large steps between consecutive ones.
class Walk {
public:
    unsigned int next() {
        number_ = (number_ + stride) % messageCount;
        return number_;
    }

private:
    static constexpr unsigned int stride = 617;
    unsigned int number_ = 0;
};

/// Makes gettext find the catalogue. It reads the languages in LANGUAGE only under a locale other
/// than "C", and every system has "C.UTF-8".
void openGettextCatalogue() {
    std::setlocale(LC_MESSAGES, "C.UTF-8");
    setenv("LANGUAGE", "en", 1);
    bindtextdomain(domain, BENCH_LOCALE_FOLDER);
    bind_textdomain_codeset(domain, "UTF-8");
}

std::vector<std::string> gettextIdentifiers() {
    std::vector<std::string> identifiers;
    for (unsigned int number = 1; number <= messageCount; ++number) {
        identifiers.push_back("message " + std::to_string(number) + ": {0} to {1}\n");
    }
    return identifiers;
}

/// Registers an entry for `render`, which stores the message with a number in a string, and checks
/// all messages.
template <class Render>
void addMessages(const std::string& name, Render render) {
    for (unsigned int number = 0; number < messageCount; ++number) {
        std::string out;
        render(number, out);
        requireText(name, out,
                    "Message " + std::to_string(number + 1) +
                        ": Annual report.odt was copied to Backup.\n");
    }
    static Walk walk;
    addUnchecked(name, [render](std::string& out) { render(walk.next(), out); });
}

} // namespace

void addCatalogueWorkload() {
    registerBenchMessages();
    addMessages("catalogue/one_shot",
                [list = arguments(file, folder)](unsigned int number, std::string& out) {
                    const unsigned int identifier = MSG_1 + number;
                    out = MessageLibrary::instance().formatMessage(identifier, list);
                });

    openGettextCatalogue();
    static const std::vector<std::string> identifiers = gettextIdentifiers();
    static const auto store = fmt::make_format_args(file, folder);
    addMessages("catalogue/fmt", [](unsigned int number, std::string& out) {
        out = fmt::vformat(dgettext(domain, identifiers[number].c_str()), store);
    });
}

} // namespace bench
