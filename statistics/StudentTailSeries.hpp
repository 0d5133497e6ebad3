// Student's t tail P(T > |t|) for whole degrees of freedom, in closed form. Internal to
// the library (not installed).
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

#include "../core/KorGammaSupport.h"

#include <kornum/Kornumglobals.h>

#include <cmath>
#include <cstdint>

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

// x = n / (n + t^2) and 1 - x = t^2 / (n + t^2), each formed directly and to about half an
// ulp from the exact square of t.
struct StudentRatios {
    Float x, y;
};

inline StudentRatios MakeStudentRatios(Float t, Float n) {
    using namespace Kornummath::special;
    if (t > 1e1000L) return {n / t / t, 1};  // t^2 would overflow; x is beyond 1e-2000
    const TwoFloat square = TwoProduct(t, t);
    const TwoFloat denominator = TwoSum(n, square.hi) + TwoFloat{square.lo, 0};
    return {(TwoFloat{n, 0} / denominator).hi, (square / denominator).hi};
}

// P(T > t) for t >= 0 and 2 <= n <= StudentClosedFormLimit; false where neither form keeps
// full precision.
inline bool StudentTailClosedForm(Float t, Integer n, Float& tail) {
    constexpr Float InversePi = 0.318309886183790671537767526745028724L;
    const bool odd = n % 2 != 0;
    const int m = int(n / 2);
    const Float* coefficient = odd ? StudentSeries.odd : StudentSeries.even;
    const StudentRatios r = MakeStudentRatios(t, Float(n));
    const Float s = std::sqrt(r.y), c = std::sqrt(r.x);
    // Each form ends in the factor s (even) or (2 / pi) s c (odd), halved for one tail.
    const Float factor = odd ? s * c * InversePi : s / 2;
    if (r.x <= 0.75L) {
        Float power = 1, base = r.x;  // x^m by squaring
        for (int e = m; e > 0; e >>= 1, base *= base)
            if (e & 1) power *= base;
        Float term = coefficient[m] * power, sum = term;
        // a_(k+1) / a_k = (2k + 1) / (2k + 2), b_(k+1) / b_k = (2k + 2) / (2k + 3)
        for (Float k = 2 * m + 1 + odd; term > sum * 0x1p-66L; k += 2) {
            term *= r.x * (k / (k + 1));
            sum += term;
        }
        tail = factor * sum;
        return true;
    }
    Float sum = 0;
    for (int k = m - 1; k >= 0; --k) sum = sum * r.x + coefficient[k];
    const Float central = odd ? 2 * InversePi * std::atan(t / std::sqrt(Float(n))) + 2 * factor * sum
                              : 2 * factor * sum;
    if (!(central <= 15.0L / 16)) return false;
    tail = (1 - central) / 2;
    return true;
}

}  // namespace KornumStatistics::detail
