#pragma once

/// The library's version, as numbers for the preprocessor. It follows semantic versioning.
#define MSGLIB_VERSION_MAJOR 1
#define MSGLIB_VERSION_MINOR 0
#define MSGLIB_VERSION_PATCH 0
