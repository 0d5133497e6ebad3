// The plotting layer: round ticks for awkward ranges, histogram counts and bins, the
// fitted curve's scale, and a chart drawn on a recording canvas.
#include "TestSupport.h"

#include <kornum/KornumCanvas.h>
#include <kornum/KornumDescStats.h>
#include <kornum/KornumPlot.h>
#include <kornum/KornumVector.h>
#include <kornum/PlatformRandom.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace {

using namespace KornumPlot;
using Labels = std::vector<std::string>;

// Ticks are worked out by hand: the range over MaxTicks - 1 rounded up to 1, 2 or 5 times
// a power of ten, then the multiples of that step inside the range.
TEST(PlotTicks, AwkwardRangesGetRoundDistinctLabels) {
    // 1e-290 / 6 = 1.7e-291 -> steps of 2e-291; 1e-300 lies below the first.
    const TTicks tiny = NiceTicks(1e-300L, 1e-290L);
    EXPECT_EQ(tiny.Labels, (Labels{"2e-291", "4e-291", "6e-291", "8e-291", "1e-290"}));
    for (Float v : tiny.Values) EXPECT_TRUE(v >= 1e-300L && v <= 1e-290L) << v;

    // 0.002 / 6 = 3.3e-4 -> steps of 5e-4, and the middle tick is exactly zero.
    const TTicks symmetric = NiceTicks(-0.001L, 0.001L);
    EXPECT_EQ(symmetric.Labels, (Labels{"-0.001", "-0.0005", "0", "0.0005", "0.001"}));
    EXPECT_EQ(symmetric.Values[2], 0);

    // One value (or all equal) is widened by 5%: 4.75 to 5.25 in steps of 0.1; zero by 0.5.
    EXPECT_EQ(NiceTicks(5, 5).Labels, (Labels{"4.8", "4.9", "5", "5.1", "5.2"}));
    EXPECT_EQ(NiceTicks(0, 0).Labels, (Labels{"-0.4", "-0.2", "0", "0.2", "0.4"}));

    // Extended ticks reach the round ends around the data: 0 to 0.157 in steps of 0.05.
    const TTicks extended = NiceTicks(0, 0.157L, 5, true);
    EXPECT_EQ(extended.Labels, (Labels{"0", "0.05", "0.1", "0.15", "0.2"}));
    EXPECT_EQ(extended.Hi, extended.Values.back());

    // Large magnitudes turn scientific: 0 to 3e7 in steps of 5e6.
    EXPECT_EQ(NiceTicks(0, 3e7L).Labels, (Labels{"0", "5e6", "1e7", "1.5e7", "2e7", "2.5e7", "3e7"}));
}

TEST(PlotTicks, LogarithmicAxesStepWholeDecades) {
    // 1e-348 to 0.4: 348 decades over 6 gaps -> every 100 decades, from 1e-400 to 1.
    EXPECT_EQ(LogTicks(1e-348L, 0.4L).Labels, (Labels{"1e-400", "1e-300", "1e-200", "1e-100", "1"}));
    EXPECT_EQ(LogTicks(0.002L, 50).Labels, (Labels{"0.001", "0.01", "0.1", "1", "10", "100"}));
    // Below the double range, where only the long double reaches.
    EXPECT_EQ(LogTicks(1e-4000L, 1e-3990L, 3).Labels, (Labels{"1e-4000", "1e-3995", "1e-3990"}));
    EXPECT_THROW(LogTicks(0, 1), Platform::Exception);
    EXPECT_THROW(NiceTicks(1, 0), Platform::Exception);
    EXPECT_THROW(NiceTicks(0, std::numeric_limits<Float>::infinity()), Platform::Exception);
}

TEST(PlotHistogram, CountsEveryFiniteValueInItsBin) {
    const Kornumglobals::TKorFloatVector values{0, 0.5, 1, 2.5, 3.999, 4, std::nanl(""),
                                                std::numeric_limits<Float>::infinity(), 9, -1};
    // [0, 4] in 4 bins of 1: 0 and 0.5 | 1 | 2.5 | 3.999 and 4 (the upper edge); 9 and -1
    // lie outside, NaN and infinity are not values to count.
    const THistogram h = Histogram(values, 0, 4, 4);
    EXPECT_EQ(h.Lo, 0);
    EXPECT_EQ(h.Width, 1);
    EXPECT_EQ(h.Counts, (std::vector<Int64>{2, 1, 1, 2}));

    // All values equal: one bin centred on them, 10% of their magnitude wide.
    const THistogram same = Histogram({7, 7, 7}, 7, 7, 5);
    EXPECT_EQ(same.Counts, (std::vector<Int64>{3}));
    EXPECT_NEAR(double(same.Lo), 6.65, 1e-15);
    EXPECT_NEAR(double(same.Width), 0.7, 1e-15);
    EXPECT_THROW(Histogram(values, 0, 4, 0), Platform::Exception);
}

TEST(PlotHistogram, BinCountsSumToTheSampleOnRandomData) {
    Platform::RandSeed(23);
    Kornumglobals::TKorFloatVector values;
    values.SetLength(10007);
    for (Integer i = 0; i < values.Length(); ++i) values[i] = std::ldexp(Platform::Random() - 0.5L, int(i % 40) - 20);
    Float least = values[0], greatest = values[0];
    for (Float x : values) least = std::min(least, x), greatest = std::max(greatest, x);
    for (Integer bins : {1, 7, 200}) {
        const THistogram h = Histogram(values, least, greatest, bins);
        Int64 sum = 0;
        for (Int64 c : h.Counts) sum += c;
        EXPECT_EQ(sum, values.Length()) << bins << " bins";
    }
}

TEST(PlotHistogram, ASortedSampleGivesTheCountsOfAPassOverIt) {
    // Halves from 0 to 100 (edges of 10 bins fall on values: they go to the upper bin),
    // each twice, and random values between them; sorted as the component sorts them.
    Platform::RandSeed(7);
    Kornumglobals::TKorFloatVector values;
    for (int i = 0; i <= 200; ++i) {
        for (Float x : {Float(i) / 2, Float(i) / 2, Float(i) / 2 + Platform::Random() / 2})
            if (x <= 100) {
                values.SetLength(values.Length() + 1);
                values[values.High()] = x;
            }
    }
    Kornumglobals::TKorFloatVector ascending = KornumVector::CopyVector(values);
    KornumVector::QSortVector(ascending, true);
    for (Integer bins : {1, 3, 7, 10, 200, 10000})
        for (auto [lo, hi] : {std::pair<Float, Float>{0, 100}, {10, 50.25L}, {-5, 3}, {99.75L, 99.75L}}) {
            const THistogram sorted = SortedHistogram(ascending, lo, hi, bins);
            const THistogram pass = Histogram(values, lo, hi, bins);
            EXPECT_EQ(sorted.Counts, pass.Counts) << bins << " bins over [" << double(lo) << ", " << double(hi) << "]";
            EXPECT_EQ(sorted.Lo, pass.Lo);
            EXPECT_EQ(sorted.Width, pass.Width);
        }
    // 0 to 9.5 (20 values, and 10 on the edge) | 10 to 19.5 | ... | 90 to 100, 21 values.
    const THistogram ten = SortedHistogram(ascending, 0, 100, 10);
    EXPECT_EQ(ten.Counts.front(), 60);
    EXPECT_EQ(ten.Counts.back(), 62);
    EXPECT_THROW(SortedHistogram(ascending, 0, 100, 0), Platform::Exception);
}

TEST(PlotHistogram, FreedmanDiaconisAndItsFallbacks) {
    // n = 1000, IQR 1.349: width 2 x 1.349 / 10 = 0.2698; 6 / 0.2698 = 22.2 -> 23 bins.
    EXPECT_EQ(FreedmanDiaconisBins(1000, 1.349L, -3, 3), 23);
    // Ties everywhere (IQR 0): Sturges, ceil(log2 1000) + 1 = 11.
    EXPECT_EQ(FreedmanDiaconisBins(1000, 0, -3, 3), 11);
    // A narrow IQR over a long tail is held at the most allowed.
    EXPECT_EQ(FreedmanDiaconisBins(1000000, 1, 0, 1e6L), 200);
    EXPECT_EQ(FreedmanDiaconisBins(1000000, 1, 0, 1e6L, 50), 50);
    EXPECT_EQ(FreedmanDiaconisBins(1, 1, 5, 5), 1);
}

TEST(PlotHistogram, TheFittedCurveHasTheHistogramsArea) {
    // n x width x density integrates to n x width: 500 x 0.25 = 125, over +-12 sd.
    std::vector<Float> x, y;
    NormalCounts(500, 0.25L, 10, 2, 10 - 24, 10 + 24, 4001, x, y);
    Float area = 0;
    for (std::size_t i = 1; i < x.size(); ++i) area += (x[i] - x[i - 1]) * (y[i] + y[i - 1]) / 2;
    EXPECT_NEAR(double(area), 125, 1e-6);
    // Its peak is n x width / (sd sqrt(2 pi)) = 125 / 5.0132565 = 24.934 at the mean.
    EXPECT_NEAR(double(y[2000]), 24.9339, 1e-4);
}

// Text widths of 7 pixels a character, lines of 12; every draw is kept with the clip in
// force at the time.
class PlotCanvas : public Platform::TCanvas {
public:
    struct Shape {
        Platform::TRect clip;  // Left = Right = 0: none
        Platform::TRect box;   // a fill's rectangle, or a polyline's extent
    };
    std::vector<Shape> fills, polylines;
    std::vector<std::pair<std::string, std::string>> texts;  // face, text
    std::vector<Platform::TRect> clips;
    Platform::TRect clip;

    std::int32_t TextWidth(std::string_view text) override { return std::int32_t(7 * text.size()); }
    std::int32_t DrawText(std::string_view text, Platform::TRect& rect, std::uint32_t flags) override {
        if (flags & Platform::TextFlags::CalcRect) {
            rect.Right = rect.Left + TextWidth(text);
            rect.Bottom = rect.Top + 12;
        } else {
            texts.emplace_back(Font().Name, std::string(text));
        }
        return 12;
    }
    void FillRect(const Platform::TRect& rect, Platform::TColor) override { fills.push_back({clip, rect}); }
    void Polyline(std::span<const Platform::TPointF> points, Platform::TColor, double) override {
        Platform::TRect box{1 << 30, 1 << 30, -(1 << 30), -(1 << 30)};
        for (const auto& p : points)
            box = {std::min(box.Left, std::int32_t(std::floor(p.X))), std::min(box.Top, std::int32_t(std::floor(p.Y))),
                   std::max(box.Right, std::int32_t(std::ceil(p.X))), std::max(box.Bottom, std::int32_t(std::ceil(p.Y)))};
        polylines.push_back({clip, box});
    }
    void SetClipRect(const Platform::TRect& rect) override {
        clip = rect;
        clips.push_back(rect);
    }
    void ResetClipRect() override { clip = {}; }
};

TEST(PlotChart, DataIsClippedToThePlotAreaAndTheCaptionGoesThroughTheMathLabel) {
    // 0, 1, ..., 99 and an outlier: 4 bins of 25; the curve runs over the bars.
    Kornumglobals::TKorFloatVector values;
    values.SetLength(100);
    for (Integer i = 0; i < 100; ++i) values[i] = i;
    TKorPlot plot = SampleHistogram(values, 0, 99, 49.5L, 29.01L, 49.5L, 4);
    PlotCanvas canvas;
    plot.Draw(canvas, {0, 0, 640, 400});
    const Platform::TRect area = plot.PlotArea();
    EXPECT_GT(area.Width(), 400);
    EXPECT_GT(area.Height(), 250);
    ASSERT_EQ(canvas.clips.size(), 1u);
    EXPECT_EQ(canvas.clips[0], area);

    // Four bars, all drawn under the clip, standing on the axis's bottom; the curve too.
    std::size_t bars = 0;
    for (const auto& fill : canvas.fills)
        if (fill.clip == area) {
            ++bars;
            EXPECT_EQ(fill.box.Bottom, area.Bottom);
        }
    EXPECT_EQ(bars, 4u);
    ASSERT_FALSE(canvas.polylines.empty());
    EXPECT_EQ(canvas.polylines[0].clip, area);
    EXPECT_GE(canvas.polylines[0].box.Left, area.Left);
    EXPECT_LE(canvas.polylines[0].box.Right, area.Right);

    // The y axis counts to 25 in round steps, its top tick at the top of the area.
    EXPECT_EQ(plot.YTicks().Labels.front(), "0");
    EXPECT_EQ(plot.YTicks().Hi, plot.YTicks().Values.back());
    EXPECT_GE(plot.YTicks().Hi, 25);

    // "n = 100, ^m = 49.5, ^s = 29.01": mu and sigma are the Symbol face's m and s.
    std::string caption, symbols;
    for (const auto& [face, text] : canvas.texts) {
        if (face == "Symbol") symbols += text;
    }
    EXPECT_EQ(symbols, "ms");
    for (const char* label : {"count", "value", "0", "25"}) {
        bool found = false;
        for (const auto& t : canvas.texts) found = found || t.second == label;
        EXPECT_TRUE(found) << label;
    }
}

TEST(PlotChart, AComponentsHistogramIsTheSamplesHistogram) {
    // The component's plot reads its sorted copy when every value is finite, and the
    // values themselves otherwise; either way the picture is the one drawn from the values.
    const Float inf = std::numeric_limits<Float>::infinity();
    Platform::RandSeed(11);
    Kornumglobals::TKorFloatVector normal;
    normal.SetLength(5000);
    for (Integer i = 0; i < normal.Length(); ++i) normal[i] = std::round(Platform::Random() * Platform::Random() * 1000) / 8;
    for (const Kornumglobals::TKorFloatVector& values :
         {normal, Kornumglobals::TKorFloatVector{3, 3, 3}, Kornumglobals::TKorFloatVector{1, 2, inf, -inf, 2, 5}})
        for (Integer bins : {0, 13}) {
            KornumDescStats::TKorDescStats stats(nullptr);
            stats.SetValues(values);
            TKorPlot fromStats = SampleHistogram(stats, bins);
            TKorPlot fromValues = SampleHistogram(values, stats.Minimum(), stats.Maximum(), stats.Mean(), stats.StdDev(),
                                                  stats.IQR(), bins);
            PlotCanvas a, b;
            fromStats.Draw(a, {0, 0, 640, 400});
            fromValues.Draw(b, {0, 0, 640, 400});
            EXPECT_EQ(a.texts, b.texts);
            ASSERT_EQ(a.fills.size(), b.fills.size());
            for (std::size_t i = 0; i < a.fills.size(); ++i) EXPECT_EQ(a.fills[i].box, b.fills[i].box) << i;
            ASSERT_EQ(a.polylines.size(), b.polylines.size());
            for (std::size_t i = 0; i < a.polylines.size(); ++i) EXPECT_EQ(a.polylines[i].box, b.polylines[i].box) << i;
        }
}

TEST(PlotChart, ALogarithmicAxisBreaksTheLineWhereItCannotGo) {
    TKorPlot plot;
    plot.SetYScale(TScale::Log10);
    plot.AddLine({0, 1, 2, 3, 4}, {1e-10L, 1e-5L, 0, 1e-5L, 1e-10L}, Platform::clBlack, "");
    PlotCanvas canvas;
    plot.Draw(canvas, {0, 0, 400, 300});
    ASSERT_EQ(canvas.polylines.size(), 2u);  // 0, 1 | 3, 4
    EXPECT_EQ(plot.YTicks().Labels.front(), "1e-10");
    EXPECT_THROW(plot.AddLine({0, 1}, {0}, Platform::clBlack, ""), Platform::Exception);
    EXPECT_THROW(plot.SetXRange(1, 1), Platform::Exception);
}

TEST(PlotCanvasOutput, AnSvgKeepsAPolylineAsOneElement) {
    KornumCanvas::TKorImageCanvas svg(KornumCanvas::TImageFormat::Svg, 20, 20, Platform::clWhite);
    const Platform::TPointF points[] = {{1.5, 2}, {3, 4.25}, {10, 0}};
    svg.Polyline(points, Platform::TColor::RGB(255, 0, 0), 2);
    const Platform::TPointF one[] = {{1, 1}};
    svg.Polyline(one, Platform::clBlack, 1);  // nothing to join
    const std::string document = svg.Contents();
    EXPECT_NE(document.find("<polyline points=\"1.50,2.00 3.00,4.25 10.00,0.00\" fill=\"none\" stroke-width=\"2.00\""),
              std::string::npos)
        << document;
    EXPECT_EQ(document.find("<polyline", document.find("<polyline") + 1), std::string::npos);
}

}  // namespace
