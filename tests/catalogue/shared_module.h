#pragma once

#include <boost/config.hpp>

/// Registers the messages of the shared library and returns the identifier of one.
BOOST_SYMBOL_EXPORT unsigned int registerSharedModule();
