// Calls that do not compile. The comment before each call is the single error that compilers report
// for it, without the namespace.

#include "CallTextsCalls.h"

#include <chrono>
#include <string>

namespace {

enum class Scoped { one };
enum Unscoped { two };
struct Unknown {};

[[maybe_unused]] void callWrongly() {
    // The number of arguments.
    // error: MSG_COPIED takes 2 arguments: files (a number), folder (a text)
    CallTexts::MSG_COPIED();
    // error: MSG_COPIED takes 2 arguments: files (a number), folder (a text)
    CallTexts::MSG_COPIED(7);
    // error: MSG_COPIED takes 2 arguments: files (a number), folder (a text)
    CallTexts::MSG_COPIED(7, "x", 1);
    // error: MSG_TIME takes 1 argument: when (a point in time)
    CallTexts::MSG_TIME();
    // error: MSG_NUMBER_AND_TIME takes 1 argument: argument 0 (a number of seconds)
    CallTexts::MSG_NUMBER_AND_TIME();
    // error: MSG_ANY takes 1 argument: shown (a number or a text)
    CallTexts::MSG_ANY();
    // error: MSG_NONE takes no arguments
    CallTexts::MSG_NONE(1);
    // error: MSG_GERMAN has no text in English (United States)
    CallTexts::MSG_GERMAN(1);

    // Numbers.
    // error: MSG_COPIED: argument 0 (files) must be a number
    CallTexts::MSG_COPIED("7", "x");
    // error: MSG_COPIED: argument 0 (files) must be a number
    CallTexts::MSG_COPIED('7', "x");
    // error: MSG_COPIED: argument 0 (files) must be a number
    CallTexts::MSG_COPIED(L'7', "x");
    // error: MSG_COPIED: argument 0 (files) must be a number
    CallTexts::MSG_COPIED(nullptr, "x");
    // error: MSG_COPIED: argument 0 (files) must be a number
    CallTexts::MSG_COPIED(Scoped::one, "x");
    // error: MSG_COPIED: argument 0 (files) must be a number
    CallTexts::MSG_COPIED(two, "x");
    // error: MSG_COPIED: argument 0 (files) must be a number
    CallTexts::MSG_COPIED(CallTexts::MSG_NONE(), "x");

    // Texts.
    // error: MSG_COPIED: argument 1 (folder) must be a text
    CallTexts::MSG_COPIED(7, 'x');
    // error: MSG_COPIED: argument 1 (folder) must be a text
    CallTexts::MSG_COPIED(7, 7);
    // error: MSG_COPIED: argument 1 (folder) must be a text
    CallTexts::MSG_COPIED(7, L"x");
    // error: MSG_COPIED: argument 1 (folder) must be a text
    CallTexts::MSG_COPIED(7, nullptr);
    // error: MSG_COPIED: argument 1 (folder) must be a text
    CallTexts::MSG_COPIED(7, CallTexts::MSG_NONE());

    // Points in time.
    // error: MSG_TIME: argument 0 (when) must be a point in time
    CallTexts::MSG_TIME(true);
    // error: MSG_TIME: argument 0 (when) must be a point in time
    CallTexts::MSG_TIME("today");
    // error: MSG_TIME: argument 0 (when) must be a point in time
    CallTexts::MSG_TIME(nullptr);
    // error: MSG_TIME: argument 0 (when) must be a point in time
    CallTexts::MSG_TIME(std::chrono::steady_clock::time_point());
    // error: MSG_STAMP: argument 0 (stamp) must be a point in time
    CallTexts::MSG_STAMP("today");
    // error: MSG_NUMBER_AND_TIME: argument 0 must be a number of seconds
    CallTexts::MSG_NUMBER_AND_TIME(true);
    // error: MSG_NUMBER_AND_TIME: argument 0 must be a number of seconds
    CallTexts::MSG_NUMBER_AND_TIME(std::chrono::system_clock::time_point());

    // Arguments of plain placeholders.
    // error: MSG_ANY: argument 0 (shown) must be a number or a text
    CallTexts::MSG_ANY(nullptr);
    // error: MSG_ANY: argument 0 (shown) must be a number or a text
    CallTexts::MSG_ANY(CallTexts::MSG_NONE());
    // error: MSG_ANY: argument 0 (shown) must be a number or a text
    CallTexts::MSG_ANY(Scoped::one);
    // error: MSG_ANY: argument 0 (shown) must be a number or a text
    CallTexts::MSG_ANY(Unknown());
}

} // namespace
