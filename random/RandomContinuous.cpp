// Gamma (two methods by shape), chi-square, Weibull, beta, Student t, generalised
// inverse Gaussian and von Mises variates.
#include "random/detail/RandomRules.hpp"

#include <array>
#include <utility>

namespace KornumRandom {

using namespace detail;
using Kornum_RS_Math::rsInvalidShape;
using Kornum_RS_Math::rsInvalidValue;
using Kornum_RS_Math::rsShapeTooSmall;

namespace detail {
namespace {

// The extent of the beta method's parameters: the smaller at least BetaSmallest, the
// larger, and the larger over the smaller, at most BetaLargest.
constexpr Float BetaSmallest = 1e-4900L;
constexpr Float BetaLargest = 1e4900L;

// The largest h and b of the inverse Gaussian method. A trial accepts with probability
// about 1.25 ((h - 1)^2 + b^2)^(-1/4): at this bound a variate takes some 10^7 trials,
// about a second; beyond it the cost grows without end.
constexpr Float InvGaussLargest = 1e14L;

// The inverse Gaussian set-up forms ym = (sqrt((h + 1)^2 + b^2) - (h + 1)) / b, which
// loses digits to cancellation when b is small beside h + 1: its relative error reaches
// about 3 ((h + 1) / b)^2 2^-64, and the bound a, taken at 1/ym, then falls short by
// about (h + 1) / 4 times its square, cutting off part of the distribution (and, past
// e^-20, making the trials all but never accept). While (h + 1)^5 <= 1e32 b^4, that is
// b >= 1e-8 (h + 1)^(5/4), the shortfall stays below 1e-5 and a finite.
constexpr Float InvGaussCancellation = 1e32L;

// Marsaglia and Tsang's squeeze method, for shapes above 1.
Float GammaLargeShape(Float s, TKorUniformFunc RandomGen) {
    Require(s > 1, rsInvalidShape);
    const Float c = s - 1.0L / 3;
    const Float d = 1 / sqrt(9 * c);
    for (;;) {
        Float x, v;
        do {
            x = Random_Normal(RandomGen);
            v = XtoY(1 + d * x, 3);
        } while (v <= 0);
        const Float u = RandomGen();
        if (u < 1 - 0.0331L * x * x * x * x) return c * v;
        if (log(u) < 0.5L * x * x + c * (1 - v + log(v))) return c * v;
    }
}

// A switching method for shapes below 1: a power density left of a, an exponential
// tail right of it, each corrected by a rejection step.
Float GammaSmallShape(Float s, TKorUniformFunc RandomGen) {
    Require(s > 0 && s < 1, rsInvalidShape);
    Require(!(s < KorVSmall), rsShapeTooSmall);
    const Float a = 1 - s;
    const Float p = a / (a + s * exp(-a));
    const Float c = 1 / s;
    const Float uf = p * XtoY(KorVSmall / a, s);
    const Float vr = 1 - KorVSmall;  // exactly 1 in Float
    const Float d = a * log(a);
    for (;;) {
        Float r = RandomGen();
        if (r >= vr) continue;
        Float x, w;
        if (r > p) {
            x = a - log((1 - r) / (1 - p));
            w = a * log(x) - d;
        } else if (r > uf) {
            x = a * XtoY(r / p, c);
            w = x;
        } else {
            return 0;
        }
        r = RandomGen();
        if (1 - r <= w && r > 0) {
            if (r * (w + 1) >= 1) continue;
            if (-log(r) <= w) continue;
        }
        return x;
    }
}

// Six-point Gauss-Legendre quadrature of exp(k cos x) over [a, b].
Float VonMisesIntegral(Float k, Float a, Float b) {
    static constexpr std::array<Float, 3> Nodes{0.238619186083197L, 0.661209386466265L, 0.932469514203152L};
    static constexpr std::array<Float, 3> Weights{0.467913934572691L, 0.360761573048139L, 0.171324492379170L};
    const Float mid = (a + b) / 2, half = (b - a) / 2;
    Float sum = 0;
    for (std::size_t i = 0; i < 3; ++i)
        sum += Weights[i] * (exp(k * std::cos(mid + Nodes[i] * half)) + exp(k * std::cos(mid - Nodes[i] * half)));
    return sum * half;
}

}  // namespace
}  // namespace detail

Float Random_Gamma(Float s, TKorUniformFunc RandomGen) {
    // NaN fails too; an infinite shape would make the large-shape method return infinity.
    Require(s > 0 && std::isfinite(s), rsInvalidShape);
    if (s > 1) return GammaLargeShape(s, RandomGen);
    if (s < 1) return GammaSmallShape(s, RandomGen);
    return Random_Exponential(RandomGen);
}

Float Random_ChiSq(Integer ndf, TKorUniformFunc RandomGen) { return 2 * Random_Gamma(0.5L * ndf, RandomGen); }

// Only the magnitude of a is tested: a negative a is accepted, E^(1/a) then having a
// negative exponent.
Float Random_Weibull(Float a, TKorUniformFunc RandomGen) {
    // NaN fails too; an infinite a would return the constant E^0 = 1.
    Require(fabs(a) > KorVSmall && std::isfinite(a), rsInvalidValue);
    return XtoY(Random_Exponential(RandomGen), 1 / a);
}

// Cheng's log-logistic method (algorithms BB and BC), on a >= b with the result
// mirrored when the parameters were exchanged.
Float Random_Beta(Float aa, Float bb, TKorUniformFunc RandomGen) {
    Require(aa > 0 && bb > 0, rsInvalidValue);  // NaN fails too
    Float a = aa, b = bb;
    const bool swap = b > a;
    if (swap) std::swap(a, b);
    const Float d = a / b, f = a + b;
    // Infinity too: beyond these d, f or a logit over b (up to 11400 / b) overflows to NaN.
    Require(b >= BetaSmallest && a <= BetaLargest && d <= BetaLargest, rsInvalidValue);
    Float h, t;
    if (b > 1) {
        h = sqrt((2 * a * b - f) / (f - 2));
        t = 1;
    } else {
        h = b;
        t = 1 / (1 + XtoY(a / (VLarge * b), b));
    }
    const Float c = a + h;
    Float result;
    for (;;) {
        const Float r = RandomGen();
        Float x = RandomGen();
        const Float s = r * r * x;
        if (r < KorVSmall || s <= 0) continue;
        if (r < t) {
            x = log(r / (1 - r)) / h;
            const Float y = d * exp(x);
            const Float z = c * x + f * log((1 + d) / (1 + y)) - 1.38629436112L;
            if (s - 1 > z) {
                if (s - s * z > 1) continue;
                if (log(s) > z) continue;
            }
            result = y / (1 + y);
        } else {
            if (4 * s > XtoY(1 + 1 / d, f)) continue;
            result = 1;
        }
        break;
    }
    return swap ? 1 - result : result;
}

// Kinderman and Monahan's ratio method. The method as first stated does not draw
// Student's t: for m > 1 its bound g is too small by sqrt((m + 1) / (2m)), and for m = 1
// and 2 its outer squeeze r (v + 3) > f rejects points inside the acceptance region.
// Corrected here, and nowhere else: g = ((s + 1) / (s - 1))^c sqrt(2s / (s - 1)), and the
// outer squeeze only from m = 3 on.
Float Random_T(Integer m, TKorUniformFunc RandomGen) {
    Require(m >= 1, rsInvalidValue);
    const Float s = m;
    const Float c = -0.25L * (s + 1);
    const Float a = 4 / XtoY(1 + 1 / s, c);
    const Float f = 16 / a;
    Float g = 1;
    if (m > 1) {
        g = s - 1;
        g = XtoY((s + 1) / g, c) * sqrt(2 * s / g);
    }
    for (;;) {
        Float r;
        do {
            r = RandomGen();
        } while (r <= 0);
        Float v = RandomGen();
        const Float x = (2 * v - 1) * g / r;
        v = x * x;
        if (v > 5 - a * r) {
            if (m >= 3 && r * (v + 3) > f) continue;
            if (r > XtoY(1 + v / s, c)) continue;
        }
        return x;
    }
}

// A ratio-of-uniforms method for the density x^(h-1) exp(-b (x + 1/x) / 2).
Float Random_Inv_Gauss(Float h, Float b, TKorUniformFunc RandomGen) {
    Require(h >= 0, rsInvalidValue);  // NaN too: it passes every later test, no trial accepts
    Require(b > 0, rsInvalidValue);
    // Beyond these a variate takes over 10^7 trials; an infinite b makes the set-up NaN.
    Require(h <= InvGaussLargest && b <= InvGaussLargest, rsInvalidValue);
    // b too small beside h: the cancellation in ym would cut a short, even to 0 or NaN.
    const Float h1 = h + 1;
    Require(h1 * h1 * h1 * h1 * h1 <= InvGaussCancellation * (b * b) * (b * b), rsInvalidValue);
    Require(!(h > 0.25L * b * sqrt(VLarge)), rsInvalidValue);  // h : b too small
    Float e = b * b;
    Float d = h + 1;
    const Float ym = (-d + sqrt(d * d + e)) / b;
    Require(!(ym < KorVSmall), rsInvalidValue);  // b too small
    d = h - 1;
    const Float xm = (d + sqrt(d * d + e)) / b;
    d = 0.5L * d;
    e = -0.25L * b;
    const Float r = xm + 1 / xm;
    const Float w = xm * ym;
    const Float a = XtoY(w, -0.5L * h) * sqrt(xm / ym) * exp(-e * (r - ym - 1 / ym));
    // h too large, or a set-up that overflowed (infinity, NaN): no trial would accept.
    Require(a >= KorVSmall && std::isfinite(a), rsInvalidValue);
    const Float c = -d * log(xm) - e * r;
    for (;;) {
        Float r1;
        do {
            r1 = RandomGen();
        } while (r1 <= 0);
        const Float r2 = RandomGen();
        const Float x = a * r2 / r1;
        if (x <= 0) continue;
        if (log(r1) < d * log(x) + e * (x + 1 / x) + c) return x;
    }
}

// Dagpunar's comparison of random numbers (VMD): the half circle cut into nk pieces
// chosen by their probability, then a Forsythe comparison within the piece.
Float Random_von_Mises(Float k, TKorUniformFunc RandomGen) {
    // At most 20 pieces; NaN and infinity fail here, before the integer conversion below.
    Require(k >= 0 && k + k < 20, rsInvalidValue);
    // trunc(2k) + 1, not trunc(2k + 1): 2k + 1 rounds to 3 for k = 1 - 2^-64 (a NaN piece).
    const Integer nk = Integer(k + k) + 1;
    std::array<Float, 22> theta{}, p{};
    if (k > 0.5L) {
        Float total = 0;
        for (Integer j = 1; j <= nk; ++j) {
            theta[j] = j < nk ? KorArcCos(1 - j / k) : KorPi;
            p[j] = VonMisesIntegral(k, theta[j - 1], theta[j]);
            total += p[j];
        }
        for (Integer j = 1; j <= nk; ++j) p[j] /= total;
    } else {
        p[1] = 1;
        theta[1] = KorPi;
    }
    Float r = RandomGen();
    Integer j = 1;
    for (; j <= nk; ++j) {
        r -= p[j];
        if (r < 0) break;
    }
    if (j > nk) j = nk;  // r within rounding of 1: the last piece
    r = -r / p[j];
    Float th, rlast;
    for (;;) {
        th = theta[j - 1] + r * (theta[j] - theta[j - 1]);
        const Float lambda = k - j + 1 - k * std::cos(th);
        Integer n = 1;
        rlast = lambda;
        r = RandomGen();
        while (r <= rlast) {
            ++n;
            rlast = r;
            r = RandomGen();
        }
        if (n % 2 == 1) break;
        r = RandomGen();
    }
    return (r - rlast) / (1 - rlast) - 0.5L < 0 ? -th : th;
}

KORNUM_FROM_DEFAULT_RANDOM(Float, Random_Gamma, (Float s), (s, DefaultRandom))
KORNUM_FROM_DEFAULT_RANDOM(Float, Random_ChiSq, (Integer ndf), (ndf, DefaultRandom))
KORNUM_FROM_DEFAULT_RANDOM(Float, Random_Weibull, (Float a), (a, DefaultRandom))
KORNUM_FROM_DEFAULT_RANDOM(Float, Random_Beta, (Float aa, Float bb), (aa, bb, DefaultRandom))
KORNUM_FROM_DEFAULT_RANDOM(Float, Random_T, (Integer m), (m, DefaultRandom))
KORNUM_FROM_DEFAULT_RANDOM(Float, Random_Inv_Gauss, (Float h, Float b), (h, b, DefaultRandom))
KORNUM_FROM_DEFAULT_RANDOM(Float, Random_von_Mises, (Float k), (k, DefaultRandom))

}  // namespace KornumRandom
