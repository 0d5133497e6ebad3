/// @file
/// Conversions between numbers and text, independent of the C locale.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

#include <string>
#include <string_view>

/// The convert module: conversions between numbers and text, independent of the C
/// locale (the decimal separator is always a point). Text that is not a number raises
/// `Platform::EConvertError` quoting it; nothing is silently read as 0.
KORNUM_EXPORT_BEGIN
namespace Kornumconvert {

using Kornumglobals::Byte;
using Kornumglobals::Float;
using Kornumglobals::Int64;
using Kornumglobals::Integer;

/// X in fixed notation with exactly Decimals digits after a '.' (none and no point
/// when Decimals is 0), correctly rounded, with a leading '-' for negative values (a
/// negative value that rounds to zero included: "-0.00") and no grouping:
/// `Float2EStr(2.5L, 3) == "2.500"`. Infinities and NaN give "INF", "-INF" and "NAN".
std::string Float2EStr(Float X, Byte Decimals);

/// @name Int2EStr
/// @{

/// Decimal text of an integer, with a leading '-' when negative and no grouping:
/// `Int2EStr(-42) == "-42"`.
///
/// | N |
/// |---|
/// | Int64, Integer |
std::string Int2EStr(Int64 N);
std::string Int2EStr(Integer N);
/// @}

/// The Float value of a number as a person types it: blanks (spaces, tabs, line ends)
/// around it, an optional sign, digits with an optional '.' (either side may be empty
/// but not both: "1.", ".5"), and an optional exponent of 'e' or 'E', a sign and
/// digits; also "INF", "INFINITY" and "NAN" in any case. The result is correctly rounded.
/// Failures: anything else, including the empty text, raises `Platform::EConvertError`
/// ("'S' is not a valid number"); a value that overflows Float, or underflows its normal
/// range, raises it as "'S' is out of the range of Float". Never returns 0 for garbage.
Float Str2Float(std::string_view S);

/// S without its trailing occurrences of Ch: `StripTChStr("2.500", '0') == "2.5"`.
std::string StripTChStr(std::string_view S, char Ch);

}  // namespace Kornumconvert
KORNUM_EXPORT_END
