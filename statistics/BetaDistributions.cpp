#include <kornum/BetaDistributions.h>

#include <kornum/DiscreteDistributions.h>
#include <kornum/GammaDistributions.h>
#include <kornum/Kornum_RS_Math.h>
#include <kornum/Kornummath.h>
#include <kornum/NormalDistributions.h>
#include <kornum/Platform.h>

#include "core/detail/BaseLibraryInterface.hpp"
#include "statistics/detail/NegativeExponential.hpp"
#include "statistics/detail/StudentWholeDegrees.hpp"

#include <cmath>
#include <limits>

namespace KornumStatistics {
namespace {

namespace special = Kornummath::special;
using detail::ExpOfNegative;
using detail::OneMinusExpOfNegative;
using Kornummath::IncompleteBeta;
using Kornummath::InverseIncompleteBeta;
using special::TwoFloat;
constexpr Float Infinity = std::numeric_limits<Float>::infinity();

using Platform::Require;
void RequireProbability(Float p) { Require(p >= 0 && p <= 1, Kornum_RS_Math::rsValue01Inc); }
void RequireDegrees(Integer df) { Require(df >= 1, Kornum_RS_Math::rsDF); }

// ln(1 + u) for u >= 0 given as a TwoFloat, in TwoFloat.
TwoFloat LogOnePlus(TwoFloat u) { return special::Log(special::TwoSum(1, u.hi) + TwoFloat{u.lo, 0}); }

// ---- Student's t ---------------------------------------------------------------------------

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

// ---- Shared pieces of the densities ----------------------------------------------------

// exp(E) / divisor with E a TwoFloat: one exponential at the end.
Float ExpOver(TwoFloat e, Float divisor) { return special::Exp(e) / divisor; }

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

void RequireF(Float x, Integer n1, Integer n2, const Platform::ResourceString& negative, bool zeroAllowed) {
    Require(zeroAllowed ? x >= 0 : x > 0, negative);
    RequireDegrees(n1);
    RequireDegrees(n2);
}

void RequireBeta(Float a, Float b, Float lo, Float hi) {
    Require(a > 0 && b > 0, Kornum_RS_Math::rsValueGZero);
    Require(lo != hi, Kornum_RS_Math::rsSameValue);
}

void RequireRate(Float lambda) { Require(lambda > 0, Kornum_RS_Math::rsExpDistInvalid); }

// ---- Density tables ------------------------------------------------------------------------

// N points from lo to hi and density(x) at each; the caller's vectors are set only when
// every point is done.
template <class Density>
void Table(Float lo, Float hi, Integer n, TKorFloatVector& X, TKorFloatVector& Y, Density density) {
    Require(n >= 2 && hi > lo, Kornum_RS_Math::rsInvalidValue);
    TKorFloatVector xs, ys;
    xs.SetLength(n);
    ys.SetLength(n);
    for (Integer i = 0; i < n; ++i) {
        const Float x = i == n - 1 ? hi : lo + (hi - lo) * Float(i) / Float(n - 1);
        xs[i] = x;
        ys[i] = density(x);
    }
    X = xs;
    Y = ys;
}

template <class Probability>
void DiscreteTable(Cardinal last, TKorFloatVector& X, TKorFloatVector& Y, Probability probability) {
    TKorFloatVector xs, ys;
    xs.SetLength(Integer(last) + 1);
    ys.SetLength(Integer(last) + 1);
    for (Cardinal k = 0; k <= last; ++k) {
        xs[Integer(k)] = Float(k);
        ys[Integer(k)] = probability(k);
    }
    X = xs;
    Y = ys;
}

}  // namespace

// ---- Student's t ---------------------------------------------------------------------------

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
// the central probability or the tail, and the density is f(0) x^((df + 1) / 2).
Float InvStudentTLess(Float P, Integer DF) {
    RequireProbability(P);
    RequireDegrees(DF);
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
        const Float density = densityAtZero * std::pow(r.x.hi, (n + 1) / 2);
        if (onCentral) return {special::IncompleteBeta(r.y, 0.5L, n / 2), 0, density, r.x.hi};
        return {0, 2 * StudentTail(t, DF), density, r.x.hi};
    };
    const Float t = detail::InverseStudentTail(tail, -InvNormalLess(tail), DF, densityAtZero, evaluate);
    return P < 0.5L ? -t : t;
}

// ---- F ----------------------------------------------------------------------------------------

namespace {

// Each tail is its own incomplete beta, which takes the small side directly and the large
// one as 1 minus its mirror; the arguments are formed from the exact product N1 X and
// passed on in two Floats, so that neither argument's rounding shows in the result
// (x^(N1 / 2) would magnify the rounding of one Float by N1 / 2).
Float FDistTail(Float X, Integer N1, Integer N2, bool upper) {
    const TwoFloat a = special::TwoProduct(N1, X);
    if (!std::isfinite(a.hi)) return upper ? 0 : 1;
    const Float b = N2;
    const TwoFloat sum = special::TwoSum(b, a.hi) + TwoFloat{a.lo, 0};
    return upper ? special::IncompleteBeta(TwoFloat{b, 0} / sum, b / 2, Float(N1) / 2)
                 : special::IncompleteBeta(a / sum, Float(N1) / 2, b / 2);
}

}  // namespace

Float FDistLess(Float X, Integer N1, Integer N2) {
    RequireF(X, N1, N2, Kornum_RS_Math::rsValueGZero, false);
    return FDistTail(X, N1, N2, false);
}

Float FDistGreater(Float X, Integer N1, Integer N2) {
    RequireF(X, N1, N2, Kornum_RS_Math::rsValueGZero, false);
    return FDistTail(X, N1, N2, true);
}

// The beta density at y = n1 x / (n1 x + n2), times dy/dx = n1 n2 / (n1 x + n2)^2.
Float FDistPDF(Float X, Integer N1, Integer N2) {
    RequireF(X, N1, N2, Kornum_RS_Math::rsValueGEZero, true);
    if (std::isinf(X)) return 0;
    const Float n1 = N1, n2 = N2;
    if (X == 0) return N1 == 2 ? 1 : N1 < 2 ? Infinity : 0;
    const TwoFloat a = special::TwoProduct(n1, X);
    const TwoFloat sum = special::TwoSum(a.hi, n2) + TwoFloat{a.lo, 0};
    // (n1 x)^(n1/2) n2^(n2/2) / (n1 x + n2)^((n1+n2)/2) / (x Beta(n1/2, n2/2))
    const TwoFloat e = special::Log(a) * (n1 / 2) + special::Log(n2) * (n2 / 2) - special::Log(sum) * ((n1 + n2) / 2);
    return ExpOver(e, X * Kornummath::Beta(n1 / 2, n2 / 2));
}

Float InvFDistLess(Float P, Integer N1, Integer N2) {
    RequireProbability(P);
    RequireDegrees(N1);
    RequireDegrees(N2);
    Require(P != 1, Kornum_RS_Math::rsInvalidValue);
    if (P == 0) return 0;
    const Float n1 = N1, n2 = N2;
    if (P <= 0.5L) {
        const Float y = InverseIncompleteBeta(P, n1 / 2, n2 / 2);  // y = n1 x / (n1 x + n2)
        return n2 * y / (n1 * (1 - y));
    }
    const Float z = InverseIncompleteBeta(1 - P, n2 / 2, n1 / 2);  // z = 1 - y, 1 - P exact
    return n2 * (1 - z) / (n1 * z);
}

// ---- Beta on [Lo, Hi] --------------------------------------------------------------------------

namespace {

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

// ---- Exponential -----------------------------------------------------------------------------

Float ExponentialLess(Float X, Float Lambda) {
    RequireRate(Lambda);
    return X < 0 ? 0 : OneMinusExpOfNegative(Lambda * X);
}

Float ExponentialGreater(Float X, Float Lambda) {
    RequireRate(Lambda);
    return X < 0 ? 1 : ExpOfNegative(Lambda * X);
}

Float ExponentialPDF(Float X, Float Lambda) {
    RequireRate(Lambda);
    return X < 0 ? 0 : Lambda * ExpOfNegative(Lambda * X);
}

// ---- Density tables ----------------------------------------------------------------------------

void NormalPDFValues(Float XLo, Float XHi, Integer N, Float Mean, Float StdDev, TKorFloatVector& X, TKorFloatVector& Y) {
    Table(XLo, XHi, N, X, Y, [=](Float x) { return NormalPDF(x, Mean, StdDev); });
}
void LogNormalPDFValues(Float XLo, Float XHi, Integer N, Float Mean, Float StdDev, TKorFloatVector& X,
                        TKorFloatVector& Y) {
    Table(XLo, XHi, N, X, Y, [=](Float x) { return LogNormalPDF(x, Mean, StdDev); });
}
void ChiSquarePDFValues(Float XLo, Float XHi, Integer N, Integer DF, TKorFloatVector& X, TKorFloatVector& Y) {
    Table(XLo, XHi, N, X, Y, [=](Float x) { return ChiSquarePDF(x, DF); });
}
void StudentTPDFValues(Float XLo, Float XHi, Integer N, Integer DF, TKorFloatVector& X, TKorFloatVector& Y) {
    Table(XLo, XHi, N, X, Y, [=](Float x) { return StudentTPDF(x, DF); });
}
void FDistPDFValues(Float XLo, Float XHi, Integer N, Integer N1, Integer N2, TKorFloatVector& X, TKorFloatVector& Y) {
    Table(XLo, XHi, N, X, Y, [=](Float x) { return FDistPDF(x, N1, N2); });
}
void BetaPDFValues(Float XLo, Float XHi, Integer N, Float A, Float B, Float Lo, Float Hi, TKorFloatVector& X,
                   TKorFloatVector& Y) {
    Table(XLo, XHi, N, X, Y, [=](Float x) { return BetaPDF(x, A, B, Lo, Hi); });
}
void ExponentialPDFValues(Float XLo, Float XHi, Integer N, Float Lambda, TKorFloatVector& X, TKorFloatVector& Y) {
    Table(XLo, XHi, N, X, Y, [=](Float x) { return ExponentialPDF(x, Lambda); });
}
void BinomialPDFValues(Cardinal N, Float P, TKorFloatVector& X, TKorFloatVector& Y) {
    BinomialEq(P, N, 0);  // the point routine's checks, before anything is written
    DiscreteTable(N, X, Y, [=](Cardinal k) { return BinomialEq(P, N, k); });
}
void PoissonPDFValues(Float Lambda, Cardinal KMax, TKorFloatVector& X, TKorFloatVector& Y) {
    PoissonEq(Lambda, 0);
    DiscreteTable(KMax, X, Y, [=](Cardinal k) { return PoissonEq(Lambda, k); });
}

}  // namespace KornumStatistics
