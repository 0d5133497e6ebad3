// Factorials, permutation counts and binomial coefficients as Float values.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

namespace KORNUM_API KornumStatistics {

using Kornumglobals::Cardinal;
using Kornumglobals::Float;

// The largest N whose factorial a Float holds (1754! is about 1.979e4930).
inline constexpr Cardinal MaxFactorialArgument = 1754;

// N!, the product 2 * 3 * ... * N taken in that order. Raises rsFactOverflow when
// N > MaxFactorialArgument.
Float Factorial(Cardinal N);

// N! / (N - R)!, the product N * (N - 1) * ... * (N - R + 1) rounded to an integer.
// Permutation(0, R) is 0 (even for R = 0); Permutation(N, 0) is 1 for N > 0.
// Raises rsPermInvalid when N < R and rsPermOverflowed when the product overflows.
Float Permutation(Cardinal N, Cardinal R);

// N choose R, by multiplications interleaved with the divisions 2, 3, ..., K
// (K = the smaller of R and N - R), then rounded to an integer. BinomialCoeff(0, R)
// is 0 (even for R = 0). Raises rsBinomInvalid when N < R and rsBinomOverflowed when
// the running value overflows.
Float BinomialCoeff(Cardinal N, Cardinal R);

}  // namespace KornumStatistics
