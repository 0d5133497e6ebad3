// Binomial (two methods), negative binomial and Poisson variates, and the multivariate
// normal.
#include "random/detail/RandomRules.hpp"

#include <array>
#include <cstdlib>
#include <limits>

namespace KornumRandom {

using namespace detail;
using Kornum_RS_Math::rsInvalidValue;

namespace detail {
namespace {

// The largest mean of the negative binomial method (the odds p / (1 - p) when sk < 1).
// Its cost is one geometric draw per unit of sk and one inversion step per unit of the
// remaining part's mean, so at this bound a variate takes up to some 10^7 steps, well
// under a second; beyond it the cost grows without end, and p near 1 would make a
// geometric draw overflow Int64.
constexpr Float NegBinomialLargest = 1e7L;

// The largest Poisson mean. A candidate of method PD is at most mu + 746.2 sqrt(mu) (1.8
// plus the largest exponential variate, -ln 5E-324, standard deviations above the mean);
// up to this bound that fits Int64, beyond it the integer conversion would overflow.
constexpr Float PoissonLargest = 9.2e18L;

// The smallest normal Float: below it products round to a standstill or to 0.
constexpr Float SmallestNormal = std::numeric_limits<Float>::min();

// The binomial probability of r successes in n trials, through log-gammas.
Float BinomialProbability(Integer n, Int64 r, Float p) {
    return exp(LnGamma(Float(n) + 1) - LnGamma(Float(r) + 1) - LnGamma(Float(n - r) + 1) + Float(r) * log(p) +
               Float(n - r) * log(1 - p));
}

// The Stirling correction term of the BTPE final test.
Float StirlingTerm(Float y) {
    const Float y2 = y * y;
    return (13860 - (462 - (132 - (99 - 140 / y2) / y2) / y2) / y2) / y / 166320;
}

}  // namespace
}  // namespace detail

// Kemp's modal inversion: from the mode, one step down then one step up, in turn.
Int64 Random_Binomial1(Integer n, Float p, TKorUniformFunc RandomGen) {
    // NaN fails too: outside these the walk never finds u, restarting for ever.
    Require(n >= 0 && p >= 0 && p <= 1, rsInvalidValue);
    // Exact, without a draw: the walk's odds and logarithms would give NaN, restarting for ever.
    if (p == 0) return 0;
    if (p == 1) return n;
    const Int64 r0 = Trunc((Float(n) + 1) * p);
    const Float pr = BinomialProbability(n, r0, p);
    const Float odds = p / (1 - p);
    for (;;) {
        Float u = RandomGen();
        u -= pr;
        if (u < 0) return r0;
        Float pu = pr, pd = pr;
        Int64 ru = r0, rd = r0;
        // Once both walks have left 0 .. n, u exceeded the probabilities' sum by
        // rounding: the walk starts afresh from a new uniform instead of stepping for ever.
        while (rd >= 0 || ru <= n) {
            --rd;
            if (rd >= 0) {
                pd = pd * Float(rd + 1) / (odds * Float(n - rd));
                u -= pd;
                if (u < 0) return rd;
            }
            ++ru;
            if (ru <= n) {
                pu = pu * Float(n - ru + 1) * odds / Float(ru);
                u -= pu;
                if (u < 0) return ru;
            }
        }
    }
}

// BTPE (Kachitvichyanukul and Schmeiser) above a mean of 30, inversion below; on
// p = min(pp, 1 - pp), mirrored for pp > 0.5.
Int64 Random_Binomial2(Int64 n, Float pp, TKorUniformFunc RandomGen) {
    // NaN too: outside these it returns 0, n or a negative count (pp = 0 and 1 are exact).
    Require(n >= 0 && pp >= 0 && pp <= 1, rsInvalidValue);
    const Float p = MinXY(pp, 1 - pp);
    const Float q = 1 - p;
    const Float xnp = Float(n) * p;
    Int64 ix = 0;
    if (xnp > 30) {
        const Float ffm = xnp + p;
        const Int64 m = Trunc(ffm);
        const Float fm = Float(m);
        const Float xnpq = xnp * q;
        const Float p1 = Float(Trunc(2.195L * sqrt(xnpq) - 4.6L * q)) + 0.5L;
        const Float xm = fm + 0.5L, xl = xm - p1, xr = xm + p1;
        const Float c = 0.134L + 20.5L / (15.3L + fm);
        Float al = (ffm - xl) / (ffm - xl * p);
        const Float xll = al * (1 + 0.5L * al);
        al = (xr - ffm) / (xr * q);
        const Float xlr = al * (1 + 0.5L * al);
        const Float p2 = p1 * (1 + c + c), p3 = p2 + c / xll, p4 = p3 + c / xlr;
        const Float nPlus1 = Float(n) + 1;  // exact
        for (;;) {
            const Float u = RandomGen() * p4;
            Float v = RandomGen();
            if (u <= p1) {  // triangle
                ix = Trunc(xm - p1 * v + u);
                break;
            }
            if (u <= p2) {  // parallelogram
                const Float x = xl + (u - p1) / c;
                v = v * c + 1 - fabs(xm - x) / p1;
                if (v > 1 || v <= 0) continue;
                ix = Trunc(x);
            } else if (u <= p3) {  // left tail
                // Tested before truncation, where ix < 0 is y <= -1: v = 0 gives y = -inf.
                const Float y = xl + log(v) / xll;
                if (y <= -1) continue;
                ix = Trunc(y);
                v = v * (u - p2) * xll;
            } else {  // right tail
                const Float y = xr - log(v) / xlr;  // likewise ix > n is y >= n + 1
                if (y >= nPlus1) continue;
                ix = Trunc(y);
                v = v * (u - p3) * xlr;
            }
            const Float k = Float(std::llabs(ix - m));
            if (k <= 20 || k >= xnpq / 2 - 1) {  // explicit evaluation
                Float f = 1;
                const Float r = p / q, g = (Float(n) + 1) * r;  // n + 1 in Int64 could overflow
                for (Int64 i = m + 1; i <= ix; ++i) f = f * (g / Float(i) - r);
                for (Int64 i = ix + 1; i <= m; ++i) f = f / (g / Float(i) - r);
                if (v <= f) break;
                continue;
            }
            const Float amaxp = (k / xnpq) * ((k * (k / 3 + 0.625L) + 0.1666666666666L) / xnpq + 0.5L);
            const Float ynorm = -k * k / (2 * xnpq);
            const Float alv = log(v);
            if (alv < ynorm - amaxp) break;
            if (alv > ynorm + amaxp) continue;
            const Float x1 = Float(ix + 1), f1 = fm + 1, z = nPlus1 - fm, w = Float(n - ix) + 1;
            if (alv - (xm * log(f1 / x1) + (Float(n - m) + 0.5L) * log(z / w) + Float(ix - m) * log(w * p / (x1 * q)) +
                       StirlingTerm(f1) + StirlingTerm(z) + StirlingTerm(x1) + StirlingTerm(w)) >
                0)
                continue;
            break;
        }
    } else {  // inversion
        const Float qn = XtoY(q, Float(n));
        const Float r = p / q, g = r * (Float(n) + 1);
        for (bool accepted = false; !accepted;) {
            ix = 0;
            Float f = qn;
            Float u = RandomGen();
            accepted = true;
            while (u >= f) {
                if (ix > 110) {
                    accepted = false;  // start again with a fresh uniform
                    break;
                }
                u -= f;
                ++ix;
                f = f * (g / Float(ix) - r);
            }
        }
    }
    return pp > 0.5L ? n - ix : ix;
}

// Unstored inversion, with geometric variates for the whole part of sk when p > 0.7.
Int64 Random_Neg_Binomial(Float sk, Float p, TKorUniformFunc RandomGen) {
    Require(sk > 0 && p > 0 && p < 1, rsInvalidValue);  // NaN fails too
    const Float q = 1 - p;
    // Beyond this a variate takes over 10^7 steps; an infinite sk would overflow Trunc(st).
    Require(MaxXY(sk, Float(1)) * p / q <= NegBinomialLargest, rsInvalidValue);
    Float x = 0, st = sk;
    if (p > 0.7L) {
        const Float v = 1 / log(p);
        const Int64 k = Trunc(st);
        for (Int64 i = 0; i < k; ++i) {
            Float r;
            do {
                r = RandomGen();
            } while (!(r > 0));
            x += Float(Trunc(v * log(r)));
        }
        st -= Float(k);
    }
    const Float uln = -log(KorVSmall);
    Require(!(st > -uln / log(q)), rsInvalidValue);  // p too large for this sk
    // A walk that can no longer use up r (r above the rounded sum of the terms) would step
    // for ever, the terms rounding to a standstill or to 0: it starts afresh from a new
    // uniform once they leave the normal range (the first is at least about KorVSmall) or,
    // when st <= 1, where they fall from the first by ratios p (st + s - 1) / s <= p, once
    // all that is left of them, at most y / q, is below r.
    const Float fall = st <= 1 ? q : 0;
    Float s, y, r;
    do {
        s = 0;
        y = XtoY(q, st);
        Float g = st;
        r = RandomGen();
        while (y <= r && y >= SmallestNormal && y >= r * fall) {
            r -= y;
            s += 1;
            y = y * p * g / s;
            g += 1;
        }
    } while (y <= r);
    return Trunc(x + s + 0.5L);
}

namespace detail {
namespace {

// The quantities of the PD method's acceptance tests for a candidate ival.
struct PoissonTerms {
    Float px, py, fx, fy;
};

PoissonTerms PoissonF(Float mu, Float s, Int64 ival, Float fk, Float difmuk, Float omega, Float c0, Float c1,
                      Float c2, Float c3) {
    static constexpr std::array<Float, 10> Factorials{1, 1, 2, 6, 24, 120, 720, 5040, 40320, 362880};
    PoissonTerms t{};
    if (ival < 10) {
        t.px = -mu;
        t.py = XtoY(mu, Float(ival)) / Factorials[std::size_t(ival)];
    } else {
        Float del = 0.08333333L / fk;
        del = del - 4.8L * del * del * del;
        const Float v = difmuk / fk;
        if (fabs(v) > 0.25L) {
            t.px = fk * log(1 + v) - difmuk - del;
        } else {
            const Float a0 = -0.5L, a1 = 0.3333333L, a2 = -0.2500068L, a3 = 0.2000118L, a4 = -0.1661269L,
                        a5 = 0.1421878L, a6 = -0.1384794L, a7 = 0.125006L;
            t.px = fk * v * v * (((((((a7 * v + a6) * v + a5) * v + a4) * v + a3) * v + a2) * v + a1) * v + a0) - del;
        }
        t.py = 0.3989423L / sqrt(fk);
    }
    const Float x = (0.5L - difmuk) / s, xx = x * x;
    t.fx = -0.5L * xx;
    t.fy = omega * (((c3 * xx + c2) * xx + c1) * xx + c0);
    return t;
}

Int64 PoissonPD(Float mu, TKorUniformFunc RandomGen) {
    const Float s = sqrt(mu), d = 6 * mu * mu;
    const Int64 l = MaxXY(Int64(0), Trunc(mu - 1.1484L));
    const Float g = mu + s * Random_Normal(RandomGen);
    Int64 ival = 0;
    Float fk = 0, difmuk = mu, u = 0;
    if (g > 0) {
        ival = Trunc(g);
        if (ival >= l) return ival;
        fk = Float(ival);
        difmuk = mu - fk;
        u = RandomGen();
        if (d * u >= difmuk * difmuk * difmuk) return ival;
    }
    const Float omega = 0.3989423L / s, b1 = 0.04166667L / mu, b2 = 0.3L * b1 * b1, c3 = 0.1428571L * b1 * b2;
    const Float c2 = b2 - 15 * c3, c1 = b1 - 6 * b2 + 45 * c3, c0 = 1 - b1 + 3 * b2 - 15 * c3, c = 0.1069L / mu;
    if (g >= 0) {
        const PoissonTerms t = PoissonF(mu, s, ival, fk, difmuk, omega, c0, c1, c2, c3);
        if (t.fy - u * t.fy <= t.py * exp(t.px - t.fx)) return ival;
    }
    for (;;) {
        const Float e = Random_Exponential(RandomGen);
        u = RandomGen();
        u = u + u - 1;
        const Float t = 1.8L + (u < 0 ? -e : e);
        if (t <= -0.6744L) continue;
        ival = Trunc(mu + s * t);
        fk = Float(ival);
        difmuk = mu - fk;
        const PoissonTerms f = PoissonF(mu, s, ival, fk, difmuk, omega, c0, c1, c2, c3);
        if (c * fabs(u) > f.py * exp(f.px + e) - f.fy * exp(f.fx + e)) continue;
        return ival;
    }
}

// Inversion through a cumulative table of 35 entries, built as far as each draw needs.
Int64 PoissonTable(Float mu, TKorUniformFunc RandomGen) {
    const Integer m = MaxXY(Int64(1), Trunc(mu));
    Integer l = 0;
    Float p = exp(-mu), q = p;
    const Float p0 = p;
    std::array<Float, 36> pp{};
    for (;;) {
        const Float u = RandomGen();
        if (u <= p0) return 0;
        if (l > 0) {
            const Integer j = u > 0.458L ? MinXY(l, m) : 1;
            for (Integer k = j; k <= l; ++k)
                if (u <= pp[std::size_t(k)]) return k;
            if (l == 35) continue;
        }
        for (Integer k = l + 1; k <= 35; ++k) {
            p = p * mu / k;
            q = q + p;
            pp[std::size_t(k)] = q;
            if (u <= pp[std::size_t(k)]) return k;
        }
        l = 35;
    }
}

}  // namespace
}  // namespace detail

// Ahrens and Dieter's method PD above a mean of 10, table inversion otherwise.
Int64 Random_Poisson(const Float& mu, TKorUniformFunc RandomGen) {
    // NaN too (the table stays NaN for ever); below 0 it returns 0; beyond, Int64 overflows.
    Require(mu >= 0 && mu <= PoissonLargest, rsInvalidValue);
    return mu > 10 ? PoissonPD(mu, RandomGen) : PoissonTable(mu, RandomGen);
}

namespace detail {
namespace {

// Whether the first count elements of V are all finite.
bool AllFinite(const TKorFloatVector& V, Int64 count) {
    for (Integer i = 0; i < Integer(count); ++i)
        if (!std::isfinite(Float(V[i]))) return false;
    return true;
}

}  // namespace
}  // namespace detail

// The Cholesky factor of the covariance, packed column by column, then the means plus
// the factor times a vector of normal variates. Positions are 1-based as in the packed
// layouts.
void Random_MVNorm(const TKorFloatVector& H, const TKorFloatVector& D, TKorFloatVector& F, TKorFloatVector& X,
                   Integer& Ier, TKorUniformFunc RandomGen) {
    const Int64 n = H.Length();
    Require(n > 0, Kornum_RS_Math::rsVectorEmpty);
    Require(n * (n + 1) / 2 <= D.Length(), Kornum_RS_Math::rsVectorTooSmall);
    // A NaN or infinite mean or covariance would come out as a NaN or infinite variate.
    Require(AllFinite(H, n) && AllFinite(D, n * (n + 1) / 2), rsInvalidValue);
    const auto d = [&D](Int64 position) { return Float(D[Integer(position - 1)]); };
    const auto f = [&F](Int64 position) -> PackedFloat& { return F[Integer(position - 1)]; };
    const Int64 nn = 2 * n;
    const auto column = [nn](Int64 j) { return (j - 1) * (nn - j) / 2; };  // F(i, j) at column(j) + i
    F.SetLength(Integer(n * (n + 1) / 2));
    Ier = 0;
    if (d(1) < 0) {
        Ier = 1;
        return;
    }
    f(1) = sqrt(d(1));
    Float y = 1 / Float(f(1));
    for (Int64 j = 2; j <= n; ++j) f(j) = d(1 + j * (j - 1) / 2) * y;
    for (Int64 i = 2; i <= n; ++i) {
        Float sum = 0;
        for (Int64 m = 1; m <= i - 1; ++m) sum += Float(f(column(m) + i)) * Float(f(column(m) + i));
        Float v = d(i * (i - 1) / 2 + i) - sum;
        if (v < 0) {
            Ier = 1;
            return;
        }
        v = sqrt(v);
        y = 1 / v;
        f(column(i) + i) = v;
        for (Int64 j = i + 1; j <= n; ++j) {
            Float cross = 0;
            for (Int64 m = 1; m <= i - 1; ++m) cross += Float(f(column(m) + i)) * Float(f(column(m) + j));
            f(column(i) + j) = (d(j * (j - 1) / 2 + i) - cross) * y;
        }
    }
    TKorFloatVector result;
    result.SetLength(Integer(n));
    for (Integer i = 0; i < Integer(n); ++i) result[i] = H[i];
    for (Int64 j = 1; j <= n; ++j) {
        y = Random_Normal(RandomGen);
        for (Int64 i = j; i <= n; ++i) result[Integer(i - 1)] += Float(f(column(j) + i)) * y;
    }
    X = result;
}

KORNUM_FROM_DEFAULT_RANDOM(Int64, Random_Binomial1, (Integer n, Float p), (n, p, DefaultRandom))
KORNUM_FROM_DEFAULT_RANDOM(Int64, Random_Binomial2, (Int64 n, Float pp), (n, pp, DefaultRandom))
KORNUM_FROM_DEFAULT_RANDOM(Int64, Random_Neg_Binomial, (Float sk, Float p), (sk, p, DefaultRandom))
KORNUM_FROM_DEFAULT_RANDOM(Int64, Random_Poisson, (const Float& mu), (mu, DefaultRandom))
KORNUM_FROM_DEFAULT_RANDOM(void, Random_MVNorm,
                          (const TKorFloatVector& H, const TKorFloatVector& D, TKorFloatVector& F, TKorFloatVector& X,
                           Integer& Ier),
                          (H, D, F, X, Ier, DefaultRandom))

}  // namespace KornumRandom
