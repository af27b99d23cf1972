#pragma once

namespace zem::msglib {

/// Tells whether this program runs under Wine, some of whose operations differ from what the
/// operating system publishes.
bool runsUnderWine();

} // namespace zem::msglib
