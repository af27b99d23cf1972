#pragma once

#include "msglib/DecimalFormat.h"
#include "msglib/NumberFormat.h"

#include <locale>

namespace zem::msglib {

/// Makes number formatters from the platform's locale values, in place: the factories put them on
/// the heap, and messages keep the one of a plain placeholder on the stack.
class LocaleNumberFormat {
public:
    static constexpr const char* numberFallback = "#,##0.###";
    static constexpr const char* integerFallback = "#,##0.###";
    static constexpr const char* currencyFallback = "$#,##0.00;($#,##0.00)";
    static constexpr const char* percentFallback = "#,##0%";

    /// Returns the formatter of `type`; of the empty pattern for a value outside the enumeration.
    ///
    /// @param fallback  the pattern if the platform doesn't know the locale
    /// @throws std::runtime_error as `DecimalFormat::applyPattern` does
    static DecimalFormat make(const std::locale& locale, NumberFormat::FormatType type,
                              const char* fallback);
};

} // namespace zem::msglib
