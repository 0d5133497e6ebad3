#include <kornum/Kornumconvert.h>

#include <kornum/PlatformExceptions.h>

#include <array>
#include <charconv>
#include <cstdint>
#include <cmath>

namespace Kornumconvert {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f' || c == '\v'; }

// The exact powers of ten of a Float: 10^k for k <= 27 (5^27 < 2^64).
constexpr int ExactPowers = 27;
constexpr auto PowersOfTen = [] {
    std::array<Float, ExactPowers + 1> powers{};
    Float power = 1;
    for (auto& p : powers) {
        p = power;
        power *= 10;
    }
    return powers;
}();

// Reads plain decimal text (digits, an optional '.', an optional exponent) whose
// significant digits fit 64 bits and whose scale is an exact power of ten: the value is
// then one correctly rounded product or quotient of two exact Floats. Returns false
// for anything else, which the general conversion handles.
bool ReadSimpleDecimal(std::string_view text, Float& value) {
    std::uint64_t digits = 0;
    int significant = 0, scale = 0;
    bool anyDigit = false, point = false;
    std::size_t i = 0;
    for (; i < text.size(); ++i) {
        const char c = text[i];
        if (c >= '0' && c <= '9') {
            anyDigit = true;
            if (digits == 0 && c == '0') {
                if (point) --scale;
                continue;
            }
            if (++significant > 19) return false;
            digits = digits * 10 + std::uint64_t(c - '0');
            if (point) --scale;
        } else if (c == '.' && !point) {
            point = true;
        } else {
            break;
        }
    }
    if (!anyDigit) return false;
    if (i < text.size()) {
        if (text[i] != 'e' && text[i] != 'E') return false;
        ++i;
        bool negative = false;
        if (i < text.size() && (text[i] == '+' || text[i] == '-')) negative = text[i++] == '-';
        if (i == text.size()) return false;
        int exponent = 0;
        for (; i < text.size(); ++i) {
            if (text[i] < '0' || text[i] > '9' || exponent > 1000) return false;
            exponent = exponent * 10 + (text[i] - '0');
        }
        scale += negative ? -exponent : exponent;
    }
    if (digits == 0) {
        value = 0;
        return true;
    }
    if (scale < -ExactPowers || scale > ExactPowers) return false;
    value = scale < 0 ? Float(digits) / PowersOfTen[std::size_t(-scale)]
                      : Float(digits) * PowersOfTen[std::size_t(scale)];
    return true;
}

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
    if (ReadSimpleDecimal(number, value)) return negative ? -value : value;
    // The library's from_chars for long double reads its text as a C string, past the
    // given end: it gets a terminated copy.
    const std::string terminated(number);
    const char* const stop = terminated.data() + terminated.size();
    auto [end, error] = std::from_chars(terminated.data(), stop, value, std::chars_format::general);
    if (error == std::errc::result_out_of_range)
        throw Platform::EConvertError("'" + std::string(S) + "' is out of the range of Float");
    if (error != std::errc() || end != stop) RaiseNotANumber(S);
    return negative ? -value : value;
}

std::string StripTChStr(std::string_view S, char Ch) {
    std::size_t length = S.size();
    while (length > 0 && S[length - 1] == Ch) --length;
    return std::string(S.substr(0, length));
}

}  // namespace Kornumconvert
