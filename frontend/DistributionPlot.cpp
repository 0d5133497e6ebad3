#include "frontend/DistributionPlot.h"

#include "frontend/NumberText.h"

#include <kornum/PlatformExceptions.h>

#include <cmath>

namespace KornumFrontend {
namespace {

using Kornumglobals::Integer;
using Kornumglobals::TKorFloatVector;

const Platform::TColor BarColor = Platform::TColor::RGB(160, 190, 225);
const Platform::TColor CurveColor = Platform::TColor::RGB(200, 30, 40);
constexpr Integer Points = 501;

std::string Title(const Family& family, const Values& p, bool cdf) {
    std::string title = std::string(family.title) + (cdf ? " distribution function" : family.discrete ? " probabilities" : " density");
    for (std::size_t i = 0; i < p.size(); ++i) title += std::string(", ") + family.parameters[i].symbol + " = " + NumberText(p[i]);
    return title;
}

}  // namespace

KornumPlot::TKorPlot DistributionPlot(const Family& family, const Values& p, Float lo, Float hi, bool cdf, bool log) {
    if (!std::isfinite(lo) || !std::isfinite(hi) || !(lo < hi))
        throw Platform::Exception("the plot's range needs XLO < XHI, both finite");
    KornumPlot::TKorPlot plot;
    plot.SetTitle(Title(family, p, cdf));
    plot.SetYScale(log ? KornumPlot::TScale::Log10 : KornumPlot::TScale::Linear);
    plot.SetYLabel(cdf ? (family.discrete ? "P(X \u2264 k)" : "P(X \u2264 x)") : family.discrete ? "P(X = k)" : "density");
    plot.SetXLabel(family.discrete ? "k" : "x");
    std::vector<Float> x, y;
    if (!family.discrete) {
        CheckTable(family, lo, hi, p);
        plot.SetXRange(lo, hi);
        TKorFloatVector X, Y;
        if (!cdf) family.table(lo, hi, Points, p, X, Y);
        for (Integer i = 0; i < Points; ++i) {
            x.push_back(cdf ? (i == Points - 1 ? hi : lo + (hi - lo) * Float(i) / Float(Points - 1)) : Float(X[i]));
            y.push_back(cdf ? family.less(x.back(), p) : Float(Y[i]));
        }
        plot.AddLine(x, y, CurveColor, "");
        return plot;
    }
    // The whole counts in the range; the binomial's end at its trials.
    const Float first = std::max(Float(0), std::ceil(lo));
    Float last = std::floor(hi);
    if (family.parameters[0].kind == Kind::Trials) last = std::min(last, p[0]);
    if (last > MaxCounts) throw Platform::Exception("a discrete plot reaches at most " + NumberText(MaxCounts, 0) + " counts");
    if (last < first) throw Platform::Exception("the plot's range holds no count from 0 up");
    CheckTable(family, 0, 1, p);
    plot.SetXRange(first - 0.5L, last + 0.5L);
    if (cdf) {
        // A step at each count: P(X <= k) holds from k to k + 1.
        for (Float k = first; k <= last; ++k) {
            const Float value = family.less(k, p);
            x.insert(x.end(), {k, k + 1 > last ? last + 0.5L : k + 1});
            y.insert(y.end(), {value, value});
        }
        plot.AddLine(x, y, CurveColor, "");
        return plot;
    }
    TKorFloatVector X, Y;
    family.table(lo, last, 0, p, X, Y);
    for (Float k = first; k <= last; ++k) y.push_back(Y[Integer(k)]);
    plot.AddBars(first - 0.35L, 1, y, 0.7L, BarColor, "");
    return plot;
}

}  // namespace KornumFrontend
