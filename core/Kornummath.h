/// @file
/// Special functions (gamma, beta, the incomplete beta and its inverse), elementary
/// functions with the library's argument conventions, and the tolerant float comparisons
/// that the vector and statistics routines use.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

#include <limits>

/// The math module: special functions, elementary functions and the tolerant float
/// comparisons, all in `Float`. None of them raises: an argument outside a function's
/// domain gives a quiet NaN (floating-point exceptions stay masked), as documented for
/// each function.
KORNUM_EXPORT_BEGIN
namespace Kornummath {

using Kornumglobals::Double;
using Kornumglobals::Float;
using Kornumglobals::Int64;
using Kornumglobals::Integer;
using Kornumglobals::Single;

// ---- Special functions -------------------------------------------------------------

/// @name Special functions
/// Invalid arguments (outside the domains below, or NaN) give a quiet NaN: floating-point
/// exceptions stay masked, nothing is raised.
/// @{

/// The gamma function. Poles (0 and the negative integers) give infinity at 0 (with the
/// sign of the zero) and NaN at the negative integers; values beyond the Float range give
/// infinity (X above 1755.5) or 0 (large negative non-integers). Stirling's series with
/// its exponent carried in two Floats, the argument shifted up below 15, reflection for
/// negative X: within 1.9 ulps over (0, 1750] and negative non-integers, near the poles
/// included.
Float Gamma(Float X);
/// `ln |Gamma(X)|`; the library calls it for X > 0. The C library's `lgammal_r`: within
/// 1.5 ulps, and within 1e-20 absolute near the zeros at 1 and 2.
Float LnGamma(Float X);
/// The complete beta function `Gamma(A) Gamma(B) / Gamma(A + B)`. For A, B > 0 (NaN
/// otherwise; 0 when either is infinite), from the Stirling pieces of the three gammas
/// combined in one exponent: within 1.1 ulps for A, B from 1e-3 to 1e4.
Float Beta(Float A, Float B);
/// The regularised incomplete beta function `I_X(A, B)`, for X in [0, 1] and finite
/// A, B > 0 (NaN outside). A continued fraction times the prefix
/// `x^A (1-x)^B / Beta(A, B)`, whose logarithm is formed in two Floats: within 27 ulps
/// for A, B in [0.5, 100] (tails included), 6.2e-17 relative for A, B up to 1e4
/// (results above 1e-300).
Float IncompleteBeta(Float X, Float A, Float B);
/// The X in [0, 1] with `I_X(A, B) = P`, for P in [0, 1] and finite A, B > 0 (NaN
/// outside); P = 0 gives 0 and P = 1 gives 1. Solved on the smaller tail (1 - P for P above
/// 1/2) from the power laws of the tails, by Newton steps on the tail's logarithm and
/// Halley steps near the root, inside a bracket: within 1e-16 relative, or the error that
/// P's own rounding causes where that is larger, for every P and shapes from 0.01 to 1e5
/// in any combination (a few ulps for shapes from 1/2 on); 0 where the quantile lies
/// below the smallest Float.
Float InverseIncompleteBeta(Float P, Float A, Float B);
/// @}

// ---- Elementary functions ----------------------------------------------------------

/// @name Elementary functions
/// The C library's functions in `Float`, with the library's argument conventions.
/// @{

/// X raised to the power Y. A negative X with an integral Y gives the real signed
/// power ((-2)^3 = -8); a negative X with a fractional Y gives NaN. XtoY(0, 0) = 1.
Float XtoY(Float X, Float Y);
/// 2 raised to the power Y.
Float TwoToY(Float Y);
/// The base-10 logarithm: NaN for X < 0, minus infinity for 0. Exact at the integral
/// powers of ten up to 10^27 (the integer k for 10^k), which the C library can miss by
/// an ulp.
Float KorLog10(Float X);
/// The base-2 logarithm: NaN for X < 0, minus infinity for 0.
Float KorLog2(Float X);
/// The arc cosine in radians, for X in [-1, 1] (NaN outside).
Float KorArcCos(Float X);
/// The magnitude of X with the sign of Y: -|X| when Y < 0, else |X| (so Y = -0 counts
/// as non-negative).
Float SignXY(Float X, Float Y);
/// @}

/// @name MinXY
/// @{

/// The smaller of X and Y; Y when they are equal or either is NaN.
///
/// | X, Y | Result |
/// |---|---|
/// | Float, Int64, Integer | the same type |
Float MinXY(Float X, Float Y);
Int64 MinXY(Int64 X, Int64 Y);
Integer MinXY(Integer X, Integer Y);
/// @}

/// @name MaxXY
/// @{

/// The larger of X and Y; Y when they are equal or either is NaN.
///
/// | X, Y | Result |
/// |---|---|
/// | Float, Int64 | the same type |
Float MaxXY(Float X, Float Y);
Int64 MaxXY(Int64 X, Int64 Y);
/// @}

// ---- Tolerant comparisons ----------------------------------------------------------
//
// Zero test (absolute): X is zero when |X| <= KorTolerance.
// Positive: X > 0 and not zero. Negative: X < 0 and not zero. So a value that is
// zero is never positive or negative, and every value is exactly one of the three.
//
// Same value (mixed absolute and relative, at the precision of the operands):
//   |X - Y| <= T * max(1, |X|, |Y|), computed in Float,
// where T is KorTolerance for Float operands and, for the narrower types, the larger
// of KorTolerance and that type's floor (DoubleToleranceFloor, SingleToleranceFloor),
// so that two values that differ only by the rounding of their own width compare the
// same. Near zero this is the zero test: SameFloat(X, 0.0L) == FloatIsZero(X).
/// The least tolerance of `SameFloat` for Double operands: 1e-13.
inline constexpr Float DoubleToleranceFloor = 1.0e-13L;
/// The least tolerance of `SameFloat` for Single operands: 1e-6.
inline constexpr Float SingleToleranceFloor = 1.0e-6L;

// Inline: the vector and statistics routines call these once per element.
namespace detail {
inline bool WithinTolerance(Float X, Float Y, Float tolerance) noexcept {
    if (X == Y) return true;  // also equal infinities
    Float scale = X < 0 ? -X : X;
    const Float absY = Y < 0 ? -Y : Y;
    if (absY > scale) scale = absY;
    if (scale > std::numeric_limits<Float>::max()) return false;  // unequal, one infinite
    if (scale < 1) scale = 1;
    const Float difference = X - Y;
    return (difference < 0 ? -difference : difference) <= tolerance * scale;
}
inline Float AtLeast(Float floor) noexcept {
    return Kornumglobals::KorTolerance > floor ? Kornumglobals::KorTolerance : floor;
}
}  // namespace detail

/// @name SameFloat
/// @{

/// True when X and Y are the same value within the tolerance. The test is mixed absolute
/// and relative, at the precision of the operands:
/// `|X - Y| <= T * max(1, |X|, |Y|)`, computed in Float. Equal values (equal infinities
/// included) are the same; an infinity and a finite value are not; NaN is the same as
/// nothing. Near zero this is the zero test: `SameFloat(X, 0.0L) == FloatIsZero(X)`.
///
/// | X, Y | Tolerance T |
/// |---|---|
/// | Float | `Kornumglobals::KorTolerance` |
/// | Double | the larger of `KorTolerance` and `DoubleToleranceFloor` |
/// | Single | the larger of `KorTolerance` and `SingleToleranceFloor` |
///
/// The floors make two values that differ only by the rounding of their own width
/// compare the same.
inline bool SameFloat(Float X, Float Y) noexcept {
    return detail::WithinTolerance(X, Y, Kornumglobals::KorTolerance);
}
inline bool SameFloat(Double X, Double Y) noexcept {
    return detail::WithinTolerance(X, Y, detail::AtLeast(DoubleToleranceFloor));
}
inline bool SameFloat(Single X, Single Y) noexcept {
    return detail::WithinTolerance(X, Y, detail::AtLeast(SingleToleranceFloor));
}
/// @}

/// True when X is zero within the tolerance: `|X| <= KorTolerance` (absolute). False
/// for NaN.
inline bool FloatIsZero(Float X) noexcept {
    return (X < 0 ? -X : X) <= Kornumglobals::KorTolerance;
}
/// True when X > 0 and X is not zero within the tolerance (`FloatIsZero`). Every
/// number is exactly one of zero, positive and negative; NaN is none of them.
inline bool FloatIsPositive(Float X) noexcept { return X > 0 && !FloatIsZero(X); }
/// True when X < 0 and X is not zero within the tolerance (`FloatIsZero`).
inline bool FloatIsNegative(Float X) noexcept { return X < 0 && !FloatIsZero(X); }

}  // namespace Kornummath
KORNUM_EXPORT_END
