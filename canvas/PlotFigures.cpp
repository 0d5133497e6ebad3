// Ready-made figures: a sample's histogram with its fitted normal density, and writing a
// plot to an image file.
#include "KornumCanvas.h"
#include "KornumPlot.h"

#include <kornum/KornumStatistics.h>
#include <kornum/PlatformExceptions.h>

#include <cmath>
#include <cstdio>
#include <limits>

namespace KornumPlot {

void NormalCounts(Float Count, Float BinWidth, Float Mean, Float StdDev, Float Lo, Float Hi, Integer Points,
                  std::vector<Float>& X, std::vector<Float>& Y) {
    TKorFloatVector xs, ys;
    KornumStatistics::NormalPDFValues(Lo, Hi, Points, Mean, StdDev, xs, ys);
    X.assign(xs.begin(), xs.end());
    Y.resize(X.size());
    const Float scale = Count * BinWidth;
    for (std::size_t i = 0; i < Y.size(); ++i) Y[i] = scale * Float(ys[Integer(i)]);
}

namespace {

const Platform::TColor BarColor = Platform::TColor::RGB(160, 190, 225);
const Platform::TColor CurveColor = Platform::TColor::RGB(200, 30, 40);

std::string Significant(Float x) {
    char text[64];
    std::snprintf(text, sizeof text, "%.5Lg", x);
    return text;
}

// The histogram's bars with the normal curve of Mean and StdDev over them, scaled to the
// Finite values counted; the title gives N values.
TKorPlot HistogramPlot(const THistogram& histogram, Int64 N, Int64 Finite, Float Mean, Float StdDev) {
    const Float lo = histogram.Lo, hi = lo + histogram.Width * Float(histogram.Counts.size());
    TKorPlot plot;
    plot.SetXRange(lo, hi);
    plot.SetXLabel("value");
    plot.SetYLabel("count");
    plot.AddBars(lo, histogram.Width, std::vector<Float>(histogram.Counts.begin(), histogram.Counts.end()), 1, BarColor,
                 "counts, " + std::to_string(histogram.Counts.size()) + (histogram.Counts.size() == 1 ? " bin" : " bins"));
    if (std::isfinite(Mean) && std::isfinite(StdDev) && StdDev > 0) {
        std::vector<Float> x, y;
        NormalCounts(Float(Finite), histogram.Width, Mean, StdDev, lo, hi, 400, x, y);
        plot.AddLine(x, y, CurveColor, "normal density of the mean and sd");
    }
    plot.SetTitle("n = " + std::to_string(N) + ", ^m = " + Significant(Mean) + ", ^s = " + Significant(StdDev));
    return plot;
}

}  // namespace

TKorPlot SampleHistogram(const TKorFloatVector& Values, Float Min, Float Max, Float Mean, Float StdDev, Float IQR,
                         Integer Bins) {
    Float least = Min, greatest = Max;
    Int64 finite = Values.Length();
    // Extremes that are not finite come from values that are not: the finite ones are
    // counted and their range found.
    if (!std::isfinite(Min) || !std::isfinite(Max)) {
        least = std::numeric_limits<Float>::infinity();
        greatest = -least;
        finite = 0;
        for (Float x : Values)
            if (std::isfinite(x)) {
                least = std::min(least, x);
                greatest = std::max(greatest, x);
                ++finite;
            }
    }
    if (finite == 0) throw Platform::Exception("a histogram needs at least one finite value");
    if (Bins == 0) Bins = FreedmanDiaconisBins(finite, IQR, least, greatest);
    return HistogramPlot(Histogram(Values, least, greatest, Bins), Values.Length(), finite, Mean, StdDev);
}

TKorPlot SampleHistogram(const KornumDescStats::TKorDescStats& Stats, Integer Bins) {
    const Int64 n = Stats.NoOfValues();
    // A finite sum means no NaN and no infinity among the values, so the ascending copy is
    // in order from end to end and the extremes are its ends.
    if (n == 0 || !std::isfinite(Stats.Sum()))
        return SampleHistogram(Stats.Values(), Stats.Minimum(), Stats.Maximum(), Stats.Mean(), Stats.StdDev(),
                               Stats.IQR(), Bins);
    if (Bins == 0) Bins = FreedmanDiaconisBins(n, Stats.IQR(), Stats.Minimum(), Stats.Maximum());
    return HistogramPlot(SortedHistogram(Stats.SortedValues(), Stats.Minimum(), Stats.Maximum(), Bins), n, n,
                         Stats.Mean(), Stats.StdDev());
}

void PrepareFonts() noexcept {
    // A face that fails here fails again, with its message, where the plot is drawn.
    try {
        KornumCanvas::TKorImageCanvas canvas(KornumCanvas::TImageFormat::Png, 64, 64, Platform::clWhite);
    canvas.SetTextEncoding(Platform::TTextEncoding::Utf8);
    for (const char* face : {"DejaVu Sans", "Symbol"})
        for (std::int32_t size : {10, 14}) {
            canvas.Font().Name = face;
            canvas.Font().Size = size;
            Platform::TRect rect{0, 0, 64, 64};
            canvas.DrawText(std::string_view(face) == "Symbol" ? "ms" : "0123456789.,-+e =nvalueco", rect,
                            Platform::TextFlags::NoPrefix);
            }
    } catch (...) {
    }
}

void SavePlot(TKorPlot& Plot, const std::string& Path, std::int32_t Width, std::int32_t Height) {
    const auto format = KornumCanvas::FormatOfPath(Path);
    if (!format) throw Platform::Exception("a plot is written to a file ending in .svg, .png or .pdf: '" + Path + "'");
    KornumCanvas::TKorImageCanvas canvas(*format, Width, Height, Platform::clWhite);
    canvas.SetTextEncoding(Platform::TTextEncoding::Utf8);
    Plot.Draw(canvas, {0, 0, Width, Height});
    canvas.SaveToFile(Path);
}

}  // namespace KornumPlot
