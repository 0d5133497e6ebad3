#include <kornum/BetaDistribution.h>

#include <kornum/Kornummath.h>

#include "core/detail/BaseLibraryInterface.hpp"
#include "statistics/detail/DistributionSupport.hpp"

#include <cmath>

namespace KornumStatistics {

namespace {

using namespace detail;  // the distribution sources' shared checks and pieces
using Kornummath::InverseIncompleteBeta;

void RequireBeta(Float a, Float b, Float lo, Float hi) {
    Require(a > 0 && b > 0, Kornum_RS_Math::rsValueGZero);
    Require(lo != hi, Kornum_RS_Math::rsSameValue);
}

// x^(a-1) (1-x)^(b-1) / Beta(a, b) on (0, 1), with x and 1 - x given separately.
Float BetaDensity(Float x, Float oneMinusX, Float a, Float b) {
    if (x <= 0 || oneMinusX <= 0) {
        if (x < 0 || oneMinusX < 0) return 0;
        const Float edge = x == 0 ? a : b;  // the exponent that meets 0
        return edge < 1 ? Infinity : edge == 1 ? (x == 0 ? b : a) : 0;
    }
    const TwoFloat e = special::Log(x) * (a - 1) + special::Log(oneMinusX) * (b - 1);
    return ExpOver(e, Kornummath::Beta(a, b));
}

// As for F: each tail its own incomplete beta, at z = (X - Lo) / (Hi - Lo) or
// w = (Hi - X) / (Hi - Lo) in two Floats from the exact differences.
Float BetaTail(Float X, Float A, Float B, Float Lo, Float Hi, bool upper) {
    const TwoFloat range = special::TwoSum(Hi, -Lo);
    TwoFloat z = special::TwoSum(X, -Lo) / range, w = special::TwoSum(Hi, -X) / range;
    if (!std::isfinite(z.lo) || !std::isfinite(w.lo))  // a difference beyond the range of Float
        z = {(X - Lo) / (Hi - Lo), 0}, w = {(Hi - X) / (Hi - Lo), 0};
    if (z.hi <= 0) return upper ? 1 : 0;
    if (w.hi <= 0) return upper ? 0 : 1;
    return upper ? special::IncompleteBeta(w, B, A) : special::IncompleteBeta(z, A, B);
}

}  // namespace

Float BetaDistLess(Float X, Float A, Float B, Float Lo, Float Hi) {
    RequireBeta(A, B, Lo, Hi);
    return BetaTail(X, A, B, Lo, Hi, false);
}

Float BetaDistGreater(Float X, Float A, Float B, Float Lo, Float Hi) {
    RequireBeta(A, B, Lo, Hi);
    return BetaTail(X, A, B, Lo, Hi, true);
}

Float BetaPDF(Float X, Float A, Float B, Float Lo, Float Hi) {
    RequireBeta(A, B, Lo, Hi);
    const Float width = Hi - Lo;
    return BetaDensity((X - Lo) / width, (Hi - X) / width, A, B) / width;
}

Float InvBetaDistLess(Float P, Float A, Float B, Float Lo, Float Hi) {
    RequireBeta(A, B, Lo, Hi);
    RequireProbability(P);
    const Float z = P == 0 ? 0 : P == 1 ? 1 : InverseIncompleteBeta(P, A, B);
    return Lo + (Hi - Lo) * z;
}

}  // namespace KornumStatistics
