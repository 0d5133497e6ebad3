#include <kornum/BetaDistribution.h>

#include <kornum/Kornummath.h>

#include "core/detail/BaseLibraryInterface.hpp"
#include "statistics/detail/DistributionSupport.hpp"

#include <cmath>

namespace KornumStatistics {

namespace {

using namespace detail;  // the distribution sources' shared checks and pieces

void RequireBeta(Float a, Float b, Float lo, Float hi) {
    Require(a > 0 && b > 0, Kornum_RS_Math::rsValueGZero);
    Require(lo != hi, Kornum_RS_Math::rsSameValue);
}

// z = (X - Lo) / (Hi - Lo) and w = (Hi - X) / (Hi - Lo), each in two Floats from the exact
// differences, so that neither is a rounded 1 minus the other.
struct Standardised {
    TwoFloat z, w;
};

Standardised Standardise(Float X, Float Lo, Float Hi) {
    const TwoFloat range = special::TwoSum(Hi, -Lo);
    const TwoFloat z = special::TwoSum(X, -Lo) / range, w = special::TwoSum(Hi, -X) / range;
    if (!std::isfinite(z.lo) || !std::isfinite(w.lo))  // a difference beyond the range of Float
        return {{(X - Lo) / (Hi - Lo), 0}, {(Hi - X) / (Hi - Lo), 0}};
    return {z, w};
}

// As for F: each tail its own incomplete beta, at z or at w.
Float BetaTail(Float X, Float A, Float B, Float Lo, Float Hi, bool upper) {
    if (Lo == 0 && Hi == 1) {  // z = X and w = 1 - X, without the divisions
        if (X <= 0) return upper ? 1 : 0;
        if (X >= 1) return upper ? 0 : 1;
        return upper ? special::IncompleteBeta(special::TwoSum(1, -X), B, A)
                     : special::IncompleteBeta({X, 0}, A, B);
    }
    const Standardised p = Standardise(X, Lo, Hi);
    if (p.z.hi <= 0) return upper ? 1 : 0;
    if (p.w.hi <= 0) return upper ? 0 : 1;
    return upper ? special::IncompleteBeta(p.w, B, A) : special::IncompleteBeta(p.z, A, B);
}

// The quantile on [Lo, Hi] from the end it lies nearer: Hi - (Hi - Lo) w keeps the digits
// of a small w that Lo + (Hi - Lo) (1 - w) would round away.
Float Scale(const special::BetaQuantile& q, Float Lo, Float Hi) {
    return q.x <= 0.5L ? Lo + (Hi - Lo) * q.x : Hi - (Hi - Lo) * q.complement;
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
    const Standardised p = Standardise(X, Lo, Hi);
    if (p.z.hi <= 0 || p.w.hi <= 0) {
        if (p.z.hi < 0 || p.w.hi < 0) return 0;
        const bool atLo = p.z.hi == 0;
        const Float edge = atLo ? A : B;  // the exponent that meets 0
        return (edge < 1 ? Infinity : edge == 1 ? (atLo ? B : A) : 0) / width;
    }
    return special::BetaDensity(p.z, p.w, A, B) / width;
}

Float InvBetaDistLess(Float P, Float A, Float B, Float Lo, Float Hi) {
    RequireBeta(A, B, Lo, Hi);
    RequireProbability(P);
    if (P == 0) return Lo;
    if (P == 1) return Hi;
    return Scale(special::InverseIncompleteBeta(P, A, B, false), Lo, Hi);
}

Float InvBetaDistGreater(Float Q, Float A, Float B, Float Lo, Float Hi) {
    RequireBeta(A, B, Lo, Hi);
    RequireProbability(Q);
    if (Q == 0) return Hi;
    if (Q == 1) return Lo;
    return Scale(special::InverseIncompleteBeta(Q, A, B, true), Lo, Hi);
}

}  // namespace KornumStatistics
