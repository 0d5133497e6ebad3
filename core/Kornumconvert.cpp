#include <kornum/Kornumconvert.h>

#include <kornum/PlatformExceptions.h>

#include <charconv>
#include <cmath>

namespace Kornumconvert {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f' || c == '\v'; }

[[noreturn]] void RaiseNotANumber(std::string_view text) {
    throw Platform::EConvertError("'" + std::string(text) + "' is not a valid number");
}

}  // namespace

std::string Float2EStr(Float X, Byte Decimals) {
    if (std::isnan(X)) return "NAN";
    if (std::isinf(X)) return X < 0 ? "-INF" : "INF";
    // Fixed notation of an 80-bit value needs at most 4933 integer digits.
    std::string text(4960 + std::size_t(Decimals), '\0');
    auto result = std::to_chars(text.data(), text.data() + text.size(), X,
                                std::chars_format::fixed, int(Decimals));
    text.resize(std::size_t(result.ptr - text.data()));
    return text;
}

std::string Int2EStr(Int64 N) { return std::to_string(N); }
std::string Int2EStr(Integer N) { return std::to_string(N); }

Float Str2Float(std::string_view S) {
    std::size_t first = 0, last = S.size();
    while (first < last && IsBlank(S[first])) ++first;
    while (last > first && IsBlank(S[last - 1])) --last;
    std::string_view number = S.substr(first, last - first);

    bool negative = false;
    if (!number.empty() && (number.front() == '+' || number.front() == '-')) {
        negative = number.front() == '-';
        number.remove_prefix(1);
    }
    // from_chars takes no sign of its own here, and neither a blank after the sign.
    if (number.empty() || number.front() == '+' || number.front() == '-' || IsBlank(number.front()))
        RaiseNotANumber(S);

    Float value = 0;
    auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value,
                                        std::chars_format::general);
    if (error == std::errc::result_out_of_range)
        throw Platform::EConvertError("'" + std::string(S) + "' is out of the range of Float");
    if (error != std::errc() || end != number.data() + number.size()) RaiseNotANumber(S);
    return negative ? -value : value;
}

std::string StripTChStr(std::string_view S, char Ch) {
    std::size_t length = S.size();
    while (length > 0 && S[length - 1] == Ch) --length;
    return std::string(S.substr(0, length));
}

}  // namespace Kornumconvert
