/// @file
/// Small utilities: exchanging two variables (`Kornumsystem::SwapXY`) and clearing raw
/// memory (`Kornumsystem::KorClear`).
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

#include <utility>

/// The system module: exchanging two variables of an element type and clearing raw
/// memory.
KORNUM_EXPORT_BEGIN
namespace Kornumsystem {

using namespace Kornumglobals;

/// @name SwapXY
/// @{

/// Exchanges two variables; one overload per element type. Inline because the sorts
/// call them in their inner loops. The PackedFloat overload exchanges the stored
/// 10 bytes of two TKorFloatVector elements. (The currency overloads are
/// `Kornumfinancials::SwapXY`.)
///
/// | X, Y |
/// |---|
/// | Byte, ShortInt, Word, SmallInt, Cardinal, Integer, Int64 |
/// | Single, Double, Float, PackedFloat |
inline void SwapXY(Byte& X, Byte& Y) noexcept { std::swap(X, Y); }
inline void SwapXY(ShortInt& X, ShortInt& Y) noexcept { std::swap(X, Y); }
inline void SwapXY(Word& X, Word& Y) noexcept { std::swap(X, Y); }
inline void SwapXY(SmallInt& X, SmallInt& Y) noexcept { std::swap(X, Y); }
inline void SwapXY(Cardinal& X, Cardinal& Y) noexcept { std::swap(X, Y); }
inline void SwapXY(Integer& X, Integer& Y) noexcept { std::swap(X, Y); }
inline void SwapXY(Int64& X, Int64& Y) noexcept { std::swap(X, Y); }
inline void SwapXY(Single& X, Single& Y) noexcept { std::swap(X, Y); }
inline void SwapXY(Double& X, Double& Y) noexcept { std::swap(X, Y); }
inline void SwapXY(Float& X, Float& Y) noexcept { std::swap(X, Y); }
inline void SwapXY(PackedFloat& X, PackedFloat& Y) noexcept { std::swap(X, Y); }
/// @}

/// Sets Size bytes at P to zero; nothing for a Size of 0 (P may then be null).
void KorClear(void* P, Cardinal Size);

}  // namespace Kornumsystem
KORNUM_EXPORT_END
