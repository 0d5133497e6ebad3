#include "frontend/NumberText.h"

#include <charconv>
#include <cmath>

namespace KornumFrontend {

std::string NumberText(Kornumglobals::Float x, int decimals) {
    if (std::isnan(x)) return "nan";
    if (std::isinf(x)) return x < 0 ? "-inf" : "inf";
    // Fixed notation of an 80-bit value needs at most 4933 integer digits.
    std::string text(64 + (decimals < 0 ? 0 : 4933 + std::size_t(decimals)), '\0');
    const auto result = decimals < 0 ? std::to_chars(text.data(), text.data() + text.size(), x)
                                     : std::to_chars(text.data(), text.data() + text.size(), x,
                                                     std::chars_format::fixed, decimals);
    text.resize(std::size_t(result.ptr - text.data()));
    return text;
}

}  // namespace KornumFrontend
