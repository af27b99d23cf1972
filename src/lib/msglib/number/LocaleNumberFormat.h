#pragma once

#include "msglib/DecimalFormat.h"
#include "msglib/NumberFormat.h"

#include <boost/any.hpp>

#include <locale>
#include <memory>
#include <string>
#include <string_view>

namespace zem::msglib {

class TextOutput;

/// Number formatters by the platform's locale values, for the factories and for messages.
class LocaleNumberFormat {
public:
    /// Returns the formatter of `type`; of the empty pattern for a value outside the enumeration.
    ///
    /// @param fallback  the pattern if the platform doesn't know the locale
    /// @throws std::runtime_error as `DecimalFormat::applyPattern` does
    static DecimalFormat make(const std::locale& locale, NumberFormat::FormatType type,
                              const char* fallback);

    /// Returns the same formatter as the public factory of `type`, in shared ownership.
    static std::shared_ptr<DecimalFormat> makeShared(const std::locale& locale,
                                                     NumberFormat::FormatType type);

    /// Returns the formatter for plain numbers, rounded to whole ones.
    static std::shared_ptr<DecimalFormat> makeSharedRounded(const std::locale& locale);

    /// Appends `argument` as a new formatter of the public factory of `type` would, but makes one
    /// only where it has to.
    ///
    /// @throws what `NumberFormat::format` throws for the argument
    static void append(NumberFormat::FormatType type, const boost::any& argument, TextOutput& out);

    /// The same as the formatter of `makeSharedRounded`.
    static void appendRounded(const boost::any& argument, TextOutput& out);

    /// The same as the formatter for plain numbers with `pattern` applied to it.
    ///
    /// @throws std::runtime_error as `DecimalFormat::applyPattern` does
    static void append(std::string_view pattern, const boost::any& argument, TextOutput& out);

    /// Returns the pattern of the public factory of `type` for a platform that doesn't know the
    /// locale.
    static const char* fallbackOf(NumberFormat::FormatType type) noexcept;

private:
    static std::string patternOf(const std::locale& locale, NumberFormat::FormatType type,
                                 const char* fallback);
};

} // namespace zem::msglib
