#include "Ledger.h"

#include "LedgerMessages.h"

#include <msglib/MessageFormatStream.h>

namespace ledger {

using zem::msglib::MessageFormatStream;

void start() {
    registerLedgerMessages();
}

std::string statement(const std::string& account, long long time,
                      const std::vector<Transaction>& transactions) {
    // Every message that is streamed in stands behind the one before it.
    MessageFormatStream text(MSG_STATEMENT);
    text << account << time;
    double balance = 0.0;
    for (const Transaction& each : transactions) {
        text << (MessageFormatStream(MSG_TRANSACTION) << each.time << each.purpose << each.amount);
        balance += each.amount;
    }
    text << (MessageFormatStream(MSG_BALANCE)
             << static_cast<int>(transactions.size()) << balance << 0.125);
    return text.toString();
}

} // namespace ledger
