#include "Parameters.h"

#include "Options.h"
#include "Output.h"

#include <kornum/Kornumconvert.h>
#include <kornum/PlatformExceptions.h>

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace KornumCli {
namespace {

std::optional<Float> Read(std::string_view text) {
    try {
        return Kornumconvert::Str2Float(text);
    } catch (const Platform::Exception&) {
        return std::nullopt;
    }
}

[[noreturn]] void Fail(const std::string& what, const std::string& kind, const std::string& text) {
    throw UsageError(what + " must be " + kind + ": " + Quoted(text));
}

Float Checked(const std::string& text, const std::string& what, const std::string& kind, bool (*accepts)(Float)) {
    const std::optional<Float> x = Read(text);
    if (!x || !accepts(*x)) Fail(what, kind, text);
    return *x;
}

}  // namespace

bool ReadsAsNumber(std::string_view text) { return Read(text).has_value(); }

Float AnyNumber(const std::string& text, const std::string& what) {
    return Checked(text, what, "a number", [](Float x) { return !std::isnan(x); });
}

Float FiniteNumber(const std::string& text, const std::string& what) {
    return Checked(text, what, "a finite number", [](Float x) { return std::isfinite(x); });
}

Float PositiveNumber(const std::string& text, const std::string& what) {
    return Checked(text, what, "a finite number > 0", [](Float x) { return std::isfinite(x) && x > 0; });
}

Float NonNegativeNumber(const std::string& text, const std::string& what) {
    return Checked(text, what, "a finite number >= 0", [](Float x) { return std::isfinite(x) && x >= 0; });
}

Float Probability(const std::string& text, const std::string& what) {
    return Checked(text, what, "a number from 0 to 1", [](Float x) { return x >= 0 && x <= 1; });
}

Int64 WholeNumber(const std::string& text, const std::string& what, Int64 least, Int64 most) {
    // Whole-valued Floats of any spelling count (1e3 is 1000).
    const std::optional<Float> x = Read(text);
    if (!x || !(*x >= Float(least)) || *x != std::trunc(*x))
        Fail(what, "a whole number >= " + std::to_string(least), text);
    if (*x > Float(most))
        Fail(what, "a whole number from " + std::to_string(least) + " to " + std::to_string(most), text);
    return Int64(*x);
}

std::uint64_t Seed(const std::string& text) {
    std::uint64_t seed = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, seed);
    if (text.empty() || error != std::errc() || stop != end)
        Fail("--seed", "a whole number from 0 to 18446744073709551615", text);
    return seed;
}

char Delimiter(const std::string& text) {
    if (text == "\\t") return '\t';
    if (text.size() != 1 || text[0] == '\n' || text[0] == '\r' || text[0] == '"')
        Fail("--delimiter", "one character (or \\t for a tab), not a quote or a line end", text);
    return text[0];
}

}  // namespace KornumCli
