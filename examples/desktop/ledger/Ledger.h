#pragma once

#include <string>
#include <vector>

#if !defined(_WIN32)
#define DESKTOP_LEDGER_API __attribute__((visibility("default")))
#elif defined(DESKTOP_LEDGER_BUILDING)
#define DESKTOP_LEDGER_API __declspec(dllexport)
#else
#define DESKTOP_LEDGER_API __declspec(dllimport)
#endif

namespace ledger {

struct Transaction {
    long long time; ///< seconds since 1970-01-01
    std::string purpose;
    double amount;
};

/// Registers the messages of this library. Call it once, before any other function.
DESKTOP_LEDGER_API void start();

/// Returns a statement of several lines.
DESKTOP_LEDGER_API std::string statement(const std::string& account, long long time,
                                         const std::vector<Transaction>& transactions);

} // namespace ledger
