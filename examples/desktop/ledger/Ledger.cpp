#include "Ledger.h"

#include "LedgerMessagesCalls.h"

namespace ledger {

void start() {
    registerLedgerMessages();
}

std::string statement(const std::string& account, long long time,
                      const std::vector<Transaction>& transactions) {
    // Each message that is streamed is appended to those before it.
    auto text = LedgerMessages::MSG_STATEMENT(account, time);
    double balance = 0.0;
    for (const Transaction& each : transactions) {
        text << LedgerMessages::MSG_TRANSACTION(each.time, each.purpose, each.amount);
        balance += each.amount;
    }
    text << LedgerMessages::MSG_BALANCE(transactions.size(), balance, 0.125);
    return text.toString();
}

} // namespace ledger
