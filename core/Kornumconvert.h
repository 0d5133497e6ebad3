// Conversions between numbers and text, independent of the C locale.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

#include <string>
#include <string_view>

namespace KORNUM_API Kornumconvert {

using Kornumglobals::Byte;
using Kornumglobals::Float;
using Kornumglobals::Int64;
using Kornumglobals::Integer;

// X in fixed notation with exactly Decimals digits after a '.' (none and no point
// when Decimals is 0), correctly rounded, with a leading '-' for negative values and
// no grouping: Float2EStr(2.5L, 3) == "2.500". Infinities and NaN give "INF", "-INF"
// and "NAN".
std::string Float2EStr(Float X, Byte Decimals);

// Decimal text of an integer: Int2EStr(-42) == "-42".
std::string Int2EStr(Int64 N);
std::string Int2EStr(Integer N);

// The Float value of a number as a person types it: blanks (spaces, tabs, line ends)
// around it, an optional sign, digits with an optional '.' (either side may be empty
// but not both: "1.", ".5"), and an optional exponent of 'e' or 'E', a sign and
// digits; also "INF" and "NAN" in any case. The result is correctly rounded.
// Anything else, including the empty text and a value beyond the Float range, raises
// Platform::EConvertError whose message quotes the text. Never returns 0 for garbage.
Float Str2Float(std::string_view S);

// S without its trailing occurrences of Ch.
std::string StripTChStr(std::string_view S, char Ch);

}  // namespace Kornumconvert
