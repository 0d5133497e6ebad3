/// @file
/// Factorials, permutation counts and binomial coefficients as Float values. A result
/// that leaves the finite Float range is refused rather than returned as infinity:
/// failures raise Platform::EMathError with the text of a Kornum_RS_Math identifier.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

KORNUM_EXPORT_BEGIN
namespace KornumStatistics {

using Kornumglobals::Cardinal;
using Kornumglobals::Float;

/// The largest N whose factorial a Float holds (1754! is about 1.979e4930).
inline constexpr Cardinal MaxFactorialArgument = 1754;

/// N!: 1 multiplied by 2, 3, ..., N in that order (0! = 1! = 1). The values come from a
/// table built once with exactly that product, so every call returns the same bits.
/// Failures: N > `MaxFactorialArgument` raises Platform::EMathError
/// (Kornum_RS_Math::rsFactOverflow).
Float Factorial(Cardinal N);

/// The number of ordered selections of R out of N, N! / (N - R)!. It is the product of
/// the R factors N, N - 1, ..., N - R + 1, taken in that order, rounded half up to an
/// integer (Trunc(x + 0.5)). Permutation(N, 0) is 1 for N > 0; Permutation(0, 0) is 0.
/// Failures, in order: N < R raises Platform::EMathError
/// (Kornum_RS_Math::rsPermInvalid); a product that leaves the finite Float range raises
/// Platform::EMathError (Kornum_RS_Math::rsPermOverflowed).
Float Permutation(Cardinal N, Cardinal R);

/// The binomial coefficient N choose R. With K the smaller of R and N - R, the factors
/// N - K + 1, ..., N are multiplied in ascending order, each of the first K - 1
/// multiplications followed by a division by 2, 3, ..., K in turn, which keeps the
/// running value near the size of a coefficient; the result is rounded half up to an
/// integer. BinomialCoeff(N, 0) and BinomialCoeff(N, N) are 1 for N > 0;
/// BinomialCoeff(0, 0) is 0. Failures, in order: N < R raises Platform::EMathError
/// (Kornum_RS_Math::rsBinomInvalid); a running value that leaves the finite Float range
/// raises Platform::EMathError (Kornum_RS_Math::rsBinomOverflowed).
Float BinomialCoeff(Cardinal N, Cardinal R);

}  // namespace KornumStatistics
KORNUM_EXPORT_END
