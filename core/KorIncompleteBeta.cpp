// The regularised incomplete beta function I_x(a, b), the beta density and the inverse of
// I_x(a, b) in x, for either tail.
//
// I_x(a, b) = P / a * F, where P = x^a (1 - x)^b / B(a, b) is the "prefix" and F the
// continued fraction of the hypergeometric form. F converges fast below the crossover
// x < (a + 1) / (a + b + 2); above it the complement 1 - I_{1-x}(b, a) is taken, which has
// the same prefix. F is summed through its even part, rewritten so that the cancellation
// near the centre of the distribution is done analytically (see BetaFraction).
//
// The prefix carries the accuracy: near the centre, for a, b >= 15, Stirling's series
// lets its large terms cancel analytically (CentrePrefix); elsewhere its logarithm
// a ln x + b ln(1 - x) - ln B(a, b) is formed in two Floats (x and 1 - x each exact) and
// exponentiated once, so deep tails keep full precision.
//
// Measured against 60-digit references: at most 16 ulps for a, b in [0.5, 100] and for
// a, b up to 1e4, tails down to 1e-300 included. Far larger shapes lose accuracy: the
// continued fraction needs about sqrt(max(a, b)) levels and stops at 2e5.
//
// The distributions' entry (special::IncompleteBeta in two Floats) first tries the closed
// forms of I_x(a, b): the arcsine law at (1/2, 1/2), finite series where a shape is a small
// whole number (an even number of degrees of freedom in the F family) or a = 1, and powers
// by squaring for whole and half-whole exponents. They need neither B(a, b), whose gammas
// are most of the cost of the general method at small shapes, nor the continued fraction.
// Where a whole a's series would be subtracted from 1 with cancellation, the continued
// fraction runs with the prefix formed from those powers and 1 / B(a, b) = (b)_a / (a - 1)!,
// still without a gamma function.
//
// The inverse solves I_x(a, b) = t on the smaller tail t <= 1/2 and holds its unknown by
// the distance from the nearer end of (0, 1), so that x and 1 - x both keep their digits.
// It starts from the power laws of the two tails (which bound the root from one side or
// the other) or, for shapes above 1, a normal approximation kept between them; far from
// the root it takes Newton steps on the logarithm of the smaller tail against the
// logarithm of its own variable (x or 1 - x), near it Halley steps on the tail itself,
// always inside a bracket that only narrows. Measured against 320-bit references
// (tools/make_beta_family_inverse_references.py): within 3.5e-17 relative for p down to
// 1e-300 (1e-4900 for the upper tail) and shapes from 0.01 to 1e5 in any combination, the
// worst where a = 0.01 multiplies the few ulps of I_x by 1 / a; a few ulps for shapes from
// 1/2 on. It takes two to three evaluations of I_x in the body of the distribution and
// at most about six in the far tails.

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

// A point x of (0, 1) with 1 - x, each as an unevaluated sum: a caller who knows either
// beyond one Float (x = n / (n + t^2), or x near 1) keeps those digits, which x^a and
// (1 - x)^b magnify by a and b.
struct UnitPair {
    TwoFloat x, complement;
};

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

// exp(e) / B(a, b) for an exponent e in two Floats, B(a, b) from its parts.
Float ExpOverBeta(TwoFloat e, LazyBeta& lazyBeta) {
    const special::BetaParts& beta = lazyBeta.Get();
    e = e - beta.logBeta;
    const Float v = std::exp(e.hi) * beta.ratio.hi;
    if (!std::isfinite(v) || v == 0) return v;
    return v + v * (e.lo + beta.ratio.lo / beta.ratio.hi);
}

constexpr Float SmallestNormal = std::numeric_limits<Float>::min();

struct Prefix {
    Float value;  // x^a (1 - x)^b / B(a, b)
    Float log;    // its logarithm where the value lies below the normal range, else NaN
};

// x^a (1 - x)^b / B(a, b) for x in (0, 1). The centre form never leaves the normal range.
Prefix BetaPrefix(const UnitPair& point, Float a, Float b, const Offset& offset, LazyBeta& lazyBeta) {
    Float centre;
    if (CentrePrefix(a, b, offset, centre)) return {centre, NaN};
    const TwoFloat e = special::Log(point.x) * a + special::Log(point.complement) * b;
    const Float value = ExpOverBeta(e, lazyBeta);
    if (value >= SmallestNormal) return {value, NaN};
    const special::BetaParts& beta = lazyBeta.Get();
    return {value, (e - beta.logBeta).hi + std::log(beta.ratio.hi)};
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
    Float lower;      // I_x(a, b)
    Float upper;      // 1 - I_x(a, b) = I_{1-x}(b, a)
    Float prefix;     // x^a (1 - x)^b / B(a, b), so that the density is prefix / (x (1 - x))
    Float logPrefix;  // ln prefix where the prefix lies below the normal range, else NaN
    Float share;      // the tail computed directly (lower if lowerDirect) over the prefix
    bool lowerDirect;
};

// Both tails at x and the prefix, for x strictly inside (0, 1) and valid a, b. The tail on
// the near side of the crossover is computed directly, the other as 1 minus it: the small
// tail always keeps its relative precision. Where the prefix underflows to 0 the tails are
// 0 and 1 at once, unless whole asks for the continued fraction all the same (its share
// and the prefix's logarithm then still give the logarithm of the tail).
// A prefix the caller already knows (in the normal range) is taken as it is.
BetaValue EvaluateIncompleteBeta(const UnitPair& point, Float a, Float b, LazyBeta& beta, bool whole = false,
                                 Float knownPrefix = 0) {
    const Offset offset(point.x, a, b);
    const Prefix prefix = knownPrefix >= SmallestNormal ? Prefix{knownPrefix, NaN}
                                                        : BetaPrefix(point, a, b, offset, beta);
    const bool lower = point.x.hi * (a + b + 2) < a + 1;
    if (prefix.value == 0 && !whole)
        return lower ? BetaValue{0, 1, 0, prefix.log, 0, true} : BetaValue{1, 0, 0, prefix.log, 0, false};
    if (lower) {
        const Float oneMinusW = (TwoFloat{1, 0} - offset.w).hi;
        const Float share = BetaFraction(point.x.hi, a, b, oneMinusW, offset.sx.hi) / a;
        const Float v = prefix.value * share;
        return {v, 1 - v, prefix.value, prefix.log, share, true};
    }
    // The mirrored problem (1 - x, b, a) has the offset -w and s (1 - x) = s - s x.
    const Float onePlusW = (TwoFloat{1, 0} + offset.w).hi;
    const Float mirroredSx = (offset.s - offset.sx).hi;
    const Float share = BetaFraction(point.complement.hi, b, a, onePlusW, mirroredSx) / b;
    const Float u = prefix.value * share;
    return {1 - u, u, prefix.value, prefix.log, share, false};
}

// ---- Closed forms ----------------------------------------------------------------------

// Shapes up to this whole number take the finite series below: at most this many terms,
// each a few multiply-adds, where the continued fraction costs the gammas of B(a, b) first.
constexpr Float WholeShapeLimit = 40;

// Adding and taking away 2^63 rounds v to a whole number without a change of the x87
// rounding mode, which floor would need.
bool SmallWhole(Float v) { return v <= WholeShapeLimit && (v + 0x1p63L) - 0x1p63L == v; }

// y^p for y in (0, 1) given in two Floats: for a small whole or half-whole p by squaring
// in two Floats, times the square root for the half; otherwise through the logarithm in
// two Floats (p ln y reaches thousands).
Float Power(const TwoFloat& y, Float p) {
    const bool half = !SmallWhole(p);
    if (half && !SmallWhole(p + 0.5L)) return special::Exp(special::Log(y) * p);
    TwoFloat power = half ? special::SquareRoot(y) : TwoFloat{1, 0};
    bool started = half;  // power holds a factor: no multiplication by 1
    TwoFloat square = y;
    for (Float n = half ? p - 0.5L : p; n != 0;) {  // the binary digits of n from the lowest
        const Float halfN = n * 0.5L;
        const bool odd = (halfN + 0x1p63L) - 0x1p63L != halfN;
        if (odd) power = started ? power * square : square;
        started = started || odd;
        n = odd ? halfN - 0.5L : halfN;
        if (n != 0) square = square * square;
    }
    return power.hi + power.lo;
}

// sum_{k < n} (p)_k / k! y^k for a whole n >= 1 and y in (0, 1) given in two Floats,
// nested from the innermost term as the quotient u / v of two sums of positive terms: no
// division but the last and no cancellation, so the rounding errors stay a few ulps. The
// low part of y enters through the derivative du / dy: y^k would magnify its neglect by k.
Float FiniteSeries(const TwoFloat& y, Float p, Float n) {
    if (n == 1) return 1;
    Float u = 1, v = 1, slope = 0;
    for (Float k = n - 1; k >= 1; k -= 1) {
        const Float kv = k * v, q = p + k - 1;
        slope = q * (u + y.hi * slope);
        u = kv + q * y.hi * u;
        v = kv;
    }
    return (u + y.lo * slope) / v;
}

// I_x(1/2, 1/2), the arcsine law (2 / pi) asin(sqrt(x)), from the smaller of x and 1 - x,
// where the arcsine is well conditioned (1 - hi is exact from 1/2 on). The square root
// halves their relative errors, so the low parts move the result by less than half an ulp.
Float ArcsineLaw(Float hi, Float lo) {
    constexpr Float twoOverPi = 0.636619772367581343075535053490057448L;
    return hi <= 0.5L ? twoOverPi * std::asin(std::sqrt(hi)) : 1 - twoOverPi * std::asin(std::sqrt((1 - hi) - lo));
}

// x^a (1 - x)^b / B(a, b) for a small whole a, given (1 - x)^b: 1 / B(a, b) is
// (b)_a / (a - 1)!, a product of a factors, formed in two Floats, so that the prefix
// carries only the few roundings of its last products. 0 (unknown) where x^a leaves the
// normal range or b is so large that (b)_a could leave the range of Float.
Float WholeShapePrefix(const TwoFloat& x, Float a, Float b, Float complementPower) {
    if (!(b <= 0x1p+40L)) return 0;
    const Float power = Power(x, a);
    if (!(power >= SmallestNormal)) return 0;  // its lost bits would show in the product
    TwoFloat rising{b, 0}, factorial{1, 0};
    for (Float k = 1; k < a; k += 1) {
        rising = rising * special::TwoSum(b, k);
        factorial = factorial * k;
    }
    return power * (rising / factorial).hi * complementPower;
}

// I_x(a, b) where it needs neither B(a, b) nor the continued fraction; false elsewhere.
// - b whole: x^a sum_{k < b} (a)_k / k! (1 - x)^k, positive terms only.
// - a = 1: 1 - (1 - x)^b; for a whole 2b the geometric series (1 - r) sum_{j < 2b} r^j in
//   r = sqrt(1 - x), positive terms again, else from the logarithm of 1 - x.
// - a whole: 1 minus the mirrored series (1 - x)^b sum_{k < a} (b)_k / k! x^k, taken only
//   while that is at most 3/4, so that the subtraction costs at most two bits. Beyond, the
//   continued fraction takes over, and `prefix` gets x^a (1 - x)^b / B(a, b) from the
//   power already formed (WholeShapePrefix): it needs no gamma function either.
bool ClosedForm(const UnitPair& point, Float a, Float b, Float& lower, Float& prefix) {
    const TwoFloat &x = point.x, &c = point.complement;
    if (SmallWhole(b)) {
        const Float power = Power(x, a);
        lower = power * FiniteSeries(c, a, b);
        return power >= SmallestNormal;
    }
    if (a == 1) {
        if (SmallWhole(2 * b)) {  // r = sqrt(1 - x), 1 - r = x / (1 + r)
            const TwoFloat r = special::SquareRoot(c);
            lower = x.hi / (1 + r.hi) * FiniteSeries(r, 1, 2 * b);
            return true;
        }
        // log1p of the leading part of x and its low part to first order below 1/2, the
        // logarithm of the exact 1 - x above.
        const Float logC = x.hi < 0.5L ? std::log1p(-x.hi) - x.lo / c.hi : special::Log(c).hi;
        lower = -std::expm1(b * logC);
        return true;
    }
    if (SmallWhole(a)) {
        const Float power = Power(c, b);
        const Float upper = power * FiniteSeries(x, b, a);
        lower = 1 - upper;
        if (!(power >= SmallestNormal)) return false;
        if (upper <= 0.75L) return true;
        prefix = WholeShapePrefix(x, a, b, power);
        return false;
    }
    return false;
}

bool ValidShapes(Float a, Float b) {
    return a > 0 && b > 0 && std::isfinite(a) && std::isfinite(b);
}

// ---- The inverse ---------------------------------------------------------------------

// A point of (0, 1) held by its distance s from the nearer end: x = s up to 1/2, 1 - x = s
// above. Steps move s, so that a root next to either end keeps its relative precision.
struct UnitPoint {
    Float s;
    bool high;

    UnitPair Pair() const {
        const TwoFloat near{s, 0}, far = special::TwoSum(1, -s);
        return high ? UnitPair{far, near} : UnitPair{near, far};
    }
};

// The point of (0, 1) at distance s from the end named by high; s beyond 1/2 is moved to
// the other end, exactly (1 - s is exact for s in [1/2, 1]). Anything outside (0, 1)
// comes back with s <= 0 or NaN.
UnitPoint MakePoint(Float s, bool high) {
    if (s > 0.5L) return {1 - s, !high};
    if (s == 0.5L) return {s, false};
    return {s, high};
}

// x(p) < x(q).
bool Below(UnitPoint p, UnitPoint q) {
    if (p.high != q.high) return q.high;
    return p.high ? p.s > q.s : p.s < q.s;
}

bool Same(UnitPoint p, UnitPoint q) { return p.s == q.s && p.high == q.high; }

constexpr Float Tiny = std::numeric_limits<Float>::denorm_min();

// A point strictly between lo and hi (x = 0 and x = 1 are s = 0 at either end, taken as the
// smallest Float here), halving the bracket in the logarithm of s while both ends are on
// one side: the root may lie many orders of magnitude from either. Returns lo itself once
// the ends are neighbours.
UnitPoint Middle(UnitPoint lo, UnitPoint hi) {
    // On opposite sides x = 1/2 lies between, unless lo is there already; then it is
    // s = 1/2 on hi's side.
    if (lo.high != hi.high && lo.s < 0.5L) return {0.5L, false};
    const Float small = std::fmin(lo.s, hi.s), large = std::fmax(lo.s, hi.s);
    const Float m = std::sqrt(std::fmax(small, Tiny)) * std::sqrt(large);
    if (!(m > small && m < large)) return lo;
    return {m, hi.high};
}

// ln B(a, b) in one Float.
Float LogBeta(LazyBeta& beta) {
    const special::BetaParts& parts = beta.Get();
    return parts.logBeta.hi - std::log(parts.ratio.hi) + parts.logBeta.lo;
}

// The leading power laws of the two tails, I_x ~ x^a / (a B) near 0 and
// 1 - I_x ~ (1 - x)^b / (b B) near 1, solved for the root of I_x = t: the first bounds it
// from below when b >= 1 and from above when b < 1, the second (as x = 1 - (1 - x)) from
// above when a >= 1 and from below when a < 1. A law below the smallest Float still
// tells that the root is tiny.
struct TailLaws {
    UnitPoint low, high;
};

TailLaws PowerLaws(Float t, Float a, Float b, LazyBeta& beta) {
    const Float logBeta = LogBeta(beta);
    const Float x = std::fmax(std::exp((std::log(t) + std::log(a) + logBeta) / a), Tiny);
    const Float c = std::fmax(std::exp((std::log1p(-t) + std::log(b) + logBeta) / b), Tiny);
    return {MakePoint(x, false), MakePoint(c, true)};
}

bool Valid(UnitPoint p) { return p.s > 0; }  // NaN, 0 and beyond 1 fail

// First point for I_x(a, b) = t, 0 < t <= 1/2. For a, b >= 1 a normal approximation
// through a Wilson-Hilferty-like transform (after the classical algorithm AS 109), kept in
// the far tail between the power laws, which there know the skew better; otherwise the
// power law nearer the root.
UnitPoint FirstGuess(Float t, Float a, Float b, LazyBeta& beta) {
    if (a >= 1 && b >= 1) {
        const Float r = std::sqrt(-2 * std::log(t));
        const Float z = r - (2.30753L + r * 0.27061L) / (1 + r * (0.99229L + r * 0.04481L));
        const Float lambda = (z * z - 3) / 6;
        const Float h = 2 / (1 / (2 * a - 1) + 1 / (2 * b - 1));
        const Float w = z * std::sqrt(h + lambda) / h -
                        (1 / (2 * b - 1) - 1 / (2 * a - 1)) * (lambda + 5.0L / 6 - 2 / (3 * h));
        // x = a / (a + b e^{2w}) and 1 - x = b e^{2w} / (a + b e^{2w}), each without
        // cancellation
        const Float e = b * std::exp(2 * w);
        const Float x = a / (a + e), c = e / (a + e);
        UnitPoint guess = x <= 0.5L ? MakePoint(x, false) : MakePoint(c, true);
        if (!Valid(guess)) guess = {0.5L, false};
        if (t < 1.0L / 64) {
            const TailLaws laws = PowerLaws(t, a, b, beta);
            if (Valid(laws.low) && Below(guess, laws.low)) guess = laws.low;
            if (Valid(laws.high) && Below(laws.high, guess)) guess = laws.high;
        }
        return guess;
    }
    const TailLaws laws = PowerLaws(t, a, b, beta);
    if (!Valid(laws.low)) return Valid(laws.high) ? laws.high : UnitPoint{0.5L, false};
    if (!Valid(laws.high)) return laws.low;
    if (a < 1 && b < 1) {  // the root lies between the two; the smaller tail's law wins
        const Float lowMass = std::exp(a * std::log(a / (a + b))) / a;
        const Float highMass = std::exp(b * std::log(b / (a + b))) / b;
        return t * (lowMass + highMass) < lowMass ? laws.low : laws.high;
    }
    // Both bounds on one side: from above for b < 1 (the lower one wins), from below for
    // a < 1 (the higher one wins).
    return Below(laws.low, laws.high) == (b < 1) ? laws.low : laws.high;
}

// The x with I_x(a, b) = t, 0 < t <= 1/2, as a UnitPoint.
UnitPoint SolveLowerTail(Float t, Float a, Float b) {
    LazyBeta beta(a, b);
    UnitPoint lo{0, false}, hi{0, true};  // x = 0 and x = 1
    UnitPoint p = FirstGuess(t, a, b, beta);
    const Float oneMinusT = 1 - t;
    for (int iteration = 0; iteration < 200; ++iteration) {
        const UnitPair point = p.Pair();
        const BetaValue v = EvaluateIncompleteBeta(point, a, b, beta, true);
        const Float residual = v.lower - t;
        if (residual == 0) return p;
        (residual < 0 ? lo : hi) = p;
        // The smaller tail at p, against its target.
        const bool onLower = v.lower <= 0.5L;
        const Float tail = onLower ? v.lower : v.upper, target = onLower ? t : oneMinusT;
        UnitPoint next{NaN, false};
        if (!(std::fabs(tail - target) <= target * 0.0625L)) {
            // Far from the root a tail is nearer a power of its own variable (x for the
            // lower tail, 1 - x for the upper) than a line: a Newton step on ln(tail) against
            // the logarithm of that variable, whose slope is prefix / ((1 - variable) tail).
            // Where the tail underflows, its logarithm comes from the prefix's.
            const Float share = onLower == v.lowerDirect ? v.share : tail / v.prefix;
            const Float variable = onLower ? point.x.hi : point.complement.hi;
            const Float other = onLower ? point.complement.hi : point.x.hi;
            const Float logRatio = tail >= SmallestNormal ? std::log(tail / target)
                                                          : v.logPrefix + std::log(share / target);
            const Float step = -logRatio * other * share;  // in ln(variable)
            // The variable is s itself, or 1 - s on the far side of 1/2.
            next = onLower != p.high ? MakePoint(std::fmax(p.s * std::exp(step), Tiny), p.high)
                                     : MakePoint(p.s - variable * std::expm1(step), p.high);
        } else {
            // Halley on I_x - t. The density is prefix / (x (1 - x)) and its log-derivative
            // (a - 1) / x - (b - 1) / (1 - x); both enter through the Newton step relative to
            // x and to 1 - x, which stay finite for a subnormal x.
            const Float x = point.x.hi, c = point.complement.hi;
            const Float newton = residual / v.prefix * (x * c);
            const Float relativeX = newton / x, relativeC = newton / c;
            Float damping = 1 - 0.5L * ((a - 1) * relativeX - (b - 1) * relativeC);
            if (!(damping > 0.5L)) damping = 1;  // a plain Newton step instead
            const Float dx = -newton / damping;
            next = MakePoint(p.high ? p.s - dx : p.s + dx, p.high);
            // The step estimates the error e left at p, and Halley's method leaves
            // (kappa' / 6 - kappa^2 / 12) e^3 (kappa the curvature above), below
            // e^3 / (4 L^2) for L = 1 / ((|a - 1| + 1) / x + (|b - 1| + 1) / c) <= s: from a
            // step of 2^-21 L on, the next point is within 2^-65 s of the root.
            const Float stepOverScale =
                ((std::fabs(a - 1) + 1) * std::fabs(relativeX) + (std::fabs(b - 1) + 1) * std::fabs(relativeC)) / damping;
            if (stepOverScale <= 0x1p-21L)
                return next.s > 0 && Below(lo, next) && Below(next, hi) ? next : p;
        }
        if (!(next.s > 0 && Below(lo, next) && Below(next, hi))) {
            next = Middle(lo, hi);
            if (Same(next, lo) || Same(next, hi)) {
                // The bracket is down to one ulp; against an end of (0, 1) the root lies
                // below the smallest Float, and that end is the nearest Float to it.
                if (lo.s == 0) return lo;
                if (hi.s == 0) return hi;
                return p;
            }
        }
        p = next;
    }
    return p;
}

}  // namespace

// The public function keeps the continued fraction for every shape: the binomial tails
// built on it need a tail and its mirror to sum to 1 within two ulps, closer than the
// closed forms' few ulps.
Float IncompleteBeta(Float X, Float A, Float B) {
    if (!ValidShapes(A, B) || !(X >= 0 && X <= 1)) return NaN;
    if (X == 0 || X == 1) return X;
    LazyBeta beta(A, B);
    return EvaluateIncompleteBeta({{X, 0}, special::TwoSum(1, -X)}, A, B, beta).lower;
}

namespace special {

Float IncompleteBeta(const TwoFloat& x, Float a, Float b) {
    if (x.hi <= 0) return 0;
    if (x.hi >= 1 && x.lo >= 0) return 1;
    // Loaded as Floats: a copy of the pair whole goes through 16-byte moves that stall on
    // its 10-byte stores.
    const Float hi = x.hi, lo = x.lo;
    if (a == 0.5L && b == 0.5L) return ArcsineLaw(hi, lo);
    const UnitPair point{{hi, lo}, TwoFloat{1, 0} - TwoFloat{hi, lo}};
    Float closed, prefix = 0;
    if (ClosedForm(point, a, b, closed, prefix)) return closed < 1 ? closed : 1;  // rounding may pass 1
    LazyBeta beta(a, b);
    return EvaluateIncompleteBeta(point, a, b, beta, false, prefix).lower;
}

Float BetaDensity(TwoFloat x, TwoFloat complement, Float a, Float b) {
    LazyBeta beta(a, b);
    Float centre;
    if (CentrePrefix(a, b, Offset(x, a, b), centre)) return centre / (x * complement).hi;
    // The exponents a - 1 and b - 1 in two Floats: a rounded a - 1 would carry an error of
    // 2^-64 times ln x, which reaches thousands.
    return ExpOverBeta(special::Log(x) * TwoSum(a, -1) + special::Log(complement) * TwoSum(b, -1), beta);
}

BetaQuantile InverseIncompleteBeta(Float p, Float a, Float b, bool upper) {
    // On the smaller tail, 1 - p is exact for p >= 1/2. Below: the lower tail of (a, b) or
    // (mirrored) of (b, a), whose root is 1 - x.
    const bool mirrored = upper == (p <= 0.5L);
    const UnitPoint root = mirrored ? SolveLowerTail(p <= 0.5L ? p : 1 - p, b, a)
                                    : SolveLowerTail(p <= 0.5L ? p : 1 - p, a, b);
    const UnitPoint x = mirrored ? UnitPoint{root.s, !root.high} : root;
    const Float far = 1 - x.s;
    return x.high ? BetaQuantile{far, x.s} : BetaQuantile{x.s, far};
}

}  // namespace special

Float InverseIncompleteBeta(Float P, Float A, Float B) {
    if (!ValidShapes(A, B) || !(P >= 0 && P <= 1)) return NaN;
    if (P == 0) return 0;
    if (P == 1) return 1;
    return special::InverseIncompleteBeta(P, A, B, false).x;
}

}  // namespace Kornummath
