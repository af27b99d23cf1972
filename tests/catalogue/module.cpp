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

/// Renders that one with its argument, for a program that doesn't know the library.
extern "C" BOOST_SYMBOL_EXPORT void renderMessage(int argument, std::string& text) {
    text = (zem::msglib::MessageFormatStream(MSG_OF_MODULE) << argument).toString();
}

/// Makes `argument` an angle, of the type that the module knows under this name.
extern "C" BOOST_SYMBOL_EXPORT void holdAngle(double radians, boost::any& argument) {
    argument = zem::geom::Angle(radians);
}
