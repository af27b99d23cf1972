#include "PlugInTexts.h"

#include <boost/config.hpp>

/// Registers the messages of the plug-in and returns the identifier of one.
extern "C" BOOST_SYMBOL_EXPORT unsigned int registerPlugIn() {
    registerPlugInTexts();
    return MSG_PLUGIN;
}
