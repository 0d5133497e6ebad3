// Density, cumulative probability and inverse cumulative probability of the standard
// normal, the normal and the log-normal distributions.
//
// Two argument conventions: the densities take the point first (X, Mean, StdDev);
// the cumulative and inverse functions take the parameters first and the point or
// probability last (Mean, StdDev, X or P). For the log-normal routines Mean and StdDev
// are those of ln X.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

namespace KORNUM_API KornumStatistics {

using Kornumglobals::Float;

// ---- Standard normal ------------------------------------------------------------------

// The density exp(-X^2 / 2) / sqrt(2 pi).
Float NormalZ(Float X);
// P(Z < Z) for Z >= 0 (rsValueGZero otherwise), by the power series
// 1/2 + phi(Z) (Z + Z^3/3 + Z^5/(3*5) + ...) summed for at most 100 terms after the
// first. The series has converged to the last bit up to Z = 7; beyond that the
// capped sum is returned as it stands.
Float NormalLess(Float Z);
// 1 - NormalLess(Z).
Float NormalGreater(Float Z);
// The Z with P(standard normal < Z) = P, for 0 < P < 1 (rsValue01 otherwise), by the
// rational approximations of Wichura's PPND16 evaluated in Float.
Float InvNormalLess(Float P);
// InvNormalLess(1 - P).
Float InvNormalGreater(Float P);

// ---- Normal with mean and standard deviation -----------------------------------------
// The forward routines raise rsStdDev unless FloatIsPositive(StdDev); the inverse
// ones raise rsValue01 unless 0 < P < 1, then rsStdDev when StdDev is zero within
// tolerance or negative.

Float NormalPDF(Float X, Float Mean, Float StdDev);
Float NormalDistLess(Float Mean, Float StdDev, Float X);
Float NormalDistGreater(Float Mean, Float StdDev, Float X);
// The probability between X1 and X2 in either order; 0 when SameFloat(X1, X2).
Float NormalDistBetween(Float Mean, Float StdDev, Float X1, Float X2);
Float InvNormalDistLess(Float Mean, Float StdDev, Float P);
// The X with P(normal > X) = P.
Float InvNormalDistGreater(Float Mean, Float StdDev, Float P);
// The upper critical value InvNormalDistGreater(0, 1, Alpha).
Float ZAlpha(Float Alpha);

// ---- Log-normal -------------------------------------------------------------------------

// Raises rsStdDev unless FloatIsPositive(StdDev), then rsValueGZero unless
// FloatIsPositive(X).
Float LogNormalPDF(Float X, Float Mean, Float StdDev);
// X is not checked: a non-positive X goes into the logarithm and the result is NaN.
Float LogNormalLess(Float Mean, Float StdDev, Float X);
Float LogNormalGreater(Float Mean, Float StdDev, Float X);
Float LogNormalBetween(Float Mean, Float StdDev, Float X1, Float X2);
// exp(Mean + StdDev * InvNormalLess(P)).
Float InvLogNormalLess(Float Mean, Float StdDev, Float P);
// exp(Mean + StdDev * InvNormalGreater(P)).
Float InvLogNormalGreater(Float Mean, Float StdDev, Float P);

}  // namespace KornumStatistics
