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
    // Binned in double precision, SSE arithmetic without x87 mode switches: an edge
    // moves by a few parts in 10^16 of the range at most.
    const double lo = double(histogram.Lo), least = double(Min), greatest = double(Max);
    const double scale = double(Bins) / double(Min == Max ? histogram.Width : Max - Min);
    std::int64_t* counts = histogram.Counts.data();
    for (Float value : Values) {
        const double x = double(value);
        if (!(x >= least && x <= greatest)) continue;  // NaN fails both
        // The upper edge belongs to the last bin; rounding may not push a value past it.
        const Integer bin = std::min(Integer((x - lo) * scale), Bins - 1);
        ++counts[bin];
    }
    return histogram;
}

}  // namespace KornumPlot
