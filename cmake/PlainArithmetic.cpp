// Compiles and exits with 0 if arithmetic is plain binary64. Otherwise it prints the violated rule.

#include "base/Binary64.h"

#include <cmath>
#include <cstdio>

namespace {

// Returns a value that the compiler can't know.
double hidden(double value) {
    volatile double store = value;
    return store;
}

int failures = 0;

void expect(bool holds, const char* rule) {
    if (!holds) {
        std::printf("%s\n", rule);
        ++failures;
    }
}

} // namespace

int main() {
    const double tiny = hidden(0x1p-1022) / 4.0;
    expect(tiny > 0.0 && tiny * 4.0 == 0x1p-1022, "Subnormal numbers must not become 0.");

    const double infinity = hidden(0x1p1023) * 2.0;
    expect(infinity > DBL_MAX && infinity == HUGE_VAL, "Infinity must exceed all numbers.");
    const double nan = infinity - infinity;
    expect(nan != nan && !(nan < 0.0) && !(nan >= 0.0), "NaN must differ from all numbers.");

    expect(hidden(3.0) / 10.0 == 0.3, "Divisions must not become multiplications.");

    const double large = hidden(0x1p60);
    expect((hidden(1.0) + large) - large == 0.0, "Sums must keep their order.");

    const double factor = hidden(0x1.0000001p0);
    expect(factor * factor - hidden(0x1.0000002p0) == 0.0, "Products must be rounded before sums.");

    expect(hidden(1.0) / hidden(3.0) * 3.0 == 1.0, "Results must not be wider than 53 bits.");
    return failures;
}
