// Bin counts of a sample and the Freedman-Diaconis choice of their number.
#include "KornumPlot.h"

#include <kornum/PlatformExceptions.h>

#include <algorithm>
#include <cmath>

namespace KornumPlot {

Integer FreedmanDiaconisBins(Int64 N, Float IQR, Float Min, Float Max, Integer Most) {
    if (N < 2 || !(Max > Min) || !std::isfinite(Max - Min)) return 1;
    const Float width = 2 * IQR / std::cbrt(Float(N));
    // Sturges' rule where the quartiles coincide (heavy ties) and the rule gives no width.
    const Float bins = width > 0 && std::isfinite(width) ? std::ceil((Max - Min) / width)
                                                         : std::ceil(std::log2(Float(N))) + 1;
    return Integer(std::clamp(bins, Float(1), Float(std::max<Integer>(1, Most))));
}

THistogram Histogram(const TKorFloatVector& Values, Float Min, Float Max, Integer Bins) {
    if (Bins < 1) throw Platform::Exception("a histogram needs at least one bin");
    if (!std::isfinite(Min) || !std::isfinite(Max) || Min > Max)
        throw Platform::Exception("a histogram needs a finite range with its low end first");
    THistogram histogram;
    histogram.Counts.assign(std::size_t(Bins), 0);
    if (Min == Max) {
        histogram.Width = Min == 0 ? 1 : std::fabs(Min) / 10;
        histogram.Lo = Min - histogram.Width / 2;
        Bins = 1;
        histogram.Counts.resize(1);
    } else {
        histogram.Lo = Min;
        histogram.Width = (Max - Min) / Float(Bins);
    }
    const Float scale = Float(Bins) / (Min == Max ? histogram.Width : Max - Min);
    const Integer n = Values.Length();
    for (Integer i = 0; i < n; ++i) {
        const Float x = Values[i];
        if (!(x >= Min && x <= Max)) continue;  // NaN fails both
        // The upper edge belongs to the last bin; rounding may not push a value past it.
        const Integer bin = std::min(Integer((x - histogram.Lo) * scale), Bins - 1);
        ++histogram.Counts[std::size_t(bin)];
    }
    return histogram;
}

}  // namespace KornumPlot
