/// @file
/// Random variates of standard distributions, every one drawn from a pluggable uniform
/// source: a `TKorUniformFunc` returning a Float on [0, 1).
///
/// Each generator has two overloads: with the source as its last argument, and without,
/// drawing from `KornumRandom::DefaultRandom` (the platform's global generator, which
/// `Platform::RandSeed` seeds). A generator that uses another hands its source on, so one
/// call draws from one source only. The module keeps no state: every call repeats its whole
/// set-up. Argument checks raise `Platform::EMathError` before the first uniform is drawn;
/// rejection loops have no bound, so a source that keeps yielding rejected values makes
/// them loop for ever.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

/// The random-variates module: fourteen generators (normal, exponential, gamma, chi-square,
/// Weibull, beta, Student t, generalised inverse Gaussian, von Mises, Cauchy, binomial by
/// two methods, negative binomial, Poisson, multivariate normal) over a pluggable uniform
/// source. Every generator is a member group of two overloads: one drawing every uniform
/// from the `TKorUniformFunc` given as its last argument, and one without it that is
/// exactly that call with `DefaultRandom`. The module keeps no state, so the generators are
/// safe on several threads when their source is (`DefaultRandom` is not). Failures raise
/// `Platform::EMathError` with a message identifier of `Kornum_RS_Math`, before the first
/// uniform is drawn unless a generator says otherwise.
KORNUM_EXPORT_BEGIN
namespace KornumRandom {

using namespace Kornumglobals;

/// The guard below which a uniform counts as zero: 5.0E-324, the smallest positive double,
/// held as a Float (far above the smallest positive Float). Logarithms and divisions of the
/// generators are guarded by it.
inline constexpr Float KorVSmall = 5.0E-324L;

/// The default uniform source: the next value of the platform's global generator
/// (`Platform::Random`), a Float on [0, 1). The overloads without a source pass this
/// function. The module never seeds the generator: an application calls
/// `Platform::RandSeed` (one seed gives one stream everywhere) or `Platform::Randomize`.
/// The global state is not protected: from several threads at once, pass each thread a
/// source of its own instead.
Float DefaultRandom();

/// @name Random_Normal
/// @{

/// A standard normal variate (mean 0, variance 1). Leva's ratio of uniforms with quadratic
/// bounds: two uniforms a trial, u then v, the logarithm taken only when a point falls
/// between the two bounds. Failures: an accepted u below `KorVSmall` raises
/// `Platform::EMathError` (`Kornum_RS_Math::rsDivideByZero`); a source that never returns a
/// value below 5E-324 never raises it.
Float Random_Normal(TKorUniformFunc RandomGen);
Float Random_Normal();
/// @}

/// @name Random_Exponential
/// @{

/// A standard exponential variate (mean 1) on (0, +inf). It is -ln r of the first uniform r
/// above `KorVSmall`, smaller uniforms being drawn again. Raises nothing.
Float Random_Exponential(TKorUniformFunc RandomGen);
Float Random_Exponential();
/// @}

/// @name Random_Gamma
/// @{

/// A gamma variate of shape s, density proportional to x^(s-1) e^(-x). Marsaglia and
/// Tsang's squeeze method for s > 1, a switching method (a power density left of 1 - s, an
/// exponential tail right of it) for s < 1, and exactly `Random_Exponential` from the same
/// source for s = 1. The small-shape method returns 0 for the rare draws whose value would
/// lie below `KorVSmall`. Failures, in order: s <= 0, NaN or infinite raises
/// `Platform::EMathError` (`Kornum_RS_Math::rsInvalidShape`); 0 < s below `KorVSmall` raises
/// `Platform::EMathError` (`Kornum_RS_Math::rsShapeTooSmall`).
Float Random_Gamma(Float s, TKorUniformFunc RandomGen);
Float Random_Gamma(Float s);
/// @}

/// @name Random_ChiSq
/// @{

/// A chi-square variate with ndf degrees of freedom. It is twice `Random_Gamma` of shape
/// ndf / 2 (so ndf = 2 is twice an exponential). Failures: ndf <= 0 raises
/// `Platform::EMathError` (`Kornum_RS_Math::rsInvalidShape`) from `Random_Gamma`.
Float Random_ChiSq(Integer ndf, TKorUniformFunc RandomGen);
Float Random_ChiSq(Integer ndf);
/// @}

/// @name Random_Weibull
/// @{

/// A Weibull variate of shape a. It is a `Random_Exponential` variate E raised to the power
/// 1 / a. Only the magnitude of a is tested, so a negative a is accepted and gives E^(1/a)
/// with a negative exponent. Failures: |a| <= `KorVSmall`, a NaN or an infinite a raises
/// `Platform::EMathError` (`Kornum_RS_Math::rsInvalidValue`).
Float Random_Weibull(Float a, TKorUniformFunc RandomGen);
Float Random_Weibull(Float a);
/// @}

/// @name Random_Beta
/// @{

/// A beta(aa, bb) variate on [0, 1]. Cheng's log-logistic method (its algorithms BB for
/// both parameters above 1 and BC otherwise), computed with the larger parameter first and
/// mirrored (1 - x) when the two were exchanged: Random_Beta(a, b) and Random_Beta(b, a)
/// give complementary values for the same uniforms. Failures: aa <= 0 or bb <= 0 (NaN
/// included) raises `Platform::EMathError` (`Kornum_RS_Math::rsInvalidValue`), and so do
/// shapes the method cannot resolve: the smaller below 1e-4900, the larger above 1e4900
/// (infinity included) or a ratio of the two above 1e4900.
Float Random_Beta(Float aa, Float bb, TKorUniformFunc RandomGen);
Float Random_Beta(Float aa, Float bb);
/// @}

/// @name Random_T
/// @{

/// A Student t variate with m degrees of freedom. Kinderman and Monahan's ratio method,
/// with its bound g = ((m + 1) / (m - 1))^(-(m + 1) / 4) sqrt(2m / (m - 1)) for m > 1 (g =
/// 1 for m = 1) and its outer squeeze used only from m = 3 on, so that the variates follow
/// Student's distribution for every m. Failures: m < 1 raises `Platform::EMathError`
/// (`Kornum_RS_Math::rsInvalidValue`).
Float Random_T(Integer m, TKorUniformFunc RandomGen);
Float Random_T(Integer m);
/// @}

/// @name Random_Inv_Gauss
/// @{

/// A generalised inverse Gaussian variate, density proportional to x^(h-1) exp(-b (x + 1/x)
/// / 2). A ratio-of-uniforms method around the mode. Failures, in order, each raising
/// `Platform::EMathError` (`Kornum_RS_Math::rsInvalidValue`): h < 0 or NaN; b <= 0 or NaN;
/// h or b above 1e14 (infinity included: the expected number of trials grows with them);
/// (h + 1)^5 > 1e32 b^4 (b so small against h that the mode's set-up cancels); h > b
/// sqrt(1.7E308) / 4; a set-up bound below `KorVSmall` because b is too small; the method's
/// scale below `KorVSmall` or not finite.
Float Random_Inv_Gauss(Float h, Float b, TKorUniformFunc RandomGen);
Float Random_Inv_Gauss(Float h, Float b);
/// @}

/// @name Random_von_Mises
/// @{

/// A von Mises angle on [-pi, pi] with mean 0 and concentration k. Dagpunar's comparison of
/// random numbers: for k > 0.5 the half circle is cut into trunc(2k + 1) pieces weighted by
/// six-point Gauss-Legendre integrals of exp(k cos x); for k <= 0.5 it is one piece.
/// Failures, in order: k < 0 or NaN, then k >= 10 (infinity included), each raising
/// `Platform::EMathError` (`Kornum_RS_Math::rsInvalidValue`).
Float Random_von_Mises(Float k, TKorUniformFunc RandomGen);
Float Random_von_Mises(Float k);
/// @}

/// @name Random_Cauchy
/// @{

/// A standard Cauchy variate. It is a / b for a point (a, b) uniform in the unit disc,
/// points with |b| below `KorVSmall` being drawn again. Raises nothing.
Float Random_Cauchy(TKorUniformFunc RandomGen);
Float Random_Cauchy();
/// @}

/// @name Random_Binomial1
/// @{

/// A binomial variate: successes in n trials of success probability p. Kemp's modal
/// inversion: from the mode trunc((n + 1) p), one step down then one step up, in turn; a
/// walk that leaves 0 .. n on both sides (rounding) starts again from a fresh uniform.
/// Cheap to set up, with a cost that grows with the spread. p = 0 returns 0 and p = 1
/// returns n, without a draw (the method's odds would be 0 or infinite). Failures: n < 0,
/// p outside [0, 1] or NaN raise `Platform::EMathError` (`Kornum_RS_Math::rsInvalidValue`).
Int64 Random_Binomial1(Integer n, Float p, TKorUniformFunc RandomGen);
Int64 Random_Binomial1(Integer n, Float p);
/// @}

/// @name Random_Binomial2
/// @{

/// A binomial variate: successes in n trials of success probability pp. The BTPE method of
/// Kachitvichyanukul and Schmeiser when n min(pp, 1 - pp) > 30, inversion otherwise
/// (restarted with a fresh uniform past 110 successes). It works with p = min(pp, 1 - pp)
/// and returns n minus the variate when pp > 0.5; pp = 0 gives 0 and pp = 1 gives n (after
/// one draw, as the method does). Failures: n < 0, pp outside [0, 1] or NaN raise
/// `Platform::EMathError` (`Kornum_RS_Math::rsInvalidValue`).
Int64 Random_Binomial2(Int64 n, Float pp, TKorUniformFunc RandomGen);
Int64 Random_Binomial2(Int64 n, Float pp);
/// @}

/// @name Random_Neg_Binomial
/// @{

/// A negative binomial variate: failures before the sk-th success, success probability p
/// (sk need not be whole). Unstored inversion; for p > 0.7 the whole part of sk is drawn as
/// a sum of geometric variates first. Failures, each raising `Platform::EMathError`
/// (`Kornum_RS_Math::rsInvalidValue`): sk <= 0, p <= 0 or p >= 1 (NaN included); a mean
/// max(sk, 1) p / (1 - p) above 1e7 (the walk's length grows with it); then (1 - p)^s' below
/// `KorVSmall` for the remaining power s' (sk itself when p <= 0.7), that is sk too large
/// for this p (for p = 0.5, sk above about 1074); this second check comes after the
/// geometric draws, but can only fire when p <= 0.7, where there are none.
Int64 Random_Neg_Binomial(Float sk, Float p, TKorUniformFunc RandomGen);
Int64 Random_Neg_Binomial(Float sk, Float p);
/// @}

/// @name Random_Poisson
/// @{

/// A Poisson variate of mean mu. Ahrens and Dieter's method PD (a normal sample with
/// squeeze and exponential rejection) for mu > 10, inversion through a cumulative table of
/// 35 entries, built as far as each draw needs, otherwise. mu is read only; a mean of 0
/// returns 0. Failures: mu < 0, NaN, or above 9.2e18 (infinity included: the method's
/// candidates would leave the range of Int64) raise `Platform::EMathError`
/// (`Kornum_RS_Math::rsInvalidValue`).
Int64 Random_Poisson(const Float& mu, TKorUniformFunc RandomGen);
Int64 Random_Poisson(const Float& mu);
/// @}

/// @name Random_MVNorm
/// @{

/// A multivariate normal vector X with the means H and the covariance matrix D. It is
/// formed with the Cholesky factor of D. D holds the upper triangle packed column by
/// column: element (i, j), i <= j, counted from 1, at position j (j - 1) / 2 + i (a D
/// longer than n (n + 1) / 2 is accepted, the rest ignored). F is resized to n (n + 1) / 2
/// and receives the lower factor packed column by column: element (i, j), j <= i, at
/// position (j - 1) (2n - j) / 2 + i. X then receives n elements: H plus the factor times n
/// `Random_Normal` variates. The factor is recomputed at every call.
///
/// Failures, in order: an empty H raises `Platform::EMathError`
/// (`Kornum_RS_Math::rsVectorEmpty`); a D shorter than n (n + 1) / 2 raises
/// `Platform::EMathError` (`Kornum_RS_Math::rsVectorTooSmall`); a NaN or infinite element
/// among H's n and D's first n (n + 1) / 2 raises `Platform::EMathError`
/// (`Kornum_RS_Math::rsInvalidValue`); all before anything is written. A covariance that is not positive semi-definite is not an exception: Ier
/// becomes 1, X is left as it was, no uniform is drawn, and F holds the partial factor.
/// Otherwise Ier is 0.
void Random_MVNorm(const TKorFloatVector& H, const TKorFloatVector& D, TKorFloatVector& F, TKorFloatVector& X,
                   Integer& Ier, TKorUniformFunc RandomGen);
void Random_MVNorm(const TKorFloatVector& H, const TKorFloatVector& D, TKorFloatVector& F, TKorFloatVector& X,
                   Integer& Ier);
/// @}

}  // namespace KornumRandom
KORNUM_EXPORT_END
