// Tick values at round numbers and their labels, for linear and logarithmic axes.
#include "KornumPlot.h"

#include <kornum/PlatformExceptions.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace KornumPlot {
namespace {

// A step of 1, 2 or 5 times 10^exponent.
struct Step {
    Float value;
    int exponent;
};

Step RoundStep(Float raw) {
    int exponent = int(std::floor(std::log10(raw)));
    const Float unit = std::pow(10.0L, Float(exponent));
    const Float f = raw / unit;
    Float mantissa = f <= 1 ? 1 : f <= 2 ? 2 : f <= 5 ? 5 : 10;
    if (mantissa == 10) {
        mantissa = 1;
        ++exponent;
    }
    return {mantissa * std::pow(10.0L, Float(exponent)), exponent};
}

// Trailing zeros of a fraction go, and a bare point with them: "0.50" is "0.5".
std::string TrimFraction(std::string text) {
    if (text.find('.') == std::string::npos) return text;
    while (text.back() == '0') text.pop_back();
    if (text.back() == '.') text.pop_back();
    return text;
}

// x with `digits` digits after the point of the mantissa, exponent without '+' or
// leading zeros: "2e-291", "1.5e6".
std::string Scientific(Float x, int digits) {
    char text[64];
    std::snprintf(text, sizeof text, "%.*Le", std::max(0, digits), x);
    std::string s = text;
    const std::size_t e = s.find('e');
    std::string mantissa = TrimFraction(s.substr(0, e));
    const int exponent = std::stoi(s.substr(e + 1));
    return mantissa + "e" + std::to_string(exponent);
}

std::string Fixed(Float x, int decimals) {
    char text[128];
    std::snprintf(text, sizeof text, "%.*Lf", std::max(0, decimals), x);
    return TrimFraction(text);
}

// Plain decimals when every label is short in them, else the scientific form.
bool FixedSuits(int stepExponent, Float magnitude) { return stepExponent >= -4 && magnitude < 1e7L; }

void CheckCount(Integer maxTicks) {
    if (maxTicks < 2) throw Platform::Exception("an axis needs room for at least 2 ticks");
}

}  // namespace

TTicks NiceTicks(Float Lo, Float Hi, Integer MaxTicks, bool Extend) {
    CheckCount(MaxTicks);
    if (!std::isfinite(Lo) || !std::isfinite(Hi) || Lo > Hi)
        throw Platform::Exception("an axis needs a finite range with its low end first");
    const Float magnitude = std::max(std::fabs(Lo), std::fabs(Hi));
    // Below the resolution of the values there is nothing to divide: widen it.
    if (Hi - Lo <= magnitude * 1e-15L) {
        const Float middle = Lo / 2 + Hi / 2, half = middle == 0 ? 0.5L : std::fabs(middle) * 0.05L;
        Lo = middle - half;
        Hi = middle + half;
    }
    const Step step = RoundStep((Hi - Lo) / Float(MaxTicks - 1));
    // Ticks are whole multiples of the step, so that 0 is exactly 0 where it falls.
    // A bound within rounding of a multiple counts as that multiple; the slack grows with
    // the multiple, since 1e-300 is 5e-10 steps of 2e-291 and no multiple at all.
    const Float low = Lo / step.value, high = Hi / step.value;
    const Float lowSlack = 1e-12L * std::max(Float(1), std::fabs(low)), highSlack = 1e-12L * std::max(Float(1), std::fabs(high));
    const Float first = std::ceil(low - lowSlack), last = std::floor(high + highSlack);
    TTicks ticks;
    const Float outerFirst = std::floor(low + lowSlack), outerLast = std::ceil(high - highSlack);
    ticks.Lo = outerFirst * step.value;
    ticks.Hi = outerLast * step.value;
    const bool fixed = FixedSuits(step.exponent, std::max(std::fabs(ticks.Lo), std::fabs(ticks.Hi)));
    for (Float k = Extend ? outerFirst : first; k <= (Extend ? outerLast : last); ++k) {
        const Float value = k * step.value;
        ticks.Values.push_back(value);
        if (value == 0) {
            ticks.Labels.emplace_back("0");
        } else if (fixed) {
            ticks.Labels.push_back(Fixed(value, -step.exponent));
        } else {
            const int exponent = int(std::floor(std::log10(std::fabs(value)) + 1e-12L));
            ticks.Labels.push_back(Scientific(value, exponent - step.exponent));
        }
    }
    return ticks;
}

TTicks LogTicks(Float Lo, Float Hi, Integer MaxTicks) {
    CheckCount(MaxTicks);
    if (!(Lo > 0) || !(Hi >= Lo) || !std::isfinite(Hi))
        throw Platform::Exception("a logarithmic axis needs a positive range with its low end first");
    const Float low = std::floor(std::log10(Lo) + 1e-12L), high = std::ceil(std::log10(Hi) - 1e-12L);
    const Float decades = std::max(Float(1), high - low);
    const Float every = std::max(Float(1), RoundStep(decades / Float(MaxTicks - 1)).value);
    TTicks ticks;
    const Float first = std::floor(low / every) * every, last = std::ceil(high / every) * every;
    ticks.Lo = std::pow(10.0L, first);
    ticks.Hi = std::pow(10.0L, last);
    for (Float d = first; d <= last; d += every) {
        ticks.Values.push_back(std::pow(10.0L, d));
        ticks.Labels.push_back(d >= -4 && d <= 6 ? Fixed(std::pow(10.0L, d), int(-d)) : "1e" + std::to_string(int(d)));
    }
    return ticks;
}

}  // namespace KornumPlot
