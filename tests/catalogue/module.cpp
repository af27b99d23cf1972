#include "ModuleTexts.h"
#include "msglib/MessageFormatStream.h"

#include <geom/Angle.h>

#include <boost/any.hpp>
#include <boost/config.hpp>

/// Registers the messages of the module and returns the identifier of one.
extern "C" BOOST_SYMBOL_EXPORT unsigned int registerModule() {
    registerModuleTexts();
    return MSG_OF_MODULE;
}

/// Renders that message with its argument, for a program that isn't linked with the library.
extern "C" BOOST_SYMBOL_EXPORT void renderMessage(int argument, std::string& text) {
    text = (zem::msglib::MessageFormatStream(MSG_OF_MODULE) << argument).toString();
}

namespace {

struct Farewell {
    std::string* text = nullptr;
    ~Farewell() {
        if (text != nullptr) {
            renderMessage(9, *text);
        }
    }
};

Farewell farewell;

} // namespace

/// Renders the message into `text` when the module is unloaded, from the destructor of an object
/// that is older than the message library.
extern "C" BOOST_SYMBOL_EXPORT void renderAtUnload(std::string& text) {
    farewell.text = &text;
}

/// Stores an angle in `argument`, with this module's own type identity.
extern "C" BOOST_SYMBOL_EXPORT void holdAngle(double radians, boost::any& argument) {
    argument = zem::geom::Angle(radians);
}
