/// @file
/// Keyboard and mouse input as plain values: the virtual key codes, the shift state and
/// the mouse buttons that a host passes to a control's `KeyDown` and `MouseDown`. A host
/// translates its toolkit's events into these; the control never sees the toolkit.
#pragma once

#include <kornum/KornumExport.h>

#include <cstdint>

KORNUM_EXPORT_BEGIN
namespace Platform {

/// @name Virtual key codes
/// The keys a control acts on, by the desktop's customary virtual key numbers. A control
/// sets the code it was given to 0 when it has handled the key, so that the host can pass
/// on what it did not.
/// @{
inline constexpr std::uint16_t vkBack = 8;     ///< Backspace.
inline constexpr std::uint16_t vkTab = 9;      ///< Tab.
inline constexpr std::uint16_t vkReturn = 13;  ///< Enter (Return).
inline constexpr std::uint16_t vkEscape = 27;  ///< Escape.
inline constexpr std::uint16_t vkPrior = 33;   ///< Page Up.
inline constexpr std::uint16_t vkNext = 34;    ///< Page Down.
inline constexpr std::uint16_t vkEnd = 35;     ///< End.
inline constexpr std::uint16_t vkHome = 36;    ///< Home.
inline constexpr std::uint16_t vkLeft = 37;    ///< Left arrow.
inline constexpr std::uint16_t vkUp = 38;      ///< Up arrow.
inline constexpr std::uint16_t vkRight = 39;   ///< Right arrow.
inline constexpr std::uint16_t vkDown = 40;    ///< Down arrow.
inline constexpr std::uint16_t vkInsert = 45;  ///< Insert.
inline constexpr std::uint16_t vkDelete = 46;  ///< Delete.
inline constexpr std::uint16_t vkA = 65;       ///< The letter A (with Ctrl: select all).
inline constexpr std::uint16_t vkC = 67;       ///< The letter C.
inline constexpr std::uint16_t vkV = 86;       ///< The letter V.
inline constexpr std::uint16_t vkF2 = 113;     ///< F2.
/// @}

/// The modifier keys held during an input event: `ssShift`, `ssAlt` and `ssCtrl` combined
/// as bits; 0 for none.
using TShiftState = std::uint8_t;
/// Shift is held.
inline constexpr TShiftState ssShift = 1;
/// Alt is held.
inline constexpr TShiftState ssAlt = 2;
/// Ctrl is held.
inline constexpr TShiftState ssCtrl = 4;

/// The button of a mouse click.
enum TMouseButton : std::uint8_t {
    mbLeft,   ///< The primary button.
    mbRight,  ///< The secondary button.
    mbMiddle  ///< The middle button (or wheel press).
};

/// The wheel turn of one notch, as `MouseWheel` receives it: positive away from the user
/// (scrolls up), negative towards the user.
inline constexpr std::int32_t WheelDelta = 120;

}  // namespace Platform
KORNUM_EXPORT_END
