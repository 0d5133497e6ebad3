// Random variates of standard distributions, every one drawn from a pluggable uniform
// source: a TKorUniformFunc returning a Float on [0, 1).
//
// Each generator has two overloads: with the source as its last argument, and without,
// drawing from DefaultRandom (the platform's global generator, which
// Platform::RandSeed seeds). A generator that uses another hands its source on, so one
// call draws from one source only. The module keeps no state: every call repeats its
// whole set-up. Argument checks raise Platform::EMathError before the first uniform is
// drawn; rejection loops have no bound, so a source that keeps yielding rejected values
// makes them loop for ever.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

namespace KORNUM_API KornumRandom {

using namespace Kornumglobals;

// The guard below which a uniform counts as zero: the smallest positive double.
inline constexpr Float KorVSmall = 5.0E-324L;

// The next value of the platform's global uniform generator.
Float DefaultRandom();

// ---- Normal and exponential ---------------------------------------------------------------
// Normal: Leva's ratio of uniforms (two uniforms a trial); rsDivideByZero if the
// accepted u is below KorVSmall. Exponential: -ln of a uniform above KorVSmall.
Float Random_Normal(TKorUniformFunc RandomGen);
Float Random_Normal();
Float Random_Exponential(TKorUniformFunc RandomGen);
Float Random_Exponential();

// ---- Continuous -----------------------------------------------------------------------------
// Gamma with shape s (s <= 0: rsInvalidShape): Marsaglia and Tsang for s > 1, a
// switching method for s < 1 (s below KorVSmall: rsShapeTooSmall), and the exponential
// for s = 1 exactly.
Float Random_Gamma(Float s, TKorUniformFunc RandomGen);
Float Random_Gamma(Float s);
// Chi-square with ndf degrees of freedom: twice a gamma of shape ndf / 2.
Float Random_ChiSq(Integer ndf, TKorUniformFunc RandomGen);
Float Random_ChiSq(Integer ndf);
// Weibull: an exponential to the power 1 / a; |a| <= KorVSmall is rsInvalidValue (a
// negative a is accepted).
Float Random_Weibull(Float a, TKorUniformFunc RandomGen);
Float Random_Weibull(Float a);
// Beta(aa, bb) on [0, 1] by Cheng's log-logistic method; aa or bb <= 0: rsInvalidValue.
Float Random_Beta(Float aa, Float bb, TKorUniformFunc RandomGen);
Float Random_Beta(Float aa, Float bb);
// Student t with m >= 1 degrees of freedom (else rsInvalidValue), by Kinderman and
// Monahan's ratio method.
Float Random_T(Integer m, TKorUniformFunc RandomGen);
Float Random_T(Integer m);
// Generalised inverse Gaussian, density proportional to x^(h-1) exp(-b (x + 1/x) / 2),
// by a ratio method; h < 0, b <= 0 and parameters out of the method's range raise
// rsInvalidValue.
Float Random_Inv_Gauss(Float h, Float b, TKorUniformFunc RandomGen);
Float Random_Inv_Gauss(Float h, Float b);
// Von Mises angle on [-pi, pi] with concentration 0 <= k < 10 (else rsInvalidValue), by
// Dagpunar's comparison of random numbers.
Float Random_von_Mises(Float k, TKorUniformFunc RandomGen);
Float Random_von_Mises(Float k);
// Standard Cauchy: the ratio of a point uniform in the unit disc.
Float Random_Cauchy(TKorUniformFunc RandomGen);
Float Random_Cauchy();

// ---- Discrete and multivariate ------------------------------------------------------------------
// Binomial with n trials and success probability p: modal inversion (Binomial1), or
// BTPE above a mean of 30 and inversion below (Binomial2). No argument is checked.
Int64 Random_Binomial1(Integer n, Float p, TKorUniformFunc RandomGen);
Int64 Random_Binomial1(Integer n, Float p);
Int64 Random_Binomial2(Int64 n, Float pp, TKorUniformFunc RandomGen);
Int64 Random_Binomial2(Int64 n, Float pp);
// Negative binomial: failures before the sk-th success, success probability p;
// sk <= 0, p outside (0, 1), or p too large for sk: rsInvalidValue.
Int64 Random_Neg_Binomial(Float sk, Float p, TKorUniformFunc RandomGen);
Int64 Random_Neg_Binomial(Float sk, Float p);
// Poisson with mean mu: Ahrens and Dieter's method PD above 10, table inversion below.
// mu is read only. No argument is checked.
Int64 Random_Poisson(const Float& mu, TKorUniformFunc RandomGen);
Int64 Random_Poisson(const Float& mu);
// A normal vector with means H and covariance D (the upper triangle, packed column by
// column: element (i, j), i <= j, 1-based, at position j (j - 1) / 2 + i). F receives the
// lower Cholesky factor packed column by column, X the variate. A covariance that is
// not positive semi-definite sets Ier = 1 and leaves X as it was; otherwise Ier = 0.
// An empty H is rsVectorEmpty, a D too short rsVectorTooSmall.
void Random_MVNorm(const TKorFloatVector& H, const TKorFloatVector& D, TKorFloatVector& F, TKorFloatVector& X,
                   Integer& Ier, TKorUniformFunc RandomGen);
void Random_MVNorm(const TKorFloatVector& H, const TKorFloatVector& D, TKorFloatVector& F, TKorFloatVector& X,
                   Integer& Ier);

}  // namespace KornumRandom
