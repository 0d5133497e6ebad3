// The regularised incomplete beta function I_x(a, b) and its inverse in x.
//
// I_x(a, b) = P / a * F, where P = x^a (1 - x)^b / B(a, b) is the "prefix" and F the
// continued fraction of the hypergeometric form. F converges fast below the crossover
// x < (a + 1) / (a + b + 2); above it the complement 1 - I_{1-x}(b, a) is taken, which has
// the same prefix. F is summed through its even part, rewritten so that the cancellation
// near the centre of the distribution is done analytically (see BetaFraction).
//
// The prefix carries the accuracy: near the centre, for a, b >= 15, Stirling's series
// lets its large terms cancel analytically (CentrePrefix); elsewhere its logarithm
// a ln x + b ln(1 - x) - ln B(a, b) is formed in two Floats (1 - x with its rounding
// error) and exponentiated once, so deep tails keep full precision.
//
// Measured against 60-digit references: at most 16 ulps for a, b in [0.5, 100] and for
// a, b up to 1e4, tails down to 1e-300 included. Far larger shapes lose accuracy: the
// continued fraction needs about sqrt(max(a, b)) levels and stops at 2e5.
// The inverse comes within 1e-18 relative of the exact x for p in [1e-10, 1 - 1e-10],
// a, b in [0.5, 100].
//
// The inverse starts from the classical normal or power-law first guess and refines it
// with Halley steps on the smaller tail, keeping a bracket so that no step leaves it.

#include <kornum/Kornummath.h>

#include <cmath>
#include <limits>

#include "core/detail/BaseLibraryInterface.hpp"
#include "core/detail/BetaParts.hpp"

namespace Kornummath {

namespace {

using special::Epsilon;

constexpr Float NaN = std::numeric_limits<Float>::quiet_NaN();

using special::TwoFloat;

// ln(1 - x) for x in (0, 1), x and 1 - x given as unevaluated sums.
TwoFloat LogComplement(TwoFloat x) { return special::Log(TwoFloat{1, 0} - x); }

// ln(1 + u) - u + u^2 / 2 for |u| <= 1/8. With t = u / (2 + u), ln(1 + u) = 2 atanh t and
// u - u^2 / 2 = 2t + u^2 t / 2 - ..., which leaves u^2 t / 2 + 2 (t^3 / 3 + t^5 / 5 + ...):
// terms of one sign only, so the result keeps its relative precision however small u is.
Float LogCubicRemainder(Float u) {
    // 1 / (2k + 1) for k = 9 down to 1; the first omitted term is below 2^-66 of the sum.
    static constexpr Float c[] = {1.0L / 19, 1.0L / 17, 1.0L / 15, 1.0L / 13, 1.0L / 11,
                                  1.0L / 9,  1.0L / 7,  1.0L / 5,  1.0L / 3};
    const Float t = u / (2 + u);
    const Float t2 = t * t;
    Float series = c[0];
    for (int k = 1; k < 9; ++k) series = series * t2 + c[k];
    return t * (u * u / 2 + 2 * t2 * series);
}

// s = a + b, s x and w = s x - a = s (x - a / s), the scaled distance of x from the
// centre of the distribution, all in two Floats: both the prefix and the continued
// fraction need w free of the cancellation in s x - a.
struct Offset {
    Offset(TwoFloat x, Float a, Float b)
        : s(special::TwoSum(a, b)), sx(s * x), w(sx - special::TwoFloat{a, 0}) {}
    special::TwoFloat s, sx, w;
};

// x^a (1 - x)^b / B(a, b) near the centre x0 = a / (a + b), for a, b >= 15; false where
// x is too far out for this form to keep its precision.
//
// Stirling's series for the three gammas in B(a, b) and a ln x0 + b ln(1 - x0) cancel
// down to the prefix = sqrt(ab / (2 pi s)) exp(a ln(1 + u) + b ln(1 + v) + mu(s) - mu(a)
// - mu(b)), with s = a + b, u = (x - x0) / x0 and v = -(x - x0) / (1 - x0). As a u + b v = 0
// the linear terms drop out too, and the quadratic ones sum to -w^2 (1/a + 1/b) / 2 with
// w = s x - a, formed in two Floats; only the small cubic remainders and mu are left to
// plain Floats. No logarithm is needed at all.
bool CentrePrefix(Float a, Float b, const Offset& offset, Float& prefix) {
    using special::TwoFloat;
    const TwoFloat& s = offset.s;
    const TwoFloat& w = offset.w;
    if (!(a >= special::StirlingThreshold && b >= special::StirlingThreshold && s.hi < 1e300L))
        return false;
    const Float inverseA = 1 / a, inverseB = 1 / b;
    const Float u = w.hi * inverseA, v = -w.hi * inverseB;
    if (!(std::fabs(u) <= 0.125L && std::fabs(v) <= 0.125L)) return false;
    const TwoFloat sumOfInverses = s / special::TwoProduct(a, b);  // 1/a + 1/b
    const TwoFloat quadratic = (w * w) * sumOfInverses * 0.5L;
    // Beyond this the plain-Float rest of the exponent grows past a few ulps.
    if (!(quadratic.hi <= 32)) return false;
    const Float rest = a * LogCubicRemainder(u) + b * LogCubicRemainder(v) +
                       special::StirlingRemainder(1 / s.hi) -
                       special::StirlingRemainder(inverseA) - special::StirlingRemainder(inverseB);
    constexpr Float inverseTwoPi = 0.159154943091895335768883763372514362L;
    prefix = special::Exp(TwoFloat{rest, 0} - quadratic) *
             std::sqrt(inverseTwoPi / sumOfInverses.hi);
    return true;
}

// SplitBeta(a, b), computed on first use only: the centre form does without it.
class LazyBeta {
public:
    LazyBeta(Float a, Float b) : a_(a), b_(b) {}
    const special::BetaParts& Get() {
        if (!ready_) {
            parts_ = special::SplitBeta(a_, b_);
            ready_ = true;
        }
        return parts_;
    }

private:
    Float a_, b_;
    bool ready_ = false;
    special::BetaParts parts_{};
};

// x^a (1 - x)^b / B(a, b) for x in (0, 1).
Float BetaPrefix(TwoFloat x, Float a, Float b, const Offset& offset, LazyBeta& lazyBeta) {
    Float centre;
    if (CentrePrefix(a, b, offset, centre)) return centre;
    const special::BetaParts& beta = lazyBeta.Get();
    const special::TwoFloat e =
        special::Log(x) * a + LogComplement(x) * b - beta.logBeta;
    const Float v = std::exp(e.hi) * beta.ratio.hi;
    if (!std::isfinite(v) || v == 0) return v;
    return v + v * (e.lo + beta.ratio.lo / beta.ratio.hi);
}

// The continued fraction F with I_x(a, b) = P / a * F, for x below the crossover, given
// 1 - w and s x = a + w, where s = a + b and w = s x - a.
//
// F = 1 / (1 + d1 / (1 + d2 / (1 + ...))) with d_k = n_k / ((a + k - 1)(a + k)),
// n_2m = m (b - m) x and n_2m+1 = -(a + m)(s + m) x. Near the centre of the distribution
// each 1 + d_2m+1 nearly cancels (1 + d1 = (1 - w) / (a + 1) with w small), so F is
// evaluated through its even part instead:
//   F = (a + 1) / ((1 - w) + c_1 / (e_1 + c_2 / (e_2 + ...))),
// whose levels, cleared of denominators, are polynomials with the cancelling part taken
// out analytically through w:
//   e_m = (a + 2m - 1) (a (1 - w + m (3 - x)) + m (1 - w + m (4 - x) + 1))
//         + m (b - m) x (a + 2m + 1),
//   c_m = (a + 2m + 1) (a + 2m - 3) (a + m - 1) (s x + (m - 1) x) m (b - m) x for m >= 2,
//   c_1 = (a + 3) s x (b - 1) x.
// While m < b every e and c is positive, so the convergents A / B, from the three-term
// recurrence, are sums of positive terms: no cancellation, and no division per level.
// Levels are scaled by (a + 1)^-2 to keep A and B near unit growth; an exact power-of-two
// rescale guards the rest. Successive convergents differ by D / (B B'), D = A B' - A' B,
// which the recurrence multiplies by -c_m.

// The per-call constants of the levels m >= 2 in the type T, every factor a + k scaled as
// (a + k) / (a + 1), so that a level costs a few multiply-adds.
template <class T>
struct FractionLevels {
    T b, x, scale, twoScale, one, aMinus1, aMinus3, xScaled, sxScaled, p0, p1, q0, q1;

    // c_m and e_m times scale^4 and scale^2.
    void At(T m, T& c, T& e) const {
        const T ms = m * scale, twoMs = m * twoScale;
        const T up = one + twoMs;  // a + 2m + 1
        const T g = (b - m) * x * m;
        c = up * (aMinus3 + twoMs) * (aMinus1 + ms) * (sxScaled + m * xScaled) * g;
        e = (aMinus1 + twoMs) * (p0 + m * p1 + ms * (q0 + m * q1)) + g * up * scale;
    }

    template <class U>
    FractionLevels<U> As() const {
        return {U(b),        U(x),       U(scale),    U(twoScale), U(one),
                U(aMinus1),  U(aMinus3), U(xScaled),  U(sxScaled), U(p0),
                U(p1),       U(q0),      U(q1)};
    }
};

Float BetaFraction(Float x, Float a, Float b, Float oneMinusW, Float sx) {
    constexpr Float big = 0x1p+4096L, shrink = 0x1p-4096L;
    const Float scale = 1 / (a + 1), aScaled = a * scale;
    const FractionLevels<Float> levels{
        b, x, scale, 2 * scale, (a + 1) * scale, (a - 1) * scale, (a - 3) * scale,
        x * scale, (sx - x) * scale, aScaled * oneMinusW, aScaled * (3 - x),
        oneMinusW + 1, 4 - x};
    Float prevA = 0, prevB = 1, A = 1, B = oneMinusW, det = 1;  // det = A prevB - prevA B
    const auto advance = [&](Float c, Float e) {  // A, B <- e (A, B) + c (A', B')
        const Float nextA = e * A + c * prevA, nextB = e * B + c * prevB;
        prevA = A; prevB = B; A = nextA; B = nextB;
        det *= -c;
    };
    // Level 1 lacks the factor a + 2m - 3.
    const Float g = (b - 1) * x;
    advance((a + 3) * scale * (sx * scale) * g,
            (levels.aMinus1 + levels.twoScale) *
                    (levels.p0 + levels.p1 + scale * (levels.q0 + levels.q1)) +
                g * (levels.one + levels.twoScale) * scale);
    // Two levels per pass, then the tests. Once successive convergents agree to 2^-10, a
    // level's coefficients move the value by far less than 2^-10 of their own relative
    // error, so from there on they are formed in double (much cheaper than this format);
    // the recurrence itself stays in Float. Shapes or x outside the range of double keep
    // Float throughout.
    const auto run = [&]<class T>(const FractionLevels<T>& at, Float first, Float tolerance) {
        Float m = first;
        for (; m < 200000; m += 2) {
            T c, e;
            at.At(T(m), c, e);
            advance(c, e);
            at.At(T(m + 1), c, e);
            advance(c, e);
            if (std::fabs(det) <= tolerance * std::fabs(A * prevB)) break;
            if (std::fabs(B) > big) {
                A *= shrink; B *= shrink; prevA *= shrink; prevB *= shrink;
                det *= shrink * shrink;
            }
        }
        return m + 2;
    };
    if (a < 1e300L && b < 1e300L && x > 1e-290L) {
        const Float next = run(levels, 2, 0x1p-10L);
        run(levels.As<double>(), next, Epsilon / 2);
    } else {
        run(levels, 2, Epsilon / 2);
    }
    return (a + 1) * A / B;
}

struct BetaValue {
    Float value;   // I_x(a, b)
    Float prefix;  // x^a (1 - x)^b / B(a, b), so that the density is prefix / (x (1 - x))
};

// I_x(a, b) and its prefix for x strictly inside (0, 1) and valid a, b. x comes as an
// unevaluated sum, so that a caller who knows x beyond one Float (x = n / (n + t^2)) keeps
// those digits: x^a magnifies the relative error of x by a.
BetaValue EvaluateIncompleteBeta(TwoFloat x, Float a, Float b, LazyBeta& beta) {
    const Offset offset(x, a, b);
    const Float prefix = BetaPrefix(x, a, b, offset, beta);
    const bool lower = x.hi * (a + b + 2) < a + 1;
    if (prefix == 0) return {lower ? Float(0) : Float(1), prefix};
    if (lower) {
        const Float oneMinusW = (TwoFloat{1, 0} - offset.w).hi;
        return {prefix * BetaFraction(x.hi, a, b, oneMinusW, offset.sx.hi) / a, prefix};
    }
    // The mirrored problem (1 - x, b, a) has the offset -w and s (1 - x) = s - s x.
    const Float onePlusW = (TwoFloat{1, 0} + offset.w).hi;
    const Float mirroredSx = (offset.s - offset.sx).hi;
    return {1 - prefix * BetaFraction((TwoFloat{1, 0} - x).hi, b, a, onePlusW, mirroredSx) / b, prefix};
}

bool ValidShapes(Float a, Float b) {
    return a > 0 && b > 0 && std::isfinite(a) && std::isfinite(b);
}

// First guess for I_x(a, b) = p with p <= 1/2 (after the classical algorithm AS 109:
// a normal approximation through the Wilson-Hilferty-like transform when both shapes
// exceed 1, otherwise the leading power of either tail).
Float InitialGuess(Float p, Float a, Float b) {
    if (a >= 1 && b >= 1) {
        const Float t = std::sqrt(-2 * std::log(p));
        const Float z = t - (2.30753L + t * 0.27061L) / (1 + t * (0.99229L + t * 0.04481L));
        const Float lambda = (z * z - 3) / 6;
        const Float h = 2 / (1 / (2 * a - 1) + 1 / (2 * b - 1));
        const Float w = z * std::sqrt(h + lambda) / h -
                        (1 / (2 * b - 1) - 1 / (2 * a - 1)) * (lambda + 5.0L / 6 - 2 / (3 * h));
        return a / (a + b * std::exp(2 * w));
    }
    const Float s = a + b;
    const Float lowerMass = std::exp(a * std::log(a / s)) / a;
    const Float upperMass = std::exp(b * std::log(b / s)) / b;
    const Float total = lowerMass + upperMass;
    if (p < lowerMass / total) return std::pow(a * total * p, 1 / a);
    return 1 - std::pow(b * total * (1 - p), 1 / b);
}

// The x with I_x(a, b) = p, for 0 < p <= 1/2.
Float SolveLowerTail(Float p, Float a, Float b) {
    LazyBeta beta(a, b);
    Float lo = 0, hi = 1;
    Float x = InitialGuess(p, a, b);
    if (!(x > 0 && x < 1)) x = 0.5L;
    for (int iteration = 0; iteration < 100; ++iteration) {
        const BetaValue v = EvaluateIncompleteBeta({x, 0}, a, b, beta);
        const Float error = v.value - p;
        if (error == 0) return x;
        if (error < 0) lo = x; else hi = x;
        const Float density = v.prefix / (x * (1 - x));
        Float next;
        if (density > 0 && std::isfinite(density)) {
            // Halley: the density's log-derivative is (a - 1) / x - (b - 1) / (1 - x).
            const Float newton = error / density;
            const Float curvature = (a - 1) / x - (b - 1) / (1 - x);
            Float damping = 1 - 0.5L * newton * curvature;
            if (!(damping > 0.5L)) damping = 1;  // fall back to a plain Newton step
            next = x - newton / damping;
        } else {
            next = NaN;
        }
        // A step below the resolution of x means convergence, even when rounding puts
        // it on the bracket's end.
        if (std::fabs(next - x) <= 2 * Epsilon * x) return next;
        if (!(next > lo && next < hi)) {
            // Outside the bracket: halve it, geometrically while the lower end is 0.
            next = lo > 0 ? (lo + hi) / 2 : x / 16;
            if (next == lo || next == hi) return x;  // the bracket is down to one ulp
        }
        x = next;
    }
    return x;
}

}  // namespace

Float IncompleteBeta(Float X, Float A, Float B) {
    if (!ValidShapes(A, B) || !(X >= 0 && X <= 1)) return NaN;
    return special::IncompleteBeta({X, 0}, A, B);
}

namespace special {

Float IncompleteBeta(TwoFloat x, Float a, Float b) {
    if (x.hi <= 0) return 0;
    if (x.hi >= 1 && x.lo >= 0) return 1;
    LazyBeta beta(a, b);
    return EvaluateIncompleteBeta(x, a, b, beta).value;
}

}  // namespace special

Float InverseIncompleteBeta(Float P, Float A, Float B) {
    if (!ValidShapes(A, B) || !(P >= 0 && P <= 1)) return NaN;
    if (P == 0) return 0;
    if (P == 1) return 1;
    // Solve on the side whose tail probability is at most 1/2; 1 - P is exact there.
    if (P <= 0.5L) return SolveLowerTail(P, A, B);
    return 1 - SolveLowerTail(1 - P, B, A);
}

}  // namespace Kornummath
