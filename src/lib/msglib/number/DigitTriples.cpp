#include "number/DigitTriples.h"

namespace zem::msglib {

constexpr DigitTriples::Table DigitTriples::makeTable() noexcept {
    Table table{};
    for (int number = 0; number < 1000; ++number) {
        char* const row = table.rows[number];
        row[0] = static_cast<char>(number / 100);
        row[1] = static_cast<char>(number / 10 % 10);
        row[2] = static_cast<char>(number % 10);
        row[3] = static_cast<char>(row[2] != 0 ? 3 : row[1] != 0 ? 2 : row[0] != 0 ? 1 : 0);
    }
    return table;
}

const DigitTriples::Table DigitTriples::table_ = makeTable();

} // namespace zem::msglib
