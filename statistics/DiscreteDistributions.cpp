#include <kornum/DiscreteDistributions.h>

#include <kornum/Combinatorics.h>
#include <kornum/Kornum_RS_Math.h>
#include <kornum/Kornummath.h>
#include <kornum/NormalDistributions.h>
#include <kornum/Platform.h>

#include "core/detail/BaseLibraryInterface.hpp"
#include "core/detail/ExtendedPrecision.hpp"
#include "statistics/detail/BinomialTails.hpp"
#include "statistics/detail/PoissonTails.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace KornumStatistics {

namespace {

using Kornummath::XtoY;
using Kornumglobals::Single;

// Counts are carried as 64-bit values inside, so that the R + 1 of the upper tails
// cannot wrap to 0 when R is the largest Cardinal: such a bound exceeds every N and
// is rejected like any other.
using Count = std::uint64_t;

// ---- Binomial -----------------------------------------------------------------------

void CheckBinomial(Float P, Cardinal N, Count R) {
    if (N == 0 || N < R || P < 0 || P > 1) Platform::Raise(Kornum_RS_Math::rsBinomDistInvalid);
}

// P^R * C(N, R) * (1 - P)^(N - R), multiplied in that order. R <= N.
Float BinomialTerm(Float P, Cardinal N, Cardinal R) {
    return XtoY(P, Float(R)) * BinomialCoeff(N, R) * XtoY(1 - P, Float(N - R));
}

Float BinomialLowerTail(Float P, Cardinal N, Count R) {
    CheckBinomial(P, N, R);
    Float sum = 0;
    for (Count i = 0; i < R; ++i) sum += BinomialTerm(P, N, Cardinal(i));
    return sum;
}

// ---- Poisson ------------------------------------------------------------------------

void CheckPoisson(Float Lambda) {
    if (Lambda <= 0) Platform::Raise(Kornum_RS_Math::rsPoissonInvalid);
}

// Lambda^X * exp(-Lambda) / X!. Factorial raises rsFactOverflow for X > 1754.
Float PoissonTerm(Float Lambda, Cardinal X) {
    return XtoY(Lambda, Float(X)) * std::exp(-Lambda) / Factorial(X);
}

Float PoissonLowerTail(Float Lambda, Count X) {
    CheckPoisson(Lambda);
    // The sum would reach Factorial(X - 1); fail before summing rather than midway.
    if (X > Count(MaxFactorialArgument) + 1) Platform::Raise(Kornum_RS_Math::rsFactOverflow);
    Float sum = 0;
    for (Count i = 0; i < X; ++i) sum += PoissonTerm(Lambda, Cardinal(i));
    return sum;
}

// ---- The range rule shared by both distributions -------------------------------------

// The two bounds of a range count as one point when their Single values pass the
// Single tolerance test. This is deliberately coarse: above about 10^6 neighbouring
// counts are "the same" bound.
bool BoundsCoincide(Cardinal X1, Cardinal X2) {
    return Kornummath::SameFloat(Single(X1), Single(X2));
}

// Less(X2) - Less(X1 + 1), negated when X1 > X2. The result is asymmetric on purpose:
// both ends are excluded when X1 < X2 and both are included when X1 > X2.
template <class Point, class LowerTail>
Float ProbabilityBetween(Cardinal X1, Cardinal X2, Point point, LowerTail lowerTail) {
    if (BoundsCoincide(X1, X2)) return point(X1);
    const Float difference = lowerTail(Count(X2)) - lowerTail(Count(X1) + 1);
    return X1 > X2 ? -difference : difference;
}

// ---- Accurate tails -------------------------------------------------------------------

// The accurate routines reject a NaN parameter too, which the comparisons above let
// through.
void CheckBinomialParameters(Float P, Cardinal N) {
    if (N == 0 || !(P >= 0 && P <= 1)) Platform::Raise(Kornum_RS_Math::rsBinomDistInvalid);
}
void CheckPoissonMean(Float Lambda) {
    if (!(Lambda > 0)) Platform::Raise(Kornum_RS_Math::rsPoissonInvalid);
}

// P(X > K) = I_P(K + 1, N - K), with P itself as the argument of the incomplete beta.
Float BinomialAbove(Float P, Cardinal N, Count K) {
    if (K >= N || P == 0) return 0;
    if (P == 1) return 1;
    return Kornummath::IncompleteBeta(P, Float(K) + 1, Float(N - K));
}

// P(X <= K) = I_(1-P)(N - K, K + 1). 1 - P is exact only for P >= 1/2, and a relative
// error e in it would become about N e in the tail; so the incomplete beta is taken at
// 1 - P rounded, x, and moved by the exact remainder r = (1 - P) - x times its slope, the
// Beta(N - K, K + 1) density at x: the step is at most N 2^-65 of the tail, its square
// is negligible, and the density needs only a few digits.
Float BinomialAtMost(Float P, Cardinal N, Count K) {
    if (K >= N || P == 0) return 1;
    if (P == 1) return 0;
    const Kornummath::special::TwoFloat q = Kornummath::special::TwoSum(1, -P);
    const Float a = Float(N - K), b = Float(K) + 1;
    const Float value = Kornummath::IncompleteBeta(q.hi, a, b);
    if (q.lo == 0) return value;
    using Kornummath::LnGamma;
    const Float logDensity = (a - 1) * std::log(q.hi) + (b - 1) * std::log(P) -
                             (LnGamma(a) + LnGamma(b) - LnGamma(a + b));
    return value + q.lo * std::exp(logDensity);
}

// Beyond this many terms the sums of BinomialTails give way to the incomplete beta
// function, whose cost does not grow with N p q.
constexpr Float MaxBinomialSumTerms = 400;

// P(X > K) when upper, else P(X <= K): the CDF and the quantile search share it, so that
// a quantile is consistent with the tail it inverts.
Float BinomialTail(Float P, Cardinal N, Count K, bool upper) {
    if (K >= N || P == 0) return upper ? 0 : 1;
    if (P == 1) return upper ? 1 : 0;
    const Float n = Float(N), k = Float(K), mean = n * P, variance = mean * (1 - P);
    // Up to a variance of 1600 even the series from the centre, 9.6 deviations, is short.
    if (variance <= 1600 || detail::RatioSeriesLength(k, mean, std::sqrt(variance)) <= MaxBinomialSumTerms) {
        const detail::BinomialTailPair tails = detail::BinomialTails(Cardinal(K), N, P);
        return upper ? tails.upper : tails.lower;
    }
    return upper ? BinomialAbove(P, N, K) : BinomialAtMost(P, N, K);
}

// ---- Quantiles --------------------------------------------------------------------------

void CheckLevel(Float Alpha) {
    if (!(Alpha >= 0 && Alpha <= 1)) Platform::Raise(Kornum_RS_Math::rsValue01Inc);
}

// The standard normal quantile at a tail level, of the lower tail or of the upper one,
// from the side where the level is small. A level 0 is taken as the smallest subnormal,
// a level that rounds to 1 as 1 - 2^-66 (where a tail near 1 rounds to 1): the result
// starts a search and need not be exact.
Float NormalQuantileAt(Float level, bool upper) {
    const Float z = level <= 0.5L
                        ? InvNormalLess(std::max(level, std::numeric_limits<Float>::denorm_min()))
                        : -InvNormalLess(std::max(1 - level, 0x1p-66L));
    return upper ? -z : z;
}

// The count nearest the Cornish-Fisher approximation of the quantile at the standard
// normal quantile z, for a distribution with this mean, standard deviation and skewness,
// within [0, last]: a starting point for the exact search.
Count QuantileGuess(Float z, Float mean, Float deviation, Float skewness, Count last) {
    const Float x = mean + deviation * (z + skewness * (z * z - 1) / 6) + 0.5L;
    if (!(x > 0)) return 0;
    if (!(x < Float(last))) return last;
    return Count(x);
}

// The smallest k in [0, last] with reached(k), for reached false below some count and
// true from it on: steps out from the guess with doubling strides until the answer is
// bracketed, then bisects. Near a good guess that is two or three evaluations. Returns
// last + 1 when reached(last) is false.
template <class Reached>
Count SmallestReaching(Count guess, Count last, Reached reached) {
    Count below, above;  // !reached(below) and reached(above) once both are set
    if (reached(guess)) {
        above = guess;
        for (Count stride = 1;; stride *= 2) {
            if (above == 0) return 0;
            const Count probe = above > stride ? above - stride : 0;
            if (!reached(probe)) {
                below = probe;
                break;
            }
            above = probe;
        }
    } else {
        below = guess;
        for (Count stride = 1;; stride *= 2) {
            if (below == last) return last + 1;
            const Count probe = last - below > stride ? below + stride : last;
            if (reached(probe)) {
                above = probe;
                break;
            }
            below = probe;
        }
    }
    while (above - below > 1) {
        const Count middle = below + (above - below) / 2;
        (reached(middle) ? above : below) = middle;
    }
    return above;
}

// The binomial quantile at normal quantile z: the moments of the guess, and the search.
template <class Reached>
Cardinal BinomialQuantile(Float P, Cardinal N, Float z, Reached reached) {
    const Float mean = N * P, deviation = std::sqrt(mean * (1 - P));
    const Float skewness = deviation > 0 ? (1 - 2 * P) / deviation : 0;
    return Cardinal(SmallestReaching(QuantileGuess(z, mean, deviation, skewness, N), N, reached));
}

// The same for the Poisson distribution; an answer beyond the Cardinal range raises.
template <class Reached>
Cardinal PoissonQuantile(Float Lambda, Float z, Reached reached) {
    constexpr Count last = std::numeric_limits<Cardinal>::max();
    const Float deviation = std::sqrt(Lambda);
    const Count k =
        SmallestReaching(QuantileGuess(z, Lambda, deviation, 1 / deviation, last), last, reached);
    if (k > last) Platform::Raise(Kornum_RS_Math::rsPoissonInvalid);
    return Cardinal(k);
}

}  // namespace

Float BinomialEq(Float P, Cardinal N, Cardinal R) {
    CheckBinomial(P, N, R);
    return BinomialTerm(P, N, R);
}

Float BinomialLess(Float P, Cardinal N, Cardinal R) { return BinomialLowerTail(P, N, R); }

Float BinomialGreater(Float P, Cardinal N, Cardinal R) {
    return 1 - BinomialLowerTail(P, N, Count(R) + 1);
}

Float BinomialBetween(Float P, Cardinal N, Cardinal X1, Cardinal X2) {
    return ProbabilityBetween(
        X1, X2, [&](Cardinal X) { return BinomialEq(P, N, X); },
        [&](Count X) { return BinomialLowerTail(P, N, X); });
}

Float PoissonEq(Float Lambda, Cardinal X) {
    CheckPoisson(Lambda);
    return PoissonTerm(Lambda, X);
}

Float PoissonLess(Float Lambda, Cardinal X) { return PoissonLowerTail(Lambda, X); }

Float PoissonGreater(Float Lambda, Cardinal X) {
    return 1 - PoissonLowerTail(Lambda, Count(X) + 1);
}

Float PoissonBetween(Float Lambda, Cardinal X1, Cardinal X2) {
    return ProbabilityBetween(
        X1, X2, [&](Cardinal X) { return PoissonEq(Lambda, X); },
        [&](Count X) { return PoissonLowerTail(Lambda, X); });
}

Float BinomialLower(Float P, Cardinal N, Cardinal K) {
    CheckBinomialParameters(P, N);
    return BinomialTail(P, N, K, false);
}

Float BinomialUpper(Float P, Cardinal N, Cardinal K) {
    CheckBinomialParameters(P, N);
    return BinomialTail(P, N, K, true);
}

Float BinomialPoint(Float P, Cardinal N, Cardinal K) {
    CheckBinomialParameters(P, N);
    if (K > N) return 0;
    if (P == 0 || P == 1) return K == (P == 0 ? 0 : N) ? 1 : 0;
    const detail::BinomialConstants& c = detail::BinomialConstantsAt(P);
    if (K == 0 || K == N) return detail::BinomialEndPoint(K == N, Float(N), c);
    return detail::ScaledExp(detail::BinomialPointExponent(K, N, c), 1);
}

Float PoissonPoint(Float Lambda, Cardinal K) {
    CheckPoissonMean(Lambda);
    if (std::isinf(Lambda)) return 0;
    return detail::ScaledExp(detail::PoissonPointExponent(K, detail::PoissonConstantsAt(Lambda)), 1);
}

Float PoissonLower(Float Lambda, Cardinal K) {
    CheckPoissonMean(Lambda);
    return detail::PoissonTails(Lambda, K).lower;
}

Float PoissonUpper(Float Lambda, Cardinal K) {
    CheckPoissonMean(Lambda);
    return detail::PoissonTails(Lambda, K).upper;
}

Cardinal InvBinomialLess(Float P, Cardinal N, Float Alpha) {
    CheckBinomialParameters(P, N);
    CheckLevel(Alpha);
    if (Alpha == 0) return 0;
    return BinomialQuantile(P, N, NormalQuantileAt(Alpha, false),
                            [&](Count k) { return BinomialTail(P, N, k, false) >= Alpha; });
}

Cardinal InvBinomialGreater(Float P, Cardinal N, Float Alpha) {
    CheckBinomialParameters(P, N);
    CheckLevel(Alpha);
    if (Alpha == 1) return 0;
    return BinomialQuantile(P, N, NormalQuantileAt(Alpha, true),
                            [&](Count k) { return BinomialTail(P, N, k, true) <= Alpha; });
}

Cardinal InvPoissonLess(Float Lambda, Float Alpha) {
    CheckPoissonMean(Lambda);
    CheckLevel(Alpha);
    if (Alpha == 0) return 0;
    return PoissonQuantile(Lambda, NormalQuantileAt(Alpha, false),
                           [&](Count k) { return detail::PoissonTails(Lambda, Cardinal(k)).lower >= Alpha; });
}

Cardinal InvPoissonGreater(Float Lambda, Float Alpha) {
    CheckPoissonMean(Lambda);
    CheckLevel(Alpha);
    if (Alpha == 1) return 0;
    return PoissonQuantile(Lambda, NormalQuantileAt(Alpha, true),
                           [&](Count k) { return detail::PoissonTails(Lambda, Cardinal(k)).upper <= Alpha; });
}

}  // namespace KornumStatistics
