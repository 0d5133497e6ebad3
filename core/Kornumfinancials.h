/// @file
/// Conversions between Float and the three scaled currency types, and the currency
/// comparisons and swaps.
///
/// Scales: Currency holds ten-thousandths, KorCurrency hundredths, KorLongCurrency
/// millionths. Every conversion that drops digits rounds to the nearest unit of the
/// target, ties to even (0.125 to hundredths is 0.12, 0.135 is 0.14), whatever the
/// floating rounding mode. Conversions from Float round the product X * scale, formed in
/// Float. A result that does not fit the target (or a NaN) raises Platform::ERangeError
/// naming the value and the target type; nothing wraps.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

#include <utility>

/// The financials module: conversions between `Float` and the scaled currency types
/// (`Currency`, `KorCurrency`, `KorLongCurrency`), rounding half to even, and the
/// currency comparison and swaps. A conversion whose result does not fit its target
/// raises `Platform::ERangeError` ("The value VALUE is out of the range of TYPE", the
/// value in units of one).
KORNUM_EXPORT_BEGIN
namespace Kornumfinancials {

using namespace Kornumglobals;

/// @name Currency2Float
/// @{

/// The amount as a Float: the count divided by the type's scale, rounded once. Never
/// fails.
///
/// | X | Scale |
/// |---|---|
/// | Currency | 10,000 |
/// | KorLongCurrency | 1,000,000 |
/// | KorCurrency | 100 |
Float Currency2Float(Currency X);
Float Currency2Float(KorLongCurrency X);
Float Currency2Float(KorCurrency X);
/// @}

/// X in hundredths: X * 100 rounded half to even. Failures: a result outside the 32-bit
/// range, or a NaN, raises `Platform::ERangeError`.
KorCurrency Float2KorCurrency(Float X);
/// X in millionths: X * 1,000,000 rounded half to even. Failures: a result outside the
/// 64-bit range, or a NaN, raises `Platform::ERangeError`.
KorLongCurrency Float2KorLongCurrency(Float X);
/// X in ten-thousandths: X * 10,000 rounded half to even. Failures: a result outside the
/// 64-bit range, or a NaN, raises `Platform::ERangeError`.
Currency Float2Currency(Float X);
/// The amount in hundredths, rounded half to even. Failures: a result outside the 32-bit
/// range raises `Platform::ERangeError`.
KorCurrency Currency2KorCurrency(Currency X);
/// The amount in millionths, exact. Failures: a result outside the 64-bit range raises
/// `Platform::ERangeError`.
KorLongCurrency Currency2KorLongCurrency(Currency X);
/// The amount in ten-thousandths, exact. Never fails.
Currency KorCurrency2Currency(KorCurrency X);
/// The amount in millionths, exact. Never fails.
KorLongCurrency KorCurrency2KorLongCurrency(KorCurrency X);
/// The amount in ten-thousandths, rounded half to even. Never fails.
Currency KorLongCurrency2Currency(KorLongCurrency X);
/// The amount in hundredths, rounded half to even. Failures: a result outside the 32-bit
/// range raises `Platform::ERangeError`.
KorCurrency KorLongCurrency2KorCurrency(KorLongCurrency X);

/// True when X and Y are the same amount. Currency amounts are exact fixed-point values,
/// so the currency tolerance is zero: two amounts are the same when they agree to the
/// last of their four decimals.
bool SameCurrency(Currency X, Currency Y);

/// @name SwapXY
/// @{

/// Exchanges two amounts; the overloads of the other element types are
/// `Kornumsystem::SwapXY`.
///
/// | X, Y |
/// |---|
/// | Currency, KorLongCurrency (Int64), KorCurrency (Integer) |
inline void SwapXY(Currency& X, Currency& Y) noexcept { std::swap(X, Y); }
inline void SwapXY(KorLongCurrency& X, KorLongCurrency& Y) noexcept { std::swap(X, Y); }
inline void SwapXY(KorCurrency& X, KorCurrency& Y) noexcept { std::swap(X, Y); }
/// @}

}  // namespace Kornumfinancials
KORNUM_EXPORT_END
