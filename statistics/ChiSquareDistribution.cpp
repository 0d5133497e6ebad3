#include <kornum/ChiSquareDistribution.h>

#include <kornum/Kornum_RS_Math.h>
#include <kornum/Kornummath.h>
#include <kornum/NormalDistributions.h>
#include <kornum/Platform.h>

#include "core/detail/ExtendedPrecision.hpp"

#include <array>
#include <cmath>
#include <limits>

namespace KornumStatistics {
namespace {

namespace special = Kornummath::special;
using Kornumglobals::KorTolerance;

// Enough steps for every argument below 1e7 at any tolerance the format can meet.
constexpr int MaxSteps = 100000;

// ln Gamma(a) in TwoFloat: the Stirling form of the shifted argument less the log of the
// shift product.
special::TwoFloat LogGamma(Float a) {
    const special::GammaParts gamma = special::SplitGamma({a, 0});
    return gamma.logGamma - special::Log(gamma.product);
}

// ln Gamma(df / 2) for the degrees of freedom the chi-square routines meet most, formed
// once: the shift products of small arguments are most of the cost of a call.
constexpr Integer TabulatedDegrees = 400;
const special::TwoFloat& LogGammaOfHalf(Integer df) {
    static const auto table = [] {
        std::array<special::TwoFloat, TabulatedDegrees + 1> values{};
        for (Integer k = 1; k <= TabulatedDegrees; ++k) values[std::size_t(k)] = LogGamma(Float(k) / 2);
        return values;
    }();
    return table[std::size_t(df)];
}

// X^A e^-X / Gamma(A), with the exponent A ln X - X - ln Gamma(A) in TwoFloat.
Float PowerExpOverGamma(Float a, Float x, const special::TwoFloat& logGamma) {
    if (x == 0) return 0;
    return special::Exp(special::Log(x) * a - special::TwoFloat{x, 0} - logGamma);
}

// ln Gamma(a) for a = df / 2 from the table where it holds it.
special::TwoFloat LogGammaFor(Float a) {
    const Float twice = 2 * a;
    if (twice >= 1 && twice <= TabulatedDegrees && twice == std::floor(twice)) return LogGammaOfHalf(Integer(twice));
    return LogGamma(a);
}

// P(A, X) / prefix = sum over n of X^n / (A (A + 1) ... (A + n)), for X < A + 1.
Float LowerSeries(Float a, Float x) {
    Float term = 1 / a, sum = term;
    for (int n = 1; n < MaxSteps; ++n) {
        term *= x / (a + n);
        sum += term;
        if (term <= sum * KorTolerance) break;
    }
    return sum;
}

// Q(A, X) / prefix as the continued fraction 1 / (X + 1 - A - 1 (1 - A) / (X + 3 - A - ...)),
// evaluated by the modified Lentz method, for X >= A + 1.
Float UpperFraction(Float a, Float x) {
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
        if (std::fabs(step - 1) <= KorTolerance) break;
    }
    return h;
}

void RequireGammaArguments(Float a, Float x) {
    if (!(a > 0)) Platform::Raise(Kornum_RS_Math::rsValueGZero);
    if (x < 0) Platform::Raise(Kornum_RS_Math::rsValueGEZero);
}

// The lower or the upper regularised incomplete gamma, each formed directly where it is
// the smaller one and as one minus the other where it is at least about one half; prefix
// is X^A e^-X / Gamma(A).
Float RegularisedGamma(Float a, Float x, bool upper, Float prefix) {
    if (x == 0) return upper ? 1 : 0;
    if (std::isinf(x)) return upper ? 0 : 1;
    if (x < a + 1) {
        const Float lower = prefix * LowerSeries(a, x);
        return upper ? 1 - lower : lower;
    }
    const Float upperTail = prefix * UpperFraction(a, x);
    return upper ? upperTail : 1 - upperTail;
}

void RequireChiSquare(Float chiSq, Integer df) {
    if (chiSq < 0) Platform::Raise(Kornum_RS_Math::rsValueGEZero);
    if (df < 1) Platform::Raise(Kornum_RS_Math::rsDF);
}

// The regularised incomplete gamma with its prefix worked out.
Float Regularised(Float a, Float x, bool upper) {
    const Float prefix = std::isinf(x) ? 0 : PowerExpOverGamma(a, x, LogGammaFor(a));
    return RegularisedGamma(a, x, upper, prefix);
}

}  // namespace

Float IncompleteGamma(Float A, Float X) {
    RequireGammaArguments(A, X);
    return Regularised(A, X, false);
}

Float IncompleteGamma2(Float A, Float X) {
    RequireGammaArguments(A, X);
    return Kornummath::Gamma(A) * Regularised(A, X, false);
}

Float ChiSquareLess(Float ChiSq, Integer DF) {
    RequireChiSquare(ChiSq, DF);
    return Regularised(Float(DF) / 2, ChiSq / 2, false);
}

Float ChiSquareGreater(Float ChiSq, Integer DF) {
    RequireChiSquare(ChiSq, DF);
    return Regularised(Float(DF) / 2, ChiSq / 2, true);
}

// (x/2)^(k/2 - 1) e^(-x/2) / (2 Gamma(k/2)) = prefix(k/2, x/2) / x.
Float ChiSquarePDF(Float ChiSq, Integer DF) {
    RequireChiSquare(ChiSq, DF);
    const Float a = Float(DF) / 2;
    if (ChiSq == 0) return DF == 2 ? 0.5L : DF < 2 ? std::numeric_limits<Float>::infinity() : 0;
    return PowerExpOverGamma(a, ChiSq / 2, LogGammaFor(a)) / ChiSq;
}

// Halley steps on the smaller tail, from the Wilson-Hilferty approximation.
Float InvChiSquareLess(Float P, Integer DF) {
    if (DF < 1) Platform::Raise(Kornum_RS_Math::rsDF);
    if (!(P >= 0 && P <= 1)) Platform::Raise(Kornum_RS_Math::rsValue01Inc);
    if (P == 0) return 0;
    if (P == 1) return std::numeric_limits<Float>::infinity();
    const Float a = Float(DF) / 2;
    const bool upper = P > 0.5L;
    const Float target = upper ? 1 - P : P;
    // Start: Wilson-Hilferty, x/a ~ (1 - h + z sqrt(h))^3 with h = 1/(9a) and z the normal
    // quantile of the tail; where that is not positive, the small-x form P ~ x^a / Gamma(a+1).
    const Float z = upper ? InvNormalGreater(target) : InvNormalLess(target);
    const Float h = 1 / (9 * a);
    const Float w = 1 - h + z * std::sqrt(h);
    Float x = a * w * w * w;
    if (!(w > 0.1L) || !(x > 0)) x = std::pow(target * a * Kornummath::Gamma(a), 1 / a);
    // Halley on f(x) = tail(a, x) - target, tail' = -+ prefix / x.
    const special::TwoFloat logGamma = LogGammaFor(a);
    for (int step = 0; step < 100; ++step) {
        const Float prefix = PowerExpOverGamma(a, x, logGamma);
        const Float value = RegularisedGamma(a, x, upper, prefix) - target;
        const Float density = prefix / x;
        if (!(density > 0)) break;
        const Float slope = upper ? -density : density;
        const Float newton = value / slope;
        const Float curvature = ((a - 1) / x - 1);  // f''/f'
        Float change = newton / (1 - 0.5L * newton * curvature);
        if (!(std::fabs(change) < x)) change = newton;
        Float next = x - change;
        if (next <= 0) next = x / 2;
        const bool done = std::fabs(next - x) <= x * 4 * special::Epsilon;
        x = next;
        if (done) break;
    }
    return 2 * x;
}

}  // namespace KornumStatistics
