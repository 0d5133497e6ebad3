// Conversions between Float and the three scaled currency types, and the currency
// comparisons and swaps.
//
// Scales: Currency holds ten-thousandths, KorCurrency hundredths, KorLongCurrency
// millionths. Every conversion that drops digits rounds to the nearest unit of the
// target, ties to even (0.125 to hundredths is 0.12, 0.135 is 0.14), whatever the
// floating rounding mode. Conversions from Float round the product X * scale, formed in
// Float. A result that does not fit the target (or a NaN) raises Platform::ERangeError
// naming the value and the target type; nothing wraps.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

#include <utility>

namespace KORNUM_API Kornumfinancials {

using namespace Kornumglobals;

Float Currency2Float(Currency X);
Float Currency2Float(KorLongCurrency X);
Float Currency2Float(KorCurrency X);

KorCurrency Float2KorCurrency(Float X);
KorLongCurrency Float2KorLongCurrency(Float X);
Currency Float2Currency(Float X);
KorCurrency Currency2KorCurrency(Currency X);
KorLongCurrency Currency2KorLongCurrency(Currency X);
Currency KorCurrency2Currency(KorCurrency X);
KorLongCurrency KorCurrency2KorLongCurrency(KorCurrency X);
Currency KorLongCurrency2Currency(KorLongCurrency X);
KorCurrency KorLongCurrency2KorCurrency(KorLongCurrency X);

// Currency amounts are exact fixed-point values, so the currency tolerance is zero:
// two amounts are the same when they agree to the last of their four decimals.
bool SameCurrency(Currency X, Currency Y);

inline void SwapXY(Currency& X, Currency& Y) noexcept { std::swap(X, Y); }
inline void SwapXY(KorLongCurrency& X, KorLongCurrency& Y) noexcept { std::swap(X, Y); }
inline void SwapXY(KorCurrency& X, KorCurrency& Y) noexcept { std::swap(X, Y); }

}  // namespace Kornumfinancials
