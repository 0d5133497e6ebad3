#include <kornum/ChiSquareDistribution.h>

#include <kornum/Kornum_RS_Math.h>
#include <kornum/Kornummath.h>
#include <kornum/NormalDistributions.h>
#include <kornum/Platform.h>

#include "core/detail/ExtendedPrecision.hpp"
#include "statistics/detail/DistributionSupport.hpp"
#include "statistics/detail/GammaClosedForms.hpp"

#include <array>
#include <cmath>
#include <limits>

namespace KornumStatistics {
namespace {

using namespace detail;  // the distribution sources' shared checks and pieces
using Kornumglobals::KorTolerance;

// Enough steps for every argument up to 1e7 at any tolerance the format can meet: near
// X = A the terms fall like e^(-n^2 / 2A), so about 9.4 sqrt(A) of them reach 1e-19.
constexpr int MaxSteps = 100000;

// The chi-square functions and the quantiles sum their tails to the precision of the
// format; only the incomplete gamma itself stops at the tolerance in force (KorTolerance).
constexpr Float FullPrecision = special::Epsilon / 2;

// ln Gamma(a) in TwoFloat: the Stirling form of the shifted argument less the log of the
// shift product.
TwoFloat LogGamma(Float a) {
    const special::GammaParts gamma = special::SplitGamma({a, 0});
    return gamma.logGamma - special::Log(gamma.product);
}

// ln Gamma(df / 2), for the degrees of freedom the chi-square routines meet most from a
// table formed once: the shift products of small arguments are most of the cost of a call.
constexpr Integer TabulatedDegrees = 400;
TwoFloat LogGammaOfHalf(Integer df) {
    static const auto table = [] {
        std::array<TwoFloat, TabulatedDegrees + 1> values{};
        for (Integer k = 1; k <= TabulatedDegrees; ++k) values[std::size_t(k)] = LogGamma(Float(k) / 2);
        return values;
    }();
    return df <= TabulatedDegrees ? table[std::size_t(df)] : LogGamma(Float(df) / 2);
}

// ln Gamma(A) for any A > 0, from the table where A is one of its halves. (The chi-square
// routines, which know their degrees of freedom, skip this test: rounding a Float to an
// integer switches the x87 rounding mode, slow enough to show in a call.)
TwoFloat LogGammaFor(Float a) {
    const Float twice = 2 * a;
    if (twice >= 1 && twice <= TabulatedDegrees && twice == std::floor(twice)) return LogGammaOfHalf(Integer(twice));
    return LogGamma(a);
}

// Beyond this shape, roundings that grow with A reach the last bits of the tails at the
// tightest tolerances: the series runs over some 10 sqrt(A) terms near X = A, and the
// fraction takes about as many steps near A + 1.
constexpr Float LargeShape = 100;

// Beyond this one, A ln X carries A times the logarithm's absolute error (2^-80 or so)
// into the prefix, more than a tenth of its last bit.
constexpr Float HugeShape = 4096;

// ln(1 + d) - d = -d^2 (1/2 - d/3 + d^2/4 - ...) for |d| <= 1/4, every term in TwoFloat:
// a caller multiplies it by up to a million. Terms below 2^-90 are left out (45 at most).
TwoFloat LogOnePlusMinusItself(TwoFloat d) {
    static const auto reciprocals = [] {  // 1 / (j + 2)
        std::array<TwoFloat, 48> values{};
        for (std::size_t j = 0; j < values.size(); ++j) values[j] = TwoFloat{1, 0} / TwoFloat{Float(j + 2), 0};
        return values;
    }();
    TwoFloat sum{0, 0}, power{1, 0};
    for (std::size_t j = 0; j < reciprocals.size() && std::fabs(power.hi) > 0x1p-90L; ++j) {
        sum = sum + power * reciprocals[j];
        power = power * -d;
    }
    return -(d * d) * sum;
}

// ln of the prefix X^A e^-X / Gamma(A) that both tails share, in TwoFloat: its terms
// reach 1e7 while it may be small. For huge shapes near X = A it is taken as
// A (ln(1 + d) - d) + ln(A) / 2 - ln sqrt(2 pi) - mu(A), d = (X - A) / A and mu the
// Stirling remainder: Stirling's form of ln Gamma(A) cancels A ln A - A exactly, and
// A ln X no longer multiplies the logarithm's error.
TwoFloat LogPrefix(Float a, Float x, const TwoFloat& logGamma) {
    if (a > HugeShape && std::fabs(x - a) <= a / 4) [[unlikely]] {
        const TwoFloat d = TwoFloat{x - a, 0} / TwoFloat{a, 0};  // x - a is exact here
        return LogOnePlusMinusItself(d) * a + special::Log(a) * 0.5L - special::LnSqrtTwoPi -
               TwoFloat{special::StirlingRemainder(1 / a), 0};
    }
    return special::Log(x) * a - TwoFloat{x, 0} - logGamma;
}

Float PowerExpOverGamma(Float a, Float x, const TwoFloat& logGamma) {
    return x == 0 ? 0 : special::Exp(LogPrefix(a, x, logGamma));
}

// X / Y in the precision of the sum that uses it, and a sum's value.
Float Ratio(Float x, Float y, Float) { return x / y; }
TwoFloat Ratio(Float x, Float y, TwoFloat) { return TwoFloat{x, 0} / TwoFloat{y, 0}; }
Float Value(Float v) { return v; }
Float Value(TwoFloat v) { return v.hi + v.lo; }

// P(A, X) / prefix = sum over n of X^n / (A (A + 1) ... (A + n)). The ratio of two terms,
// X / (A + n), falls with n, so once A + n + 1 > X the rest after a term is below
// term X / (A + n + 1 - X): the sum stops when that bound drops below the tolerance, not
// merely the last term, which near X = A is many times smaller than the rest. Number is
// Float, or TwoFloat where the rounding of some sqrt(A) running products would show.
template <class Number>
Float SumLowerSeries(Float a, Float x, Float tolerance) {
    Number term = Ratio(1, a, Number{}), sum = term;
    Float shifted = a;  // A + n, counted in Floats: no conversion per step
    // tolerance (A + n + 1 - X) / X, grown by a constant step: no division per step
    const Float perStep = tolerance / x;
    Float allowed = (a + 1 - x) * perStep;
    for (int n = 1; n < MaxSteps; ++n) {
        shifted += 1;
        allowed += perStep;
        term = term * Ratio(x, shifted, Number{});
        sum = sum + term;
        if (allowed > 0 && Value(term) <= Value(sum) * allowed) break;
    }
    return Value(sum);
}

// Below this tolerance a plain sum over the terms of a large shape is rounded by more
// than the tolerance.
constexpr Float PlainSumFloor = 0x1p-56L;

Float LowerSeries(Float a, Float x, Float tolerance) {
    const bool twoFloat = a > LargeShape && tolerance < PlainSumFloor;
    return twoFloat ? SumLowerSeries<TwoFloat>(a, x, tolerance) : SumLowerSeries<Float>(a, x, tolerance);
}

// Q(A, X) / prefix as the continued fraction 1 / (X + 1 - A - 1 (1 - A) / (X + 3 - A - ...)),
// evaluated by the modified Lentz method, for X >= A + 1.
Float UpperFraction(Float a, Float x, Float tolerance) {
    constexpr Float Tiny = std::numeric_limits<Float>::min() * 16;
    Float b = x + 1 - a, c = 1 / Tiny, d = 1 / b, h = d;
    for (int i = 1; i < MaxSteps; ++i) {
        const Float an = -i * (i - a);
        b += 2;
        d = an * d + b;
        if (std::fabs(d) < Tiny) d = Tiny;
        c = b + an / c;
        if (std::fabs(c) < Tiny) c = Tiny;
        d = 1 / d;
        const Float step = d * c;
        h *= step;
        if (std::fabs(step - 1) <= tolerance) break;
    }
    return h;
}

// The sum or fraction that the tail on X's side of A + 1 is the prefix times, to the
// precision of the format. Plain Floats suffice for a quantile: where their rounding
// grows, at large shapes, the tail changes by about sqrt(A) times X's relative change.
Float TailFactor(Float a, Float x) {
    return x < a + 1 ? SumLowerSeries<Float>(a, x, FullPrecision) : UpperFraction(a, x, FullPrecision);
}

void RequireGammaArguments(Float a, Float x) {
    if (!(a > 0)) Platform::Raise(Kornum_RS_Math::rsValueGZero);
    if (x < 0) Platform::Raise(Kornum_RS_Math::rsValueGEZero);
}

// The lower or the upper regularised incomplete gamma to `tolerance`, each formed directly on its own side and as one minus the other where that is at least
// about one half. The lower tail's side reaches a standard deviation beyond A + 1 for
// large shapes: the fraction converges slowly near A + 1, and the rounding of its many
// steps would show in a lower tail of about one half.
Float Regularised(Float a, Float x, bool upper, const TwoFloat& logGamma, Float tolerance) {
    if (x == 0) return upper ? 1 : 0;
    if (std::isinf(x)) return upper ? 0 : 1;
    const bool series = x < a + 1 || (!upper && a > LargeShape && x < a + 1 + std::sqrt(a));
    const Float factor = series ? LowerSeries(a, x, tolerance) : UpperFraction(a, x, tolerance);
    const Float tail = PowerExpOverGamma(a, x, logGamma) * factor;
    return series == upper ? 1 - tail : tail;
}

void RequireChiSquare(Float chiSq, Integer df) {
    if (chiSq < 0) Platform::Raise(Kornum_RS_Math::rsValueGEZero);
    if (df < 1) Platform::Raise(Kornum_RS_Math::rsDF);
}

// ---- The quantile ---------------------------------------------------------------------
//
// The root X of ln T(X) = ln t, T the smaller tail of the gamma distribution with shape A
// and t its target: on a logarithm, a tail of 1e-300 is as easy as one of 1/2, and the
// series or fraction that gives T also gives the logarithmic slope without the density's
// exponential. Halley steps in ln X for the lower tail, where ln T is nearly linear in
// ln X (T ~ X^A), and in X for the upper one, where it is nearly linear in X (T ~ e^-X);
// a bracket catches any step that leaves it.

struct GammaRoot {
    Float a;
    bool upper;            // the target is the upper tail
    TwoFloat logGamma;     // ln Gamma(A)
    TwoFloat logTarget;    // ln t
};

// g = ln(T(X) / t) and its slope X dg/dX at one X.
struct Excess {
    Float value, slope;
};

Excess LogTailExcess(const GammaRoot& root, Float x) {
    const Float a = root.a;
    const TwoFloat logPrefix = LogPrefix(a, x, root.logGamma);
    const Float factor = TailFactor(a, x);
    if ((x < a + 1) != root.upper) {
        // T = prefix factor, the density is prefix / X: X T' / T = +-1 / factor.
        const TwoFloat d = logPrefix - root.logTarget;
        return {(d.hi + std::log(factor)) + d.lo, root.upper ? -1 / factor : 1 / factor};
    }
    // T = 1 - prefix factor, at least about 0.3 on this side of A + 1.
    const Float prefix = special::Exp(logPrefix);
    const Float other = prefix * factor;
    const TwoFloat d = TwoFloat{std::log1p(-other), 0} - root.logTarget;
    return {d.hi + d.lo, (root.upper ? -prefix : prefix) / (1 - other)};
}

// |z| of a normal tail t far out, from ln t: z^2 = -2 ln t - ln(-2 ln t) - ln(2 pi) to
// leading order, enough for a starting point.
Float FarNormalQuantile(Float logTarget) {
    const Float twice = -2 * logTarget;
    return std::sqrt(twice - std::log(twice) - 1.8378770664093454836L);
}

// The Wilson-Hilferty approximation X / A ~ (1 - h + z sqrt(h))^3, h = 1 / 9A, with z the
// normal quantile of the same tail; 0 where the cube's base is not safely positive.
Float WilsonHilferty(const GammaRoot& root, Float target) {
    const Float depth = target >= 1e-300L ? -InvNormalLess(target) : FarNormalQuantile(root.logTarget.hi);
    const Float z = root.upper ? depth : -depth;
    const Float h = 1 / (9 * root.a);
    const Float w = 1 - h + z * std::sqrt(h);
    return w > 0.3L ? root.a * w * w * w : 0;
}

// ln X of the power law T ~ X^A / Gamma(A + 1), which lies below the lower quantile:
// e^-X M(1, A + 1, X) = T Gamma(A + 1) / X^A is at most 1.
Float LogPowerLaw(const GammaRoot& root) {
    return (root.logTarget.hi + root.logGamma.hi + std::log(root.a)) / root.a;
}

// A starting point right in each tail. Lower: the power law T ~ X^A e^(-A X / (A + 1)) /
// Gamma(A + 1) where X is well below A + 1, else Wilson-Hilferty. Upper: the
// asymptotic T ~ X^(A-1) e^-X (1 + (A - 1) / X) / Gamma(A) where t is far out, else
// Wilson-Hilferty.
Float StartingPoint(const GammaRoot& root, Float target) {
    const Float a = root.a, logTarget = root.logTarget.hi, logGamma = root.logGamma.hi;
    if (!root.upper) {
        const Float power = std::exp(LogPowerLaw(root));
        const Float ratio = power / (a + 1);
        if (ratio < 0.3L) return power * std::exp(ratio);
        const Float guess = WilsonHilferty(root, target);
        return guess > 0 ? guess : power * std::exp(std::fmin(ratio, 1));
    }
    if (-logTarget > 2 * a + 5) {
        Float x = std::fmax(-logTarget, a);
        for (int i = 0; i < 3; ++i) x = -logTarget - logGamma + (a - 1) * std::log(x) + std::log1p((a - 1) / x);
        if (x > 0) return x;
    }
    const Float guess = WilsonHilferty(root, target);
    return guess > 0 ? guess : a;
}

// e^u for the steps of ln X, by its Taylor polynomial for the small ones that end an
// iteration (off by at most u^6 / 720, below 1e-15 and soon corrected, nothing at the
// last step), without the library call.
Float ExpOfStep(Float u) {
    if (std::fabs(u) > 0x1p-7L) return std::exp(u);
    return 1 + u * (1 + u / 2 * (1 + u / 3 * (1 + u / 4 * (1 + u / 5))));
}

// A Halley step from a point whose excess is this small leaves an error of order its
// cube, below the format's precision: the step is taken and the iteration ends.
constexpr Float LastStep = 0x1p-21L;

// The X with T(X) = t for a target t in (0, 1/2] of the tail named by upper.
Float GammaQuantile(Float a, Float target, bool upper, const TwoFloat& logGamma) {
    const GammaRoot root{a, upper, logGamma, special::Log(target)};
    // A lower quantile this far down lies so far below A + 1 that the power law holds to
    // every digit: below half the least subnormal, its only Float is 0.
    if (!upper && LogPowerLaw(root) < -11400) return 0;
    Float lo = 0, hi = Infinity;
    Float x = StartingPoint(root, target);
    if (!(x > 0) || std::isinf(x)) x = a;
    for (int iteration = 0; iteration < 200; ++iteration) {
        const Excess g = LogTailExcess(root, x);
        if (g.value == 0) return x;
        if ((g.value > 0) != upper) hi = x; else lo = x;
        // Halley's factor 1 - g g'' / 2 g'^2, in the variable of the step.
        const Float curvature = (upper ? a - 1 - x : a - x) / g.slope - 1;
        Float halley = 1 - g.value / 2 * curvature;
        if (!(halley > 0.5L && halley < 2)) halley = 1;
        const Float step = -g.value / g.slope / halley;
        Float next = upper ? x + x * step : x * ExpOfStep(step);
        if (!(next > lo && next < hi)) {
            if (std::isinf(hi)) next = 2 * lo + 1;
            else if (lo == 0) next = hi / 16;
            else next = hi > 4 * lo ? std::sqrt(lo) * std::sqrt(hi) : lo + (hi - lo) / 2;
            if (!(next > lo && next < hi)) return x;  // the bracket holds no other Float
        } else if (std::fabs(g.value) * (1 + std::fabs(curvature)) <= LastStep ||
                   std::fabs(next - x) <= x * special::Epsilon) {
            return next;
        }
        x = next;
    }
    return x;
}

// The chi-square quantile of the tail target in (0, 1/2], as twice the gamma one.
Float ChiSquareQuantile(Float target, Integer df, bool upper) {
    const Float a = Float(df) / 2;
    return 2 * GammaQuantile(a, target, upper, LogGammaOfHalf(df));
}

}  // namespace

Float IncompleteGamma(Float A, Float X) {
    RequireGammaArguments(A, X);
    return Regularised(A, X, false, LogGammaFor(A), KorTolerance);
}

Float IncompleteGamma2(Float A, Float X) {
    RequireGammaArguments(A, X);
    return Kornummath::Gamma(A) * Regularised(A, X, false, LogGammaFor(A), KorTolerance);
}

Float ChiSquareLess(Float ChiSq, Integer DF) {
    RequireChiSquare(ChiSq, DF);
    if (DF <= ClosedFormDegrees && ChiSq > 0 && std::isfinite(ChiSq)) {
        // 1 minus the upper tail keeps the upper tail's few ulps while that is at most 1/2.
        const Float upper = ChiSquareUpperClosedForm(ChiSq, DF);
        if (upper >= std::numeric_limits<Float>::min() && upper <= 0.5L) return 1 - upper;
    }
    return Regularised(Float(DF) / 2, ChiSq / 2, false, LogGammaOfHalf(DF), FullPrecision);
}

Float ChiSquareGreater(Float ChiSq, Integer DF) {
    RequireChiSquare(ChiSq, DF);
    if (DF <= ClosedFormDegrees && ChiSq > 0 && std::isfinite(ChiSq)) {
        const Float upper = ChiSquareUpperClosedForm(ChiSq, DF);
        if (upper >= std::numeric_limits<Float>::min()) return upper;
    }
    return Regularised(Float(DF) / 2, ChiSq / 2, true, LogGammaOfHalf(DF), FullPrecision);
}

// (x/2)^(k/2 - 1) e^(-x/2) / (2 Gamma(k/2)) = prefix(k/2, x/2) / x.
Float ChiSquarePDF(Float ChiSq, Integer DF) {
    RequireChiSquare(ChiSq, DF);
    const Float a = Float(DF) / 2;
    if (ChiSq == 0) return DF == 2 ? 0.5L : DF < 2 ? Infinity : 0;
    return PowerExpOverGamma(a, ChiSq / 2, LogGammaOfHalf(DF)) / ChiSq;
}

// Each inverse works on the smaller tail: 1 - P is exact for P >= 1/2.
Float InvChiSquareLess(Float P, Integer DF) {
    RequireDegrees(DF);
    RequireProbability(P);
    if (P == 0) return 0;
    if (P == 1) return Infinity;
    return P <= 0.5L ? ChiSquareQuantile(P, DF, false) : ChiSquareQuantile(1 - P, DF, true);
}

Float InvChiSquareGreater(Float Q, Integer DF) {
    RequireDegrees(DF);
    RequireProbability(Q);
    if (Q == 0) return Infinity;
    if (Q == 1) return 0;
    return Q <= 0.5L ? ChiSquareQuantile(Q, DF, true) : ChiSquareQuantile(1 - Q, DF, false);
}

}  // namespace KornumStatistics
