// Bin counts of a sample and the Freedman-Diaconis choice of their number.
#include "KornumPlot.h"

#include <kornum/PlatformExceptions.h>

#include <algorithm>
#include <cmath>

namespace KornumPlot {
namespace {

// The bins of [Min, Max] and the rule that places a value in one. Values are placed in
// double precision, SSE arithmetic without x87 mode switches: an edge moves by a few
// parts in 10^16 of the range at most. The bin of a value never falls as the value
// grows (each step rounds monotonically), which is what lets a sorted sample be binned
// by binary searches with the same counts as a pass over it.
struct Binning {
    THistogram histogram;
    Integer bins;
    double lo, least, greatest, scale;

    Binning(Float Min, Float Max, Integer Bins) : bins(Bins) {
        if (Bins < 1) throw Platform::Exception("a histogram needs at least one bin");
        if (!std::isfinite(Min) || !std::isfinite(Max) || Min > Max)
            throw Platform::Exception("a histogram needs a finite range with its low end first");
        if (Min == Max) {
            histogram.Width = Min == 0 ? 1 : std::fabs(Min) / 10;
            histogram.Lo = Min - histogram.Width / 2;
            bins = 1;
        } else {
            histogram.Lo = Min;
            histogram.Width = (Max - Min) / Float(Bins);
        }
        histogram.Counts.assign(std::size_t(bins), 0);
        lo = double(histogram.Lo);
        least = double(Min);
        greatest = double(Max);
        scale = double(bins) / double(Min == Max ? histogram.Width : Max - Min);
    }

    bool InRange(double x) const { return x >= least && x <= greatest; }  // NaN fails both
    // The upper edge belongs to the last bin; rounding may not push a value past it.
    Integer Bin(double x) const { return std::min(Integer((x - lo) * scale), bins - 1); }
};

}  // namespace

Integer FreedmanDiaconisBins(Int64 N, Float IQR, Float Min, Float Max, Integer Most) {
    if (N < 2 || !(Max > Min) || !std::isfinite(Max - Min)) return 1;
    const Float width = 2 * IQR / std::cbrt(Float(N));
    // Sturges' rule where the quartiles coincide (heavy ties) and the rule gives no width.
    const Float bins = width > 0 && std::isfinite(width) ? std::ceil((Max - Min) / width)
                                                         : std::ceil(std::log2(Float(N))) + 1;
    return Integer(std::clamp(bins, Float(1), Float(std::max<Integer>(1, Most))));
}

THistogram Histogram(const TKorFloatVector& Values, Float Min, Float Max, Integer Bins) {
    Binning binning(Min, Max, Bins);
    std::int64_t* counts = binning.histogram.Counts.data();
    for (Float value : Values) {
        const double x = double(value);
        if (binning.InRange(x)) ++counts[binning.Bin(x)];
    }
    return std::move(binning.histogram);
}

THistogram SortedHistogram(const TKorFloatVector& Ascending, Float Min, Float Max, Integer Bins) {
    Binning binning(Min, Max, Bins);
    auto* first = std::partition_point(Ascending.begin(), Ascending.end(),
                                       [&](Float v) { return double(v) < binning.least; });
    auto* const end =
        std::partition_point(first, Ascending.end(), [&](Float v) { return double(v) <= binning.greatest; });
    // Bin b ends where the first value of a later bin stands.
    std::vector<Int64>& counts = binning.histogram.Counts;
    for (Integer b = 0; b < binning.bins; ++b) {
        auto* const next = std::partition_point(first, end, [&](Float v) { return binning.Bin(double(v)) <= b; });
        counts[std::size_t(b)] = next - first;
        first = next;
    }
    return std::move(binning.histogram);
}

}  // namespace KornumPlot
