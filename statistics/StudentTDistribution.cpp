#include <kornum/StudentTDistribution.h>

#include <kornum/NormalDistributions.h>

#include "core/detail/BaseLibraryInterface.hpp"
#include "statistics/detail/DistributionSupport.hpp"
#include "statistics/detail/StudentWholeDegrees.hpp"

#include <cmath>

namespace KornumStatistics {
namespace {

using namespace detail;  // the distribution sources' shared checks and pieces

// ln(1 + u) for u >= 0 given as a TwoFloat, in TwoFloat.
TwoFloat LogOnePlus(TwoFloat u) { return special::Log(special::TwoSum(1, u.hi) + TwoFloat{u.lo, 0}); }

// P(T > |t|): in closed form for one degree of freedom, atan(1 / |t|) / pi, and for up
// to StudentClosedFormLimit through the finite sums of StudentWholeDegrees.hpp. Otherwise
// I_x(df/2, 1/2) / 2 with x = df / (df + t^2). Where that comes out large (near 1/2, t
// small) x is near 1 and its rounding would show; there the central half,
// I_y(1/2, df/2) / 2 with y = t^2 / (df + t^2), is small and gives the tail as 1/2 minus
// it. Each argument is formed directly, never as 1 - the other, and passed on in two
// Floats: x^(df/2) would magnify the rounding of one Float by df / 2.
Float StudentTail(Float t, Integer df) {
    if (std::isinf(t)) return 0;
    if (df == 1) return std::atan(1 / std::fabs(t)) * detail::InversePi;
    Float closed;
    if (df <= detail::StudentClosedFormLimit && detail::StudentTailClosedForm(std::fabs(t), df, closed))
        return closed;
    const Float n = df;
    const detail::StudentRatiosExact r = detail::MakeStudentRatiosExact(std::fabs(t), n);
    const auto central = [&] { return (1 - special::IncompleteBeta(r.y, 0.5L, n / 2)) / 2; };
    if (t * t < 0.45L) return central();  // |t| < 0.67: the tail is above 1/4 for every df
    const Float tail = special::IncompleteBeta(r.x, n / 2, 0.5L) / 2;
    return tail < 0.25L ? tail : central();
}

}  // namespace

Float StudentTLess(Float T, Integer DF) {
    RequireDegrees(DF);
    return T < 0 ? StudentTail(T, DF) : 1 - StudentTail(T, DF);
}

Float StudentTGreater(Float T, Integer DF) {
    RequireDegrees(DF);
    return T > 0 ? StudentTail(T, DF) : 1 - StudentTail(T, DF);
}

// (1 + t^2/df)^(-(df+1)/2) / (sqrt(df) Beta(df/2, 1/2)), the power from a TwoFloat
// logarithm of 1 + t^2/df with t^2 split exactly.
Float StudentTPDF(Float T, Integer DF) {
    RequireDegrees(DF);
    if (std::isinf(T)) return 0;
    const Float n = DF;
    const TwoFloat square = special::TwoProduct(T, T);
    const Float quotient = square.hi / n;
    const TwoFloat back = special::TwoProduct(quotient, n);  // quotient * n exactly
    const TwoFloat u = {quotient, ((square.hi - back.hi) - back.lo + square.lo) / n};
    const TwoFloat e = LogOnePlus(u) * (-(n + 1) / 2);
    return ExpOver(e, std::sqrt(n) * Kornummath::Beta(n / 2, 0.5L));
}

// Halley's method on the smaller tail (P and 1 - P exchanged by the symmetry). Up to
// StudentClosedFormLimit degrees of freedom each step evaluates the closed forms, and the
// incomplete beta only for a tail they cannot resolve; beyond, the incomplete beta gives
// the central probability or the tail, and t f(t) is f(0) sqrt(df (1 - x)) x^(df / 2).
Float InvStudentTLess(Float P, Integer DF) {
    RequireDegrees(DF);
    RequireProbability(P);
    if (P == 0) return -Infinity;
    if (P == 1) return Infinity;
    if (P == 0.5L) return 0;
    const Float tail = P < 0.5L ? P : 1 - P;  // 1 - P is exact for P >= 1/2
    const Float n = DF;
    const bool closed = DF <= detail::StudentClosedFormLimit;
    const Float densityAtZero =
        closed ? detail::StudentDensityAtZero(DF) : 1 / (std::sqrt(n) * Kornummath::Beta(n / 2, 0.5L));
    const auto evaluate = [&](Float t, bool onCentral) -> detail::StudentPoint {
        if (closed) {
            const detail::StudentClosedForm v = detail::EvaluateStudentClosedForm(t, DF);
            return {v.central, onCentral || v.tailKept ? v.tail : 2 * StudentTail(t, DF),
                    densityAtZero * v.falloff, v.x};
        }
        const detail::StudentRatiosExact r = detail::MakeStudentRatiosExact(t, n);
        // t f(t) = f(0) sqrt(n (1 - x)) x^(n / 2): x^((n + 1) / 2) alone can fall below the
        // normal range where t f(t) does not
        const Float slope = densityAtZero * std::sqrt(n * r.y.hi) * std::pow(r.x.hi, n / 2);
        if (onCentral) return {special::IncompleteBeta(r.y, 0.5L, n / 2), 0, slope, r.x.hi};
        return {0, 2 * StudentTail(t, DF), slope, r.x.hi};
    };
    const Float t = detail::InverseStudentTail(tail, -InvNormalLess(tail), DF, densityAtZero, evaluate);
    return P < 0.5L ? -t : t;
}

// By the symmetry P(T > t) = P(T < -t); 0 - t keeps Q = 1/2 at +0.
Float InvStudentTGreater(Float Q, Integer DF) { return 0 - InvStudentTLess(Q, DF); }

}  // namespace KornumStatistics
