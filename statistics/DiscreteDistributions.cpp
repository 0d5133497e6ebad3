#include <kornum/DiscreteDistributions.h>

#include <kornum/Combinatorics.h>
#include <kornum/Kornum_RS_Math.h>
#include <kornum/Kornummath.h>
#include <kornum/Platform.h>

#include <cmath>
#include <cstdint>

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

}  // namespace KornumStatistics
