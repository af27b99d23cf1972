#pragma once

// Every digit follows from single operations of plain binary64 arithmetic, so sources that compute
// with doubles include this header. It rejects compiler options that macros and constants reveal;
// cmake/PlainArithmetic.cpp tests for the effects of those that nothing reveals.

#include <cfloat>
#include <limits>

#if defined(__FAST_MATH__) || __FINITE_MATH_ONLY__ || defined(__ASSOCIATIVE_MATH__) ||             \
    defined(__RECIPROCAL_MATH__) || defined(_M_FP_FAST)
#error "msglib needs plain binary64 arithmetic: no -Ofast, -ffast-math and its parts, /fp:fast"
#endif

#if FLT_EVAL_METHOD != 0
#error "msglib needs plain binary64 arithmetic: on x86, compile with -msse2 -mfpmath=sse"
#endif

static_assert(std::numeric_limits<double>::is_iec559 && std::numeric_limits<double>::digits == 53,
              "msglib needs plain binary64 arithmetic");
static_assert(0.1 != 0.1F,
              "msglib needs plain binary64 arithmetic: no -fsingle-precision-constant");
