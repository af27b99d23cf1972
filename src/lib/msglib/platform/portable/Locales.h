#pragma once

#include "platform/LocaleServices.h"

#include <cstdint>

namespace zem::msglib::platform {

/// The full identifier for `localeIdentifier`: English as written in the United States.
constexpr std::uint32_t fullLocaleIdentifier = 0x409;

/// Returns whether `locale` has values.
constexpr bool isKnownLocale(std::uint32_t locale) noexcept {
    return locale == localeIdentifier || locale == fullLocaleIdentifier;
}

} // namespace zem::msglib::platform
