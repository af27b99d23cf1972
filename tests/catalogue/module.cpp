#include "ModuleTexts.h"

#include <boost/config.hpp>

/// Registers the messages of the module and returns the identifier of one.
extern "C" BOOST_SYMBOL_EXPORT unsigned int registerModule() {
    registerModuleTexts();
    return MSG_OF_MODULE;
}
