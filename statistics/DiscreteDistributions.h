/// @file
/// Point probabilities and tails of the binomial and Poisson distributions.
///
/// Counts are `Cardinal`. The lower tails ("Less") exclude their bound: they are plain
/// sums of the point probabilities below it, each point recomputed from scratch, so a tail
/// equals the sum of the matching "Eq" values and costs that many of them. The upper tails
/// ("Greater") are 1 minus a lower tail, so a small upper tail keeps only its absolute
/// accuracy. The range routines treat their two bounds asymmetrically: see
/// `BinomialBetween`. The "Lower" and "Upper" routines compute each tail directly and keep
/// its relative accuracy however small it is; the quantiles invert them exactly.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

KORNUM_EXPORT_BEGIN
namespace KornumStatistics {

using Kornumglobals::Cardinal;
using Kornumglobals::Float;

// ---- Binomial -------------------------------------------------------------------------

/// @name Binomial
/// The binomial distribution with `N` trials and success probability `P`. Every routine
/// raises Platform::EMathError with Kornum_RS_Math::rsBinomDistInvalid when N = 0, P < 0,
/// P > 1 or a count it evaluates exceeds N; P = 0 and P = 1 are accepted. A binomial
/// coefficient beyond the Float range raises Kornum_RS_Math::rsBinomOverflowed (from
/// `BinomialCoeff`: from N of about 16,400 on, for counts near N / 2).
/// @{

/// P(X = `R`): `P^R * BinomialCoeff(N, R) * (1 - P)^(N - R)`, multiplied in that order
/// (0^0 counts as 1). BinomialEq(0.5, 4, 2) is 0.375. Failures (Platform::EMathError):
/// Kornum_RS_Math::rsBinomDistInvalid for N = 0, P outside [0, 1] or R > N, then
/// Kornum_RS_Math::rsBinomOverflowed.
Float BinomialEq(Float P, Cardinal N, Cardinal R);
/// P(X < `R`), the bound excluded: the sum of `BinomialEq(P, N, I)` for I = 0 .. R - 1;
/// 0 for R = 0. Failures (Platform::EMathError): Kornum_RS_Math::rsBinomDistInvalid for
/// N = 0, P outside [0, 1] or R > N (R = N is accepted), then
/// Kornum_RS_Math::rsBinomOverflowed.
Float BinomialLess(Float P, Cardinal N, Cardinal R);
/// P(X > `R`), computed as `1 - BinomialLess(P, N, R + 1)`. Failures as for
/// `BinomialLess` with R + 1 as the bound, so BinomialGreater(P, N, N) raises
/// Kornum_RS_Math::rsBinomDistInvalid.
Float BinomialGreater(Float P, Cardinal N, Cardinal R);
/// The probability of a range, asymmetric on purpose:
/// - `X1 < X2`: P(X1 < X < X2), both ends excluded;
/// - `X1 > X2`: P(X2 <= X <= X1), both ends included;
/// - bounds that coincide when compared as Single values with `Kornummath::SameFloat`
///   (beyond about 10^6 neighbouring counts do): `BinomialEq(P, N, X1)`.
///
/// Otherwise the result is `BinomialLess(P, N, X2) - BinomialLess(P, N, X1 + 1)`, negated
/// when X1 > X2. Failures (Platform::EMathError): Kornum_RS_Math::rsBinomDistInvalid for
/// N = 0, P outside [0, 1], X1 > N when the bounds coincide, or X2 > N or X1 + 1 > N when
/// they are apart; then Kornum_RS_Math::rsBinomOverflowed.
/// BinomialBetween(0.5, 4, 1, 3) is 0.375 and BinomialBetween(0.5, 4, 3, 1) is 0.875.
Float BinomialBetween(Float P, Cardinal N, Cardinal X1, Cardinal X2);
/// @}

// ---- Poisson --------------------------------------------------------------------------

/// @name Poisson
/// The Poisson distribution with mean `Lambda`. Every routine raises Platform::EMathError
/// with Kornum_RS_Math::rsPoissonInvalid when Lambda <= 0, then
/// Kornum_RS_Math::rsFactOverflow when it would need the factorial of a count above
/// `MaxFactorialArgument` (1754).
/// @{

/// P(Y = `X`): `Lambda^X * exp(-Lambda) / Factorial(X)`. Failures (Platform::EMathError):
/// Kornum_RS_Math::rsPoissonInvalid for Lambda <= 0, then Kornum_RS_Math::rsFactOverflow
/// for X > 1754. The power is formed on its own: where Lambda^X overflows the result is
/// infinite (NaN where exp(-Lambda) underflows as well).
Float PoissonEq(Float Lambda, Cardinal X);
/// P(Y < `X`), the bound excluded: the sum of `PoissonEq(Lambda, I)` for I = 0 .. X - 1;
/// 0 for X = 0. Failures (Platform::EMathError): Kornum_RS_Math::rsPoissonInvalid for
/// Lambda <= 0, then Kornum_RS_Math::rsFactOverflow for X > 1755, before anything is
/// summed.
Float PoissonLess(Float Lambda, Cardinal X);
/// P(Y > `X`), computed as `1 - PoissonLess(Lambda, X + 1)`. Failures
/// (Platform::EMathError): Kornum_RS_Math::rsPoissonInvalid for Lambda <= 0, then
/// Kornum_RS_Math::rsFactOverflow for X > 1754.
Float PoissonGreater(Float Lambda, Cardinal X);
/// The probability of a range, with the bound rule of `BinomialBetween`: X1 < X2 gives
/// P(X1 < Y < X2), X1 > X2 gives P(X2 <= Y <= X1), coinciding bounds give
/// `PoissonEq(Lambda, X1)`; otherwise `PoissonLess(Lambda, X2) - PoissonLess(Lambda, X1 + 1)`,
/// negated when X1 > X2. Failures (Platform::EMathError): Kornum_RS_Math::rsPoissonInvalid
/// for Lambda <= 0, then Kornum_RS_Math::rsFactOverflow for X1 > 1754, or X2 > 1755 when
/// the bounds are apart.
Float PoissonBetween(Float Lambda, Cardinal X1, Cardinal X2);
/// @}

// ---- Accurate tails ---------------------------------------------------------------------

/// @name Accurate binomial and Poisson tails
/// Each tail computed directly, to full relative accuracy however small it is (down to
/// the smallest normal Float): within 1e-17 relative of the exact tail, measured for N up
/// to 10^5 and Lambda up to 4e9. The bound K is included in the lower tail. The binomial
/// tails are the incomplete beta function `Kornummath::IncompleteBeta` at P, or at 1 - P
/// with the rounding of 1 - P corrected. The Poisson tails are the regularised incomplete
/// gamma functions of K + 1 at Lambda: near the mean, from K = 199 on, by their uniform
/// asymptotic expansion; elsewhere the smaller tail is the point probability times a
/// series of positive terms (at most a few hundred) and the larger one 1 minus it.
///
/// Failures (Platform::EMathError), parameters only: the binomial routines raise
/// Kornum_RS_Math::rsBinomDistInvalid for N = 0 or P outside [0, 1] (NaN included), the
/// Poisson ones Kornum_RS_Math::rsPoissonInvalid unless Lambda > 0. Every K is accepted.
/// @{

/// P(X <= `K`) for X binomial with `N` trials and success probability `P`: 1 for K >= N.
/// BinomialLower(0.5, 4, 1) is 0.3125.
Float BinomialLower(Float P, Cardinal N, Cardinal K);
/// P(X > `K`) for X binomial: 0 for K >= N. BinomialUpper(0.3, 100, 90) is about 2.1e-37.
Float BinomialUpper(Float P, Cardinal N, Cardinal K);
/// P(Y <= `K`) for Y Poisson with mean `Lambda` (0 for an infinite Lambda).
Float PoissonLower(Float Lambda, Cardinal K);
/// P(Y > `K`) for Y Poisson with mean `Lambda`. PoissonUpper(4, 30) is about 1.17e-17.
Float PoissonUpper(Float Lambda, Cardinal K);
/// @}

/// @name Accurate binomial and Poisson point probabilities
/// P(X = K) to full relative accuracy for every K, however large N, Lambda and K are and
/// however small the probability: the binomial one as the Beta(K + 1, N - K + 1) density
/// at P (formed from P and the exact 1 - P, without factorials) over N + 1; the Poisson
/// one as the exponential of its logarithm in two Floats, from K = 15 on by Stirling's
/// series in the deviance form, free of the cancellation between K ln Lambda, Lambda and
/// ln K!. Failures as for the accurate tails (parameters only).
/// @{

/// P(X = `K`) for X binomial with `N` trials and success probability `P`: 0 for K > N.
/// BinomialPoint(0.5, 4, 2) is 0.375.
Float BinomialPoint(Float P, Cardinal N, Cardinal K);
/// P(Y = `K`) for Y Poisson with mean `Lambda`. PoissonPoint(1000, 2000) is about 1.5e-170.
Float PoissonPoint(Float Lambda, Cardinal K);
/// @}

// ---- Quantiles --------------------------------------------------------------------------

/// @name Binomial and Poisson quantiles
/// Exact inversions of the accurate tails: the smallest count at which the tail, as the
/// tail routine computes it, passes the level `Alpha`. A Cornish-Fisher estimate starts a
/// search that steps out from it and bisects, each step one evaluation of the tail, so the
/// answer is consistent with the tail routine to the last count: for instance
/// InvBinomialLess(P, N, BinomialLower(P, N, K)) is K wherever the point probability at K
/// is above the rounding of the tail.
///
/// Failures (Platform::EMathError), in this order: the parameters as in the tail
/// routines (Kornum_RS_Math::rsBinomDistInvalid for N = 0 or P outside [0, 1],
/// Kornum_RS_Math::rsPoissonInvalid unless Lambda > 0); then
/// Kornum_RS_Math::rsValue01Inc for Alpha outside [0, 1] (NaN included). A Poisson
/// quantile beyond the Cardinal range (a Lambda of about 4e9 and more) raises
/// Kornum_RS_Math::rsPoissonInvalid.
/// @{

/// The smallest K with `BinomialLower(P, N, K) >= Alpha`: 0 for Alpha = 0, at most N.
/// InvBinomialLess(0.5, 4, 0.5) is 2.
Cardinal InvBinomialLess(Float P, Cardinal N, Float Alpha);
/// The smallest K with `BinomialUpper(P, N, K) <= Alpha`: 0 for Alpha = 1, at most N.
Cardinal InvBinomialGreater(Float P, Cardinal N, Float Alpha);
/// The smallest K with `PoissonLower(Lambda, K) >= Alpha`: 0 for Alpha = 0; for
/// Alpha = 1 the first K whose lower tail rounds to 1.
Cardinal InvPoissonLess(Float Lambda, Float Alpha);
/// The smallest K with `PoissonUpper(Lambda, K) <= Alpha`: 0 for Alpha = 1; for
/// Alpha = 0 the first K whose upper tail underflows to 0.
Cardinal InvPoissonGreater(Float Lambda, Float Alpha);
/// @}

}  // namespace KornumStatistics
KORNUM_EXPORT_END
