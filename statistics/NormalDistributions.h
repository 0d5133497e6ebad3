/// @file
/// Density, cumulative probability and inverse cumulative probability of the standard
/// normal, the normal and the log-normal distributions.
///
/// Two argument conventions: the densities take the point first (X, Mean, StdDev); the
/// cumulative and inverse functions take the parameters first and the point or probability
/// last (Mean, StdDev, X or P). For the log-normal routines Mean and StdDev are those of
/// ln X. Every distribution function here rests on one power series for the standard normal
/// lower tail (`NormalLess`), and every inverse on one rational approximation
/// (`InvNormalLess`). The upper tails are 1 minus the lower ones, so a tail far from the
/// mean keeps its absolute accuracy (better than 1e-18) but not its relative one. The
/// "Lower" and "Upper" routines compute each tail directly and keep its relative accuracy
/// however far out it lies.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

KORNUM_EXPORT_BEGIN
namespace KornumStatistics {

using Kornumglobals::Float;

// ---- Standard normal ------------------------------------------------------------------

/// @name Standard normal
/// The standard normal distribution (mean 0, standard deviation 1).
/// @{

/// The standard normal density `exp(-X^2 / 2) / sqrt(2 pi)`, within 0.6 ulp (the square
/// is split exactly and the constant folded into the exponent, which is rounded once).
/// 0 for infinite X, NaN for NaN. Never raises.
Float NormalZ(Float X);
/// The standard normal lower tail, P(N < `Z`) for N standard normal and `Z >= 0`, by the
/// power series
/// `1/2 + phi(Z) (Z + Z^3/3 + Z^5/(3*5) + ...)` summed for at most 100 terms after the
/// first, stopping once a term moves the result by no more than 1e-18. NormalLess(0) is
/// 1/2. The series converges within the cap up to about Z = 8.5 (absolute error below
/// 1e-18); beyond that the capped sum is returned as it stands and falls away from 1
/// (NormalLess(10) is about 0.5), and an infinite Z gives NaN.
///
/// Failures: Z < 0 raises Platform::EMathError with Kornum_RS_Math::rsValueGZero; a
/// negative argument is not reflected (`NormalDistLess` reflects).
Float NormalLess(Float Z);
/// The upper tail P(N > `Z`), computed as `1 - NormalLess(Z)`: same domain, same failure
/// (Kornum_RS_Math::rsValueGZero for Z < 0), and small tails only to about 1e-18 absolute.
Float NormalGreater(Float Z);
/// The quantile: the Z with P(standard normal < Z) = `P`, by Wichura's rational
/// approximations PPND16 evaluated in Float (about 16 significant digits). InvNormalLess(0.5)
/// is 0.
///
/// Failures: P <= 0 or P >= 1 raises Platform::EMathError with Kornum_RS_Math::rsValue01.
Float InvNormalLess(Float P);
/// The Z with P(standard normal > Z) = `P`, computed as `InvNormalLess(1 - P)`.
///
/// Failures: 1 - P outside (0, 1) raises Platform::EMathError with
/// Kornum_RS_Math::rsValue01. The test is on the rounded 1 - P, so a P below about 5e-20
/// (where 1 - P rounds to 1) raises too.
Float InvNormalGreater(Float P);
/// @}

// ---- Normal with mean and standard deviation -----------------------------------------

/// @name Normal
/// The normal distribution with mean `Mean` and standard deviation `StdDev`. The forward
/// routines raise Platform::EMathError with Kornum_RS_Math::rsStdDev unless
/// `Kornummath::FloatIsPositive(StdDev)` (positive beyond `KorTolerance`). The inverse
/// routines first raise Kornum_RS_Math::rsValue01 unless 0 < P < 1, then
/// Kornum_RS_Math::rsStdDev when StdDev is zero within `KorTolerance` or negative.
/// @{

/// The normal density at `X`: `exp(-(X - Mean)^2 / (2 StdDev^2)) / (sqrt(2 pi) StdDev)`.
/// Failures (Platform::EMathError): Kornum_RS_Math::rsStdDev.
Float NormalPDF(Float X, Float Mean, Float StdDev);
/// P(X' < `X`) for X' normal. With z = (X - Mean) / StdDev this is `NormalLess(z)` for
/// z >= 0 and `1 - NormalLess(-z)` below the mean, so the lower tail is 1 minus the upper
/// one there: good to about 1e-18 absolute, and subject to the series cap of `NormalLess`
/// (|z| beyond about 8.5 is wrong, an infinite z gives NaN). Failures (Platform::EMathError):
/// Kornum_RS_Math::rsStdDev.
Float NormalDistLess(Float Mean, Float StdDev, Float X);
/// P(X' > `X`) for X' normal, computed as `1 - NormalDistLess(Mean, StdDev, X)`.
/// Failures (Platform::EMathError): Kornum_RS_Math::rsStdDev.
Float NormalDistGreater(Float Mean, Float StdDev, Float X);
/// The probability between `X1` and `X2`, in either order: the `NormalDistLess` value at
/// the larger point minus that at the smaller. 0 when `Kornummath::SameFloat(X1, X2)`.
/// Failures (Platform::EMathError): Kornum_RS_Math::rsStdDev.
Float NormalDistBetween(Float Mean, Float StdDev, Float X1, Float X2);
/// The quantile: the X with P(X' < X) = `P`, as `InvNormalLess(P) * StdDev + Mean`.
/// Failures (Platform::EMathError): Kornum_RS_Math::rsValue01, then Kornum_RS_Math::rsStdDev.
Float InvNormalDistLess(Float Mean, Float StdDev, Float P);
/// The X with P(X' > X) = `P`, as `InvNormalGreater(P) * StdDev + Mean`. Failures (Platform::EMathError):
/// Kornum_RS_Math::rsValue01 (P outside (0, 1), and P so small that 1 - P rounds to 1),
/// then Kornum_RS_Math::rsStdDev.
Float InvNormalDistGreater(Float Mean, Float StdDev, Float P);
/// The upper critical value of the standard normal, `InvNormalDistGreater(0, 1, Alpha)`:
/// ZAlpha(0.05) is about 1.644854. Failures: Alpha outside (0, 1) raises
/// Platform::EMathError with Kornum_RS_Math::rsValue01.
Float ZAlpha(Float Alpha);
/// @}

// ---- Log-normal -------------------------------------------------------------------------

/// @name Log-normal
/// The distribution of a variable whose natural logarithm is normal with mean `Mean` and
/// standard deviation `StdDev`. The checks on StdDev are those of the normal routines:
/// Kornum_RS_Math::rsStdDev unless `Kornummath::FloatIsPositive(StdDev)` for the forward
/// routines; Kornum_RS_Math::rsValue01 unless 0 < P < 1, then Kornum_RS_Math::rsStdDev for
/// a StdDev zero within `KorTolerance` or negative, for the inverse ones.
/// @{

/// The log-normal density at `X`:
/// `exp(-(ln X - Mean)^2 / (2 StdDev^2)) / (sqrt(2 pi) X StdDev)`.
///
/// Failures (Platform::EMathError): Kornum_RS_Math::rsStdDev, then
/// Kornum_RS_Math::rsValueGZero unless `Kornummath::FloatIsPositive(X)`.
Float LogNormalPDF(Float X, Float Mean, Float StdDev);
/// P(X' < `X`) for X' log-normal: `NormalDistLess(Mean, StdDev, ln X)`, with the same
/// accuracy. X is not checked: a non-positive X goes into the logarithm and the result is
/// NaN. Failures (Platform::EMathError): Kornum_RS_Math::rsStdDev.
Float LogNormalLess(Float Mean, Float StdDev, Float X);
/// P(X' > `X`), computed as `1 - LogNormalLess(Mean, StdDev, X)`; X is not checked.
/// Failures (Platform::EMathError): Kornum_RS_Math::rsStdDev.
Float LogNormalGreater(Float Mean, Float StdDev, Float X);
/// The probability between `X1` and `X2`, in either order, as for `NormalDistBetween` on
/// the logarithms (0 when `Kornummath::SameFloat(X1, X2)`); the points are not checked, a
/// non-positive one gives NaN. Failures (Platform::EMathError): Kornum_RS_Math::rsStdDev.
Float LogNormalBetween(Float Mean, Float StdDev, Float X1, Float X2);
/// The quantile `exp(Mean + StdDev * InvNormalLess(P))`. Failures (Platform::EMathError):
/// Kornum_RS_Math::rsValue01, then Kornum_RS_Math::rsStdDev.
Float InvLogNormalLess(Float Mean, Float StdDev, Float P);
/// The X with P(X' > X) = `P`: `exp(Mean + StdDev * InvNormalGreater(P))`. Failures (Platform::EMathError):
/// Kornum_RS_Math::rsValue01, then Kornum_RS_Math::rsStdDev.
Float InvLogNormalGreater(Float Mean, Float StdDev, Float P);
/// @}

// ---- Accurate tails ---------------------------------------------------------------------

/// @name Accurate normal and log-normal tails
/// Each tail computed directly, to full relative accuracy however small it is: the
/// smaller tail as the density times the Mills ratio P(N > z) / phi(z), the larger one as
/// 1 minus the smaller. Within 1e-18 relative of the exact tail at the exact arguments,
/// down to the smallest normal Float (about 3.4e-4932); below that the result is
/// subnormal and then 0. The standardised point (X - Mean) / StdDev, and ln X for the
/// log-normal, are carried in two Floats so that their rounding is not magnified in a far
/// tail. The normal and log-normal forms raise Platform::EMathError with
/// Kornum_RS_Math::rsStdDev unless `Kornummath::FloatIsPositive(StdDev)`, as
/// `NormalDistLess` does; nothing else raises.
/// @{

/// P(N <= `Z`) for N standard normal, for every Z: NormalLower(-10) is about 7.6e-24,
/// NormalLower(-150) about 4.1e-4889. An infinite Z gives 0 or 1, NaN gives NaN.
Float NormalLower(Float Z);
/// P(N > `Z`) for N standard normal, for every Z: NormalUpper(Z) = NormalLower(-Z).
Float NormalUpper(Float Z);
/// P(X' <= `X`) for X' normal with mean `Mean` and standard deviation `StdDev`.
/// Failures (Platform::EMathError): Kornum_RS_Math::rsStdDev.
Float NormalDistLower(Float Mean, Float StdDev, Float X);
/// P(X' > `X`) for X' normal with mean `Mean` and standard deviation `StdDev`.
/// Failures (Platform::EMathError): Kornum_RS_Math::rsStdDev.
Float NormalDistUpper(Float Mean, Float StdDev, Float X);
/// P(X' <= `X`) for X' log-normal (ln X' normal with mean `Mean` and standard deviation
/// `StdDev`): 0 for X <= 0, 1 for an infinite X. Failures (Platform::EMathError):
/// Kornum_RS_Math::rsStdDev.
Float LogNormalLower(Float Mean, Float StdDev, Float X);
/// P(X' > `X`) for X' log-normal: 1 for X <= 0, 0 for an infinite X. Failures
/// (Platform::EMathError): Kornum_RS_Math::rsStdDev.
Float LogNormalUpper(Float Mean, Float StdDev, Float X);
/// @}

/// @name Accurate normal quantiles
/// The z with P(N <= z) = `P` (`InvNormalLower`) or with P(N > z) = `Q`
/// (`InvNormalUpper`), N standard normal, to the last bits however small the tail or
/// however near 1/2 the probability. For a smaller tail from 1/16 to 1/2, a Taylor table
/// of the quantile itself, within about 2 ulps relative; below 1/16, that tail's quantile
/// by `InvNormalLess` in double precision, refined by Newton steps on the tail
/// (`NormalUpper`), one of which takes its relative error of about 1e-16 below the
/// format's rounding. InvNormalUpper(1e-300) is about 37.047. Failures
/// (Platform::EMathError): a probability outside (0, 1) raises
/// Kornum_RS_Math::rsValue01.
/// @{

/// The z with P(N <= z) = `P`.
Float InvNormalLower(Float P);
/// The z with P(N > z) = `Q`, from the upper tail itself.
Float InvNormalUpper(Float Q);
/// The x with P(X' <= x) = `P` for X' log-normal (ln X' normal with mean `Mean` and
/// standard deviation `StdDev`): exp(Mean + StdDev InvNormalLower(P)), the exponent carried
/// in two Floats so that its rounding is not magnified by its size: within a few ulps for
/// P from 1e-300 up (about 34 below it), whatever Mean and StdDev. Failures
/// (Platform::EMathError): Kornum_RS_Math::rsStdDev, Kornum_RS_Math::rsValue01.
Float InvLogNormalLower(Float Mean, Float StdDev, Float P);
/// The x with P(X' > x) = `Q` for X' log-normal: exp(Mean + StdDev InvNormalUpper(Q)).
/// Failures as InvLogNormalLower.
Float InvLogNormalUpper(Float Mean, Float StdDev, Float Q);
/// @}

}  // namespace KornumStatistics
KORNUM_EXPORT_END
