#include <kornum/NormalDistributions.h>

#include <kornum/Kornum_RS_Math.h>
#include <kornum/Kornummath.h>
#include <kornum/Platform.h>

#include "core/detail/ExtendedPrecision.hpp"
#include "statistics/detail/MillsRatio.hpp"
#include "statistics/detail/NegativeExponential.hpp"
#include "statistics/detail/NormalQuantileTaylor.hpp"
#include "statistics/detail/NormalTailTaylor.hpp"
#include "statistics/detail/StandardNormalTail.hpp"

#include <cmath>
#include <cstdint>
#include <cstring>

namespace KornumStatistics {

namespace {

using Kornummath::FloatIsPositive;
using Kornummath::FloatIsZero;
using Kornummath::SameFloat;
using Kornummath::special::TwoFloat;

constexpr Float TwoPi = 6.283185307179586477L;
// The series stops once a term moves the result by no more than this.
constexpr Float SeriesTolerance = 1e-18L;
constexpr int SeriesTermLimit = 100;

// ---- Checks, in the order the routines apply them --------------------------------------

// The forward routines accept only a standard deviation that is positive beyond the
// tolerance.
void CheckForwardStdDev(Float StdDev) {
    if (!FloatIsPositive(StdDev)) Platform::Raise(Kornum_RS_Math::rsStdDev);
}
// The inverse routines reject a zero within tolerance or any negative value. This
// differs from the forward test on purpose: a tiny negative StdDev counts as zero in
// one and as negative in the other, but both reject it.
void CheckInverseStdDev(Float StdDev) {
    if (FloatIsZero(StdDev) || StdDev < 0) Platform::Raise(Kornum_RS_Math::rsStdDev);
}
void CheckOpenProbability(Float P) {
    if (P <= 0 || P >= 1) Platform::Raise(Kornum_RS_Math::rsValue01);
}

// exp(-D^2 / (2 StdDev^2)) with the denominator formed as StdDev * StdDev * 2.
Float GaussianKernel(Float D, Float StdDev) { return std::exp(-(D * D) / (StdDev * StdDev * 2)); }

// ---- Wichura's PPND16 ---------------------------------------------------------------------

constexpr Float Split1 = 0.425L;
constexpr Float Split2 = 5.0L;
constexpr Float Const1 = 0.180625L;
constexpr Float Const2 = 1.6L;

// Coefficients from the lowest power up, as published.
constexpr Float A[8] = {3.3871328727963666080e+00L, 1.3314166789178437745e+02L,
                        1.9715909503065514427e+03L, 1.3731693765509461125e+04L,
                        4.5921953931549871457e+04L, 6.7265770927008700853e+04L,
                        3.3430575583588128105e+04L, 2.5090809287301226727e+03L};
constexpr Float B[8] = {1.0L,
                        4.2313330701600911252e+01L, 6.8718700749205790830e+02L,
                        5.3941960214247511077e+03L, 2.1213794301586595867e+04L,
                        3.9307895800092710610e+04L, 2.8729085735721942674e+04L,
                        5.2264952788528545610e+03L};
constexpr Float C[8] = {1.42343711074968357734e+00L, 4.63033784615654529590e+00L,
                        5.76949722146069140550e+00L, 3.64784832476320460504e+00L,
                        1.27045825245236838258e+00L, 2.41780725177450611770e-01L,
                        2.27238449892691845833e-02L, 7.74545014278341407640e-04L};
constexpr Float D[8] = {1.0L,
                        2.05319162663775882187e+00L, 1.67638483018380384940e+00L,
                        6.89767334985100004550e-01L, 1.48103976427480074590e-01L,
                        1.51986665636164571966e-02L, 5.47593808499534494600e-04L,
                        1.05075007164441684324e-09L};
constexpr Float E[8] = {6.65790464350110377720e+00L, 5.46378491116411436990e+00L,
                        1.78482653991729133580e+00L, 2.96560571828504891230e-01L,
                        2.65321895265761230930e-02L, 1.24266094738807843860e-03L,
                        2.71155556874348757815e-05L, 2.01033439929228813265e-07L};
constexpr Float F[8] = {1.0L,
                        5.99832206555887937690e-01L, 1.36929880922735805310e-01L,
                        1.48753612908506148525e-02L, 7.86869131145613259100e-04L,
                        1.84631831751005468180e-05L, 1.42151175831644588870e-07L,
                        2.04426310338993978564e-15L};

// Horner's rule from the highest coefficient down.
template <class T>
T Polynomial(const T (&coefficients)[8], T x) {
    T value = coefficients[7];
    for (int i = 6; i >= 0; --i) value = value * x + coefficients[i];
    return value;
}

// The same in double precision by Estrin's scheme: three levels of multiply-adds instead of
// seven, for a starting value whose last bits the Newton step replaces anyway.
inline double ShortPolynomial(const double (&c)[8], double x) {
    const double x2 = x * x;
    return ((c[0] + c[1] * x) + (c[2] + c[3] * x) * x2) + ((c[4] + c[5] * x) + (c[6] + c[7] * x) * x2) * (x2 * x2);
}

// The coefficients in another precision.
struct ShortCoefficients {
    double values[8];
    constexpr explicit ShortCoefficients(const Float (&c)[8])
        : values{double(c[0]), double(c[1]), double(c[2]), double(c[3]),
                 double(c[4]), double(c[5]), double(c[6]), double(c[7])} {}
};
constexpr ShortCoefficients ShortA(A), ShortB(B), ShortC(C), ShortD(D), ShortE(E), ShortF(F);

// PPND16 in double precision, for P < 1/2 (the lower tail): about 1e-16 relative, the
// starting point of the accurate quantiles' Newton step, and much cheaper than the same
// in this format. The logarithm is taken in this format where P is below double's range.
double LowerTailStart(Float P) {
    const double Q = double(P) - 0.5;
    if (std::fabs(Q) <= double(Split1)) {
        const double R = double(Const1) - Q * Q;
        return Q * ShortPolynomial(ShortA.values, R) / ShortPolynomial(ShortB.values, R);
    }
    double R = P < 0x1p-1000L ? double(std::sqrt(-std::log(P))) : std::sqrt(-std::log(double(P)));
    double X;
    if (R <= double(Split2)) {
        R -= double(Const2);
        X = ShortPolynomial(ShortC.values, R) / ShortPolynomial(ShortD.values, R);
    } else {
        R -= double(Split2);
        X = ShortPolynomial(ShortE.values, R) / ShortPolynomial(ShortF.values, R);
    }
    return -X;
}

// The normal cumulative probability of (X - Mean) / StdDev, reflecting a negative
// argument through 1 - NormalLess because the series takes only Z >= 0.
Float ReflectedNormalLess(Float Mean, Float StdDev, Float X) {
    const Float standardised = (X - Mean) / StdDev;
    if (standardised >= 0) return NormalLess(standardised);
    return 1 - NormalLess((Mean - X) / StdDev);
}

// 0 for coinciding points; otherwise Less(X2) - Less(X1), negated when X1 > X2, so the
// result is the probability between the points whatever their order.
template <class Less>
Float ProbabilityBetween(Float X1, Float X2, Less less) {
    if (SameFloat(X1, X2)) return 0;
    const Float difference = less(X2) - less(X1);
    return X1 > X2 ? -difference : difference;
}

// ---- Accurate tails ------------------------------------------------------------------

// e^-(y.hi + y.lo) for y.hi in [0, 11400] and y.lo within a few ulps of y.hi: the table-driven
// e^-y.hi as 2^-m (table + power), the low part applied to first order (its square is
// below 2^-100), and one rounding at the end.
Float ExpOfNegativePair(TwoFloat y) {
    const detail::NegativeExponential e = detail::ReduceNegativeExponential(y.hi);
    return detail::ScaledDown(e.table + (e.power - (e.table + e.power) * y.lo), e.m);
}

struct Tails {
    Float lower, upper;
    Float density;  // phi at the point, for the quantiles' Newton steps
};

// P(N <= z) and P(N > z) for N standard normal at z = hi + lo, lo a correction far below
// hi: the smaller tail from its Taylor table near the centre, as phi(hi) R(|hi|) beyond,
// with the first-order term of lo (the second is below 2^-100 of the tail), the larger as
// 1 minus it.
// Inlined into its callers: passing and returning this format through memory would
// cost as much as the short path near the centre.
// An estimate of |hi| (a double, negative for none), where the caller has one before hi,
// lets the Taylor table's row be read early.
[[gnu::always_inline]] inline Tails StandardTails(Float hi, Float lo, double estimate = -1) {
    if (std::isnan(hi)) return {hi, hi, hi};
    if (std::isinf(hi)) return hi > 0 ? Tails{1, 0, 0} : Tails{0, 1, 0};
    if (std::fabs(hi) <= detail::NormalTailTaylorLimit) {
        const detail::TailNearCentre near = estimate >= 0 ? detail::UpperTailNearCentre(std::fabs(hi), estimate)
                                                          : detail::UpperTailNearCentre(std::fabs(hi));
        if (hi >= 0) {
            const Float upper = near.tail - near.density * lo;
            return {1 - upper, upper, near.density};
        }
        const Float lower = near.tail + near.density * lo;
        return {lower, 1 - lower, near.density};
    }
    const Float density = NormalZ(hi);
    if (hi >= 0) {
        const Float upper = density * (detail::MillsRatio(hi) - lo);
        return {1 - upper, upper, density};
    }
    const Float lower = density * (detail::MillsRatio(-hi) + lo);
    return {lower, 1 - lower, density};
}

// True when StdDev is a power of two, so that dividing by it is exact (short of
// underflow, which the tails do not reach at a finite z).
bool IsPowerOfTwo(Float StdDev) {
    std::uint64_t significand;  // the explicit leading bit alone for a normal power of two
    std::memcpy(&significand, &StdDev, sizeof significand);
    return significand == 0x8000000000000000ull;
}

// (X - Mean) / StdDev in two Floats: rounded to one, its error would be magnified by z^2
// in a far tail. The difference is exact, and so is the quotient when StdDev is a power of
// two (the standard normal among them); otherwise the quotient's remainder is formed
// exactly and divided once more. The tails take the low part to first order with a
// density good to about 2^-25, so it must stay within about an ulp of the high part: X's
// low part is added to the high part at once (it is not small beside it where X and Mean
// nearly cancel), and the difference's own error after it (0 in that case). The high part
// is then ready two additions after the point. An infinite or NaN point is passed on as
// it is.
[[gnu::always_inline]] inline Tails StandardisedTails(TwoFloat x, Float Mean, Float StdDev,
                                                      double estimate = -1) {
    const TwoFloat d = Kornummath::special::TwoSum(x.hi, -Mean);
    if (!std::isfinite(d.hi)) return StandardTails(d.hi / StdDev, 0);
    const TwoFloat difference = Kornummath::special::TwoSum(d.hi, x.lo);
    const Float hi = difference.hi, lo = difference.lo + d.lo;
    if (StdDev == 1) return StandardTails(hi, lo, estimate);
    if (IsPowerOfTwo(StdDev)) return StandardTails(hi / StdDev, lo / StdDev, estimate);
    const Float quotient = hi / StdDev;
    if (!std::isfinite(quotient)) return StandardTails(quotient, 0);
    const TwoFloat product = Kornummath::special::TwoProduct(quotient, StdDev);
    const Float remainder = (((hi - product.hi) - product.lo) + lo) / StdDev;
    return StandardTails(quotient, std::isfinite(remainder) ? remainder : 0, estimate);
}

// The log-normal tails: the logarithm of X in two Floats, X <= 0 below the support.
// Inlined, like StandardTails, so that the three Floats are not returned through memory.
[[gnu::always_inline]] inline Tails LogNormalTails(Float Mean, Float StdDev, Float X) {
    if (std::isnan(X)) return {X, X, X};
    if (X <= 0) return {0, 1, 0};
    if (std::isinf(X)) return {1, 0, 0};
    // |z| in double precision, formed beside the accurate logarithm: within 2^-24 / StdDev
    // (and the rounding of Mean), so the tails check the node it picks.
    const double estimate = X >= 0x1p-1000L && X < 0x1p1000L
                                ? std::fabs((Kornummath::special::RoughLog(X) - double(Mean)) / double(StdDev))
                                : -1;
    return StandardisedTails(Kornummath::special::Log(X), Mean, StdDev, estimate);
}

}  // namespace

// exp(-(X^2 / 2 + ln sqrt(2 pi))) with the exponent in two Floats: X^2 split exactly (a
// rounded X^2 / 2 would be off by up to half its ulp, which the exponential turns into
// X^2 / 2 ulps of the result), the constant folded in rather than divided out, and one
// rounding at the end: within about 0.6 ulp. The high part of the exponent is one
// addition away from X^2, so the reduction starts while the low parts are summed.
Float NormalZ(Float X) {
    using Kornummath::special::LnSqrtTwoPi;
    if (!(std::fabs(X) < 0x1p64L)) return std::isnan(X) ? X : 0;
    const TwoFloat square = Kornummath::special::TwoProduct(X, X);
    const TwoFloat high = Kornummath::special::TwoSum(square.hi / 2, LnSqrtTwoPi.hi);
    if (high.hi > 11400) return 0;  // below the smallest subnormal
    return ExpOfNegativePair({high.hi, high.lo + (square.lo / 2 + LnSqrtTwoPi.lo)});
}

Float detail::StandardUpperTail(Float hi, Float lo) { return StandardTails(hi, lo).upper; }

Float NormalLower(Float Z) { return StandardTails(Z, 0).lower; }

Float NormalUpper(Float Z) { return StandardTails(Z, 0).upper; }

Float NormalDistLower(Float Mean, Float StdDev, Float X) {
    CheckForwardStdDev(StdDev);
    return StandardisedTails({X, 0}, Mean, StdDev).lower;
}

Float NormalDistUpper(Float Mean, Float StdDev, Float X) {
    CheckForwardStdDev(StdDev);
    return StandardisedTails({X, 0}, Mean, StdDev).upper;
}

Float LogNormalLower(Float Mean, Float StdDev, Float X) {
    CheckForwardStdDev(StdDev);
    return LogNormalTails(Mean, StdDev, X).lower;
}

Float LogNormalUpper(Float Mean, Float StdDev, Float X) {
    CheckForwardStdDev(StdDev);
    return LogNormalTails(Mean, StdDev, X).upper;
}

Float NormalLess(Float Z) {
    if (Z < 0) Platform::Raise(Kornum_RS_Math::rsValueGZero);
    const Float Z2 = Z * Z;
    const Float density = NormalZ(Z);
    Float term = Z;         // numerator Z^(2i+1)
    Float denominator = 1;  // 1 * 3 * ... * (2i+1)
    Float sum = Z;
    Float previous = 0;
    Float result = 0.5L;
    for (int i = 1; i <= SeriesTermLimit; ++i) {
        term *= Z2;
        denominator *= Float(2 * i + 1);
        sum += term / denominator;
        result = density * sum + 0.5L;
        if (std::fabs(result - previous) <= SeriesTolerance) break;
        previous = result;
    }
    return result;
}

Float NormalGreater(Float Z) { return 1 - NormalLess(Z); }

Float InvNormalLess(Float P) {
    CheckOpenProbability(P);
    const Float Q = P - 0.5L;
    if (std::fabs(Q) <= Split1) {
        const Float R = Const1 - Q * Q;
        return Q * Polynomial(A, R) / Polynomial(B, R);
    }
    Float R = Q < 0 ? P : 1 - P;
    if (R <= 0) Platform::Raise(Kornum_RS_Math::rsValue01);
    R = std::sqrt(-std::log(R));
    Float X;
    if (R <= Split2) {
        R -= Const2;
        X = Polynomial(C, R) / Polynomial(D, R);
    } else {
        R -= Split2;
        X = Polynomial(E, R) / Polynomial(F, R);
    }
    return Q < 0 ? -X : X;
}

Float InvNormalGreater(Float P) { return InvNormalLess(1 - P); }

namespace {

// The z >= 0 with P(N > z) = t, for 0 < t <= 1/2, from a start z (AS 241's value in
// double precision): Newton steps on the accurate tail until a step no longer changes z
// beyond rounding (one, except below the tails AS 241 was made for). z is kept as a pair,
// the steps' changes summed into its low part: the log-normal quantile needs it beyond
// one Float.
[[gnu::always_inline]] inline TwoFloat NewtonSteps(Float t, Float start) {
    TwoFloat z{start, 0};
    for (int step = 0; step < 8; ++step) {
        const Tails tails = StandardTails(z.hi, z.lo);
        const Float change = (tails.upper - t) / tails.density;
        z = Kornummath::special::FastTwoSum(z.hi, z.lo + change);
        if (std::fabs(change) <= 1e-12L * z.hi) break;
    }
    return z;
}

// The same from t = 1/16 up by the quantile's own Taylor table (+0 at t = 1/2).
Float UpperTailQuantile(Float t) {
    if (t >= detail::NormalQuantileTaylorLow) return 0 - detail::LowerQuantileNearCentre(t);
    return NewtonSteps(t, -LowerTailStart(t)).hi;
}

// Mean + StdDev s in two Floats: the product split exactly, then its high part added to
// Mean with the larger first, which makes the sum's error exact in three operations.
TwoFloat Exponent(Float Mean, Float StdDev, Float s) {
    using Kornummath::special::FastTwoSum;
    const TwoFloat product = StdDev == 1 ? TwoFloat{s, 0} : Kornummath::special::TwoProduct(StdDev, s);
    const TwoFloat sum =
        std::fabs(Mean) >= std::fabs(product.hi) ? FastTwoSum(Mean, product.hi) : FastTwoSum(product.hi, Mean);
    return {sum.hi, sum.lo + product.lo};
}

// e scaled by e^d = 1 + d for |d| below 2^-33 (d^2 / 2 is then below 2^-67).
Float Scaled(Float e, Float d) { return std::isfinite(e) ? e + e * d : e; }

// e^(Mean + StdDev z) for z = -Q^-1(t) when negative, Q^-1(t) otherwise, with the exponent
// in two Floats: rounded to one, its rounding would be magnified by its own size (up to
// 11356 ulps); below 1 in size one Float is enough. From the quantile's table z is one
// Float. Below it z is the Newton steps' pair, and the exponential is taken at the
// starting z, known before the steps, so that the two run side by side: the rest of the
// exponent, d (about 1e-16), then scales it. A larger d (far tails, or a large StdDev)
// takes the exponential again at the final z.
[[gnu::always_inline]] inline Float LogNormalQuantile(Float Mean, Float StdDev, Float t, bool negative) {
    if (t >= detail::NormalQuantileTaylorLow) {
        const Float z = detail::LowerQuantileNearCentre(t);  // -Q^-1(t)
        const Float s = negative ? z : -z;
        const Float rounded = Mean + StdDev * s;
        if (std::fabs(rounded) < 1) return detail::ExpOf(rounded);  // rounding below 2^-65
        const TwoFloat y = Exponent(Mean, StdDev, s);
        return Scaled(detail::ExpOf(y.hi), y.lo);
    }
    const Float start = -LowerTailStart(t);
    const TwoFloat y = Exponent(Mean, StdDev, negative ? -start : start);
    const Float e = detail::ExpOf(y.hi);
    const TwoFloat z = NewtonSteps(t, start);
    const Float change = (z.hi - start) + z.lo;  // the first difference is exact
    const Float d = y.lo + StdDev * (negative ? -change : change);
    if (std::fabs(d) < 0x1p-33) return Scaled(e, d);
    const TwoFloat final = Exponent(Mean, StdDev, negative ? -z.hi : z.hi);
    return Scaled(detail::ExpOf(final.hi), final.lo + StdDev * (negative ? -z.lo : z.lo));
}

}  // namespace

Float InvNormalLower(Float P) {
    CheckOpenProbability(P);
    return P <= 0.5L ? -UpperTailQuantile(P) : UpperTailQuantile(1 - P);
}

Float InvNormalUpper(Float Q) {
    CheckOpenProbability(Q);
    return Q <= 0.5L ? UpperTailQuantile(Q) : -UpperTailQuantile(1 - Q);
}

// The exponential by the table of the exponential distribution: a third of the library
// call's cost, which would be a third of the whole quantile's.
Float InvLogNormalLower(Float Mean, Float StdDev, Float P) {
    CheckForwardStdDev(StdDev);
    CheckOpenProbability(P);
    return P <= 0.5L ? LogNormalQuantile(Mean, StdDev, P, true) : LogNormalQuantile(Mean, StdDev, 1 - P, false);
}

Float InvLogNormalUpper(Float Mean, Float StdDev, Float Q) {
    CheckForwardStdDev(StdDev);
    CheckOpenProbability(Q);
    return Q <= 0.5L ? LogNormalQuantile(Mean, StdDev, Q, false) : LogNormalQuantile(Mean, StdDev, 1 - Q, true);
}

Float NormalPDF(Float X, Float Mean, Float StdDev) {
    CheckForwardStdDev(StdDev);
    return GaussianKernel(X - Mean, StdDev) / (std::sqrt(TwoPi) * StdDev);
}

Float NormalDistLess(Float Mean, Float StdDev, Float X) {
    CheckForwardStdDev(StdDev);
    return ReflectedNormalLess(Mean, StdDev, X);
}

Float NormalDistGreater(Float Mean, Float StdDev, Float X) {
    CheckForwardStdDev(StdDev);
    return 1 - ReflectedNormalLess(Mean, StdDev, X);
}

Float NormalDistBetween(Float Mean, Float StdDev, Float X1, Float X2) {
    CheckForwardStdDev(StdDev);
    return ProbabilityBetween(X1, X2, [&](Float X) { return ReflectedNormalLess(Mean, StdDev, X); });
}

Float InvNormalDistLess(Float Mean, Float StdDev, Float P) {
    CheckOpenProbability(P);
    CheckInverseStdDev(StdDev);
    return InvNormalLess(P) * StdDev + Mean;
}

Float InvNormalDistGreater(Float Mean, Float StdDev, Float P) {
    CheckOpenProbability(P);
    CheckInverseStdDev(StdDev);
    return InvNormalGreater(P) * StdDev + Mean;
}

Float ZAlpha(Float Alpha) { return InvNormalDistGreater(0, 1, Alpha); }

Float LogNormalPDF(Float X, Float Mean, Float StdDev) {
    CheckForwardStdDev(StdDev);
    if (!FloatIsPositive(X)) Platform::Raise(Kornum_RS_Math::rsValueGZero);
    return GaussianKernel(std::log(X) - Mean, StdDev) / (std::sqrt(TwoPi) * X * StdDev);
}

Float LogNormalLess(Float Mean, Float StdDev, Float X) {
    CheckForwardStdDev(StdDev);
    return ReflectedNormalLess(Mean, StdDev, std::log(X));
}

Float LogNormalGreater(Float Mean, Float StdDev, Float X) {
    CheckForwardStdDev(StdDev);
    return 1 - ReflectedNormalLess(Mean, StdDev, std::log(X));
}

Float LogNormalBetween(Float Mean, Float StdDev, Float X1, Float X2) {
    CheckForwardStdDev(StdDev);
    return ProbabilityBetween(
        X1, X2, [&](Float X) { return ReflectedNormalLess(Mean, StdDev, std::log(X)); });
}

Float InvLogNormalLess(Float Mean, Float StdDev, Float P) {
    CheckOpenProbability(P);
    CheckInverseStdDev(StdDev);
    return std::exp(Mean + StdDev * InvNormalLess(P));
}

Float InvLogNormalGreater(Float Mean, Float StdDev, Float P) {
    CheckOpenProbability(P);
    CheckInverseStdDev(StdDev);
    return std::exp(Mean + StdDev * InvNormalGreater(P));
}

}  // namespace KornumStatistics
