// Numbers given on the command line, checked where they are read so that a message
// names the parameter: "degrees of freedom must be a whole number >= 1: '2.5'".
#pragma once

#include <kornum/Kornumglobals.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace KornumCli {

using Kornumglobals::Float;
using Kornumglobals::Int64;

// Whether the text reads as a Float (NaN and infinities included).
bool ReadsAsNumber(std::string_view text);

// Each reads the text as the parameter called `what` and throws UsageError naming it and
// quoting the text when the text is not a number of the kind asked for. NaN is never one.
Float AnyNumber(const std::string& text, const std::string& what);            // infinities allowed
Float FiniteNumber(const std::string& text, const std::string& what);
Float PositiveNumber(const std::string& text, const std::string& what);       // finite, > 0
Float NonNegativeNumber(const std::string& text, const std::string& what);    // finite, >= 0
Float Probability(const std::string& text, const std::string& what);          // 0 to 1
Int64 WholeNumber(const std::string& text, const std::string& what, Int64 least, Int64 most);
std::uint64_t Seed(const std::string& text);  // 0 to 2^64 - 1

// The field delimiter of a record: one character, or \\t for a tab; not a quote or a
// line end.
char Delimiter(const std::string& text);

}  // namespace KornumCli
