// A desktop program of three modules, each with its own messages: this program, a library that it
// is linked with, and a plug-in that it loads at run time.

#include "DesktopMessagesCalls.h"
#include "Ledger.h"
#include "PlugIn.h"

#include <msglib/MessageFormatStream.h>

#include <exception>
#include <iostream>
#include <string>

namespace {

using zem::msglib::MessageFormatStream;

constexpr long long today = 1794576600; // 2026-11-13 13:30:00

void welcome() {
    std::cout << DesktopMessages::MSG_WELCOME("Zoë", today).toString();
}

void copyFiles() {
    for (const int files : {0, 1, 1234567}) {
        std::cout << DesktopMessages::MSG_COPIED(files, "Übersicht 2026").toString();
    }
    // Two messages in one text, each with its own arguments.
    std::cout << (DesktopMessages::MSG_COPIED(3, "/home/zoë")
                  << DesktopMessages::MSG_SKIPPED(2, 0.985))
                     .toString();
}

void showStatement() {
    std::cout << '\n'
              << ledger::statement("Zoë Müller", today,
                                   {{1793700000, "Rent", -1250.0},
                                    {1794002400, "Salary", 4321.09},
                                    {1794400000, "Café “Zur Linde”", -17.5}})
              << ledger::statement("a new customer", today, {{today, "Fee", -0.5}});
}

void runBackup() {
    const PlugIn backup("desktop_backup");
    backup.function<void()>("start")();
    std::string text;
    backup.function<void(long long, std::string&)>("report")(today, text);
    std::cout << '\n' << text;
}

void renderPatterns() {
    const char* progress = "\n{0} of {1} done ({2,number,percent}), {3,number,0.##E0} bytes/s";
    std::cout << (MessageFormatStream(progress) << 12 << 48 << 0.25 << 7340032.0).toString()
              << '\n';
}

// Typed calls that fail like these don't compile, so they are streams.
void showFailures() {
    std::cout << '\n' << MessageFormatStream(MSG_NOT_OPENED).toString() << '\n';
    std::cout << MessageFormatStream(MSG_NOT_OPENED + 1).toString() << '\n';
    const unsigned int unregistered = 0x00070001;
    for (const auto& message : {MessageFormatStream(unregistered), MessageFormatStream("{0")}) {
        try {
            std::cout << message.toString() << '\n';
        } catch (const std::exception& failure) {
            std::cout << "exception: " << failure.what() << '\n';
        }
    }
}

} // namespace

int main() {
    try {
        registerDesktopMessages();
        ledger::start();
        welcome();
        copyFiles();
        showStatement();
        runBackup();
        renderPatterns();
        showFailures();
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return 1;
    }
}
