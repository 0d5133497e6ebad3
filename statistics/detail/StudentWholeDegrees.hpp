// Student's t for whole degrees of freedom in closed form: the tail P(T > |t|), the
// density, and the inverse by Halley's method on them. Internal to the library (not
// installed).
//
// With x = n / (n + t^2), c = sqrt(x), s = sqrt(1 - x) and theta = atan(|t| / sqrt(n)),
// the central probability P(|T| < |t|) is a finite sum,
//   n even, m = n / 2:        C = s (a_0 + a_1 x + ... + a_(m-1) x^(m-1)),
//   n odd,  m = (n - 1) / 2:  C = (2 / pi) (theta + s c (b_0 + ... + b_(m-1) x^(m-1))),
// with a_k = C(2k, k) / 4^k and b_k = 4^k / ((2k + 1) C(2k, k)). The whole series are
// 1 / s and arcsin(c) / (s c), so the two-sided tail 1 - C is what follows the sum:
//   n even:  s (a_m x^m + a_(m+1) x^(m+1) + ...),
//   n odd:   (2 / pi) s c (b_m x^m + b_(m+1) x^(m+1) + ...),
// a sum of positive terms that keeps its relative precision however small the tail is.
// It converges as x^k: it is taken where x <= 3/4 (at most about 150 terms); above, the
// tail is 1 - C where C leaves it at least 1/16 (a cancellation of at most 4 bits), and
// the caller's general method covers the rest. About ten times faster than the incomplete
// beta function it replaces.
#pragma once

#include "core/detail/ExtendedPrecision.hpp"
#include "statistics/detail/DistributionSupport.hpp"

#include <kornum/Kornumglobals.h>

#include <cmath>
#include <cstdint>
#include <limits>

namespace KornumStatistics::detail {

using Kornumglobals::Float;
using Kornumglobals::Integer;

// Degrees of freedom up to this use the closed form: C(2k, k) and (2k + 1) C(2k, k) stay
// below 2^64 for k <= 30, so every coefficient below is correctly rounded.
inline constexpr Integer StudentClosedFormLimit = 60;

struct StudentCoefficients {
    Float even[31];  // a_k
    Float odd[31];   // b_k
};

inline constexpr StudentCoefficients MakeStudentCoefficients() {
    StudentCoefficients table{};
    std::uint64_t central = 1;  // C(2k, k), from C(2k, k) = C(2k - 2, k - 1) 2 (2k - 1) / k
    for (int k = 0; k <= 30; ++k) {
        if (k > 0) central = central * (4 * k - 2) / unsigned(k);
        const Float power = Float(std::uint64_t(1) << (2 * k));  // 4^k
        table.even[k] = Float(central) / power;
        table.odd[k] = power / Float(central * unsigned(2 * k + 1));
    }
    return table;
}

inline constexpr StudentCoefficients StudentSeries = MakeStudentCoefficients();

// x = n / (n + t^2) and 1 - x = t^2 / (n + t^2), each formed directly from the exact
// square of t and kept to about 2^-120 as an unevaluated sum.
struct StudentRatiosExact {
    Kornummath::special::TwoFloat x, y;
};

inline StudentRatiosExact MakeStudentRatiosExact(Float t, Float n) {
    using namespace Kornummath::special;
    if (t > 1e1000L) return {{n / t / t, 0}, {1, 0}};  // t^2 would overflow; x is beyond 1e-2000
    const TwoFloat square = TwoProduct(t, t);
    const TwoFloat denominator = TwoSum(n, square.hi) + TwoFloat{square.lo, 0};
    return {TwoFloat{n, 0} / denominator, square / denominator};
}

// The density at 0: Gamma((n + 1) / 2) / (sqrt(n pi) Gamma(n / 2)), which is m a_m / sqrt(n)
// for n = 2m and sqrt(n) b_m / pi for n = 2m + 1.
inline Float StudentDensityAtZero(Integer n) {
    const int m = int(n / 2);
    const Float root = std::sqrt(Float(n));
    return n % 2 != 0 ? root * StudentSeries.odd[m] * InversePi : m * StudentSeries.even[m] / root;
}

struct StudentClosedForm {
    Float central;   // P(|T| < t), to full relative precision
    Float tail;      // P(|T| > t), to full relative precision where tailKept
    Float falloff;   // t f(t) / f(0) = t x^((n + 1) / 2)
    Float x;         // n / (n + t^2)
    bool tailKept;
};

// Both probabilities and the density's falloff at t >= 0, for 2 <= n <=
// StudentClosedFormLimit.
inline StudentClosedForm EvaluateStudentClosedForm(Float t, Integer n) {
    const bool odd = n % 2 != 0;
    const int m = int(n / 2);
    const Float* coefficient = odd ? StudentSeries.odd : StudentSeries.even;
    const StudentRatiosExact r = MakeStudentRatiosExact(t, Float(n));
    const Float x = r.x.hi, s = std::sqrt(r.y.hi), c = std::sqrt(x);
    Float power = 1, base = x;  // x^m by squaring
    for (int e = m; e > 0; e >>= 1, base *= base)
        if (e & 1) power *= base;
    // t x^((n + 1) / 2) as (t sqrt(x)) x^(n / 2): t sqrt(x) = sqrt(n (1 - x)) is at most
    // sqrt(n), while x^((n + 1) / 2) alone would for a huge t fall below the normal range
    // where the tail and t f(t) stay inside it.
    const Float falloff = t * c * power * (odd ? c : 1);
    // Each form ends in the factor s (even) or (2 / pi) s c (odd).
    const Float factor = odd ? 2 * s * c * InversePi : s;
    if (x <= 0.75L) {
        Float term = coefficient[m] * power, sum = term;
        // a_(k+1) / a_k = (2k + 1) / (2k + 2), b_(k+1) / b_k = (2k + 2) / (2k + 3)
        for (Float k = 2 * m + 1 + odd; term > sum * 0x1p-66L; k += 2) {
            term *= x * (k / (k + 1));
            sum += term;
        }
        const Float tail = factor * sum;
        return {1 - tail, tail, falloff, x, true};
    }
    Float sum = 0;
    for (int k = m - 1; k >= 0; --k) sum = sum * x + coefficient[k];
    const Float central = (odd ? 2 * InversePi * std::atan(t / std::sqrt(Float(n))) : 0) + factor * sum;
    return {central, 1 - central, falloff, x, central <= 15.0L / 16};
}

// P(T > t) for t >= 0 and 2 <= n <= StudentClosedFormLimit; false where neither form keeps
// full precision.
inline bool StudentTailClosedForm(Float t, Integer n, Float& tail) {
    const StudentClosedForm v = EvaluateStudentClosedForm(t, n);
    tail = v.tail / 2;
    return v.tailKept;
}

// A point of the distribution for the inverse: the two probabilities, of which the solver
// names the one it needs at full relative precision, t times the density f(t) (the
// density's own size for a huge t can lie below the normal range of Float, where it loses
// its digits), and n / (n + t^2).
struct StudentPoint {
    Float central, tail, slope, x;  // P(|T| < t), P(|T| > t), t f(t), x
};

// A first t for P(T > t) = tail, given z with P(Z > z) = tail for the standard normal Z:
// the Cornish-Fisher expansion, good to parts in 1e8 in the body from 100 degrees of
// freedom on, unless it exceeds the power law that bounds the tail from above,
// P(T > t) < f(0) n^((n - 1) / 2) t^-n, whose root is then the better start.
inline Float StudentFirstGuess(Float tail, Float z, Integer n, Float densityAtZero) {
    const Float z2 = z * z, d = n;
    const Float g1 = (z2 + 1) * z / 4, g2 = ((5 * z2 + 16) * z2 + 3) * z / 96,
                g3 = (((3 * z2 + 19) * z2 + 17) * z2 - 15) * z / 384,
                g4 = ((((79 * z2 + 776) * z2 + 1482) * z2 - 1920) * z2 - 945) * z / 92160;
    const Float expansion = z + (g1 + (g2 + (g3 + g4 / d) / d) / d) / d;
    const Float powerLaw = std::exp((std::log(densityAtZero) + (d - 1) / 2 * std::log(d) - std::log(tail)) / d);
    return std::fmin(expansion, powerLaw);
}

// The t >= 0 with P(T > t) = tail, 0 < tail < 1/2. One and two degrees of freedom invert
// in closed form; otherwise Halley's method inside a bracket that only narrows, from
// StudentFirstGuess with the normal quantile z, and with evaluate(t, onCentral) giving
// the StudentPoint at t. Where tail >= 1/4 the equation is
// put on the central probability 1 - 2 tail, exact there and small near t = 0, so that a
// small t keeps its relative precision; elsewhere on the two-sided tail 2 tail.
template <class Evaluate>
Float InverseStudentTail(Float tail, Float z, Integer n, Float densityAtZero, Evaluate evaluate) {
    constexpr Float Pi = 3.14159265358979323851280895940618620L;
    const bool onCentral = tail >= 0.25L;
    if (n == 1) return onCentral ? std::tan(Pi * (0.5L - tail)) : 1 / std::tan(Pi * tail);
    if (n == 2) return (1 - 2 * tail) / std::sqrt(2 * tail * (1 - tail));
    const Float target = onCentral ? 1 - 2 * tail : 2 * tail;  // exact either way
    Float t = StudentFirstGuess(tail, z, n, densityAtZero);
    Float lo = 0, hi = std::numeric_limits<Float>::infinity();
    for (int iteration = 0; iteration < 200; ++iteration) {
        const StudentPoint v = evaluate(t, onCentral);
        const Float residual = onCentral ? v.central - target : target - v.tail;  // rises with t
        if (residual == 0) return t;
        (residual < 0 ? lo : hi) = t;
        Float next;
        bool halley = false;
        if (!onCentral && !(std::fabs(v.tail / target - 1) <= 0x1p-10L)) {
            // Far from the root the tail is nearer a power of t than a line: a Newton step
            // on ln P(|T| > t) against ln t, whose slope is -2 t f(t) / P(|T| > t).
            next = t * std::exp(std::log(v.tail / target) * v.tail / (2 * v.slope));
        } else {
            // The residual's derivative is 2 f(t), and f'/f = -(n + 1) t / (n + t^2).
            const Float newton = residual * t / (2 * v.slope);
            Float damping = 1 + 0.5L * newton * (n + 1) * t * v.x / n;
            if (!(damping > 0.5L)) damping = 1;  // a plain Newton step instead
            next = t - newton / damping;
            halley = true;
        }
        if (next > lo && next < hi) {
            // Convergence is cubic: a step this small leaves an error far below an ulp.
            if (halley && std::fabs(next - t) <= 0x1p-30L * t) return next;
            t = next;
        } else if (std::isinf(hi)) {
            t = 2 * t;
        } else {
            const Float middle = lo > 0 ? std::sqrt(lo * hi) : hi / 16;
            if (middle <= lo || middle >= hi) return t;  // the bracket is down to an ulp
            t = middle;
        }
    }
    return t;
}

}  // namespace KornumStatistics::detail
