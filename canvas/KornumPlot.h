/// @file
/// A small plotting layer over `Platform::TCanvas`: axes with ticks at round values, bars,
/// lines, a legend and a title drawn by the math label, so that a histogram or a density
/// curve looks the same on the Cairo canvas (SVG, PNG, PDF) and on any other canvas.
///
/// Values are `Float`s and keep their range: an axis from 1e-300 to 1e-290, or a
/// logarithmic axis down to 1e-4000, is laid out from the values themselves; only the
/// pixels are `double`s.
#pragma once

#include <kornum/KornumDescStats.h>
#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>
#include <kornum/PlatformGraphics.h>

#include <cstdint>
#include <string>
#include <vector>

/// The plotting layer (library kornum_canvas): tick values, histograms and `TKorPlot`,
/// a chart that draws on any `Platform::TCanvas`.
KORNUM_EXPORT_BEGIN
namespace KornumPlot {

using Kornumglobals::Float;
using Kornumglobals::Int64;
using Kornumglobals::Integer;
using Kornumglobals::TKorFloatVector;

/// The ticks of an axis: values at round numbers and the texts that label them.
struct TTicks {
    /// The tick values, ascending: within the data's range on a linear axis (unless
    /// extended), within [Lo, Hi] on a logarithmic one.
    std::vector<Float> Values;
    /// One label per value: the shortest text that tells the ticks apart ("0.0005",
    /// "2e-291", "1e-300").
    std::vector<std::string> Labels;
    /// The data's range widened outwards to the nearest multiples of the step (to whole
    /// steps of decades on a logarithmic axis).
    Float Lo = 0;
    /// The upper end of the widened range.
    Float Hi = 1;
};

/// At most MaxTicks (2 or more) ticks at multiples of 1, 2 or 5 times a power of ten
/// within [Lo, Hi], as many as fit. A range without width (one value, or all values
/// equal) is widened around its value by 5% of its magnitude (by 0.5 around 0) first.
/// Lo and Hi must be finite with Lo <= Hi; otherwise `Platform::Exception` is raised.
/// With Extend the ticks reach the widened range's ends (one more at each end at most).
TTicks NiceTicks(Float Lo, Float Hi, Integer MaxTicks = 7, bool Extend = false);

/// Ticks of a logarithmic axis over [Lo, Hi] (both positive, Lo <= Hi): powers of ten
/// every 1, 2 or 5 times a power of ten decades, at most MaxTicks (2 or more) of them.
/// Other arguments raise `Platform::Exception`.
TTicks LogTicks(Float Lo, Float Hi, Integer MaxTicks = 7);

/// Counts of values in bins of equal width.
struct THistogram {
    /// The lower edge of the first bin.
    Float Lo = 0;
    /// The width of every bin.
    Float Width = 1;
    /// The number of values in each bin; a bin holds [edge, next edge), the last one its
    /// upper edge as well.
    std::vector<Int64> Counts;
};

/// The number of bins by the Freedman-Diaconis rule: width 2 IQR / cube root of N over the
/// range Max - Min, rounded up, from 1 to Most. Without a usable IQR (zero or not finite)
/// it falls back to Sturges' rule, log2 N + 1 bins; a range without width has one bin.
Integer FreedmanDiaconisBins(Int64 N, Float IQR, Float Min, Float Max, Integer Most = 200);

/// Counts the finite values of Values into Bins bins (1 or more) from Min to Max, which
/// must be finite with Min <= Max; values outside [Min, Max] and NaN or infinities are
/// left out. Values are placed in double precision: a bin edge moves by a few parts in
/// 10^16 of the range at most. When Min = Max the one bin is centred on the value, 10% of its magnitude
/// wide (1 wide at 0). Other arguments raise `Platform::Exception`.
THistogram Histogram(const TKorFloatVector& Values, Float Min, Float Max, Integer Bins);

/// `Histogram` of values in ascending order without NaN (as
/// `KornumDescStats::TKorDescStats::SortedValues` holds them), with the same counts: the
/// end of each bin is found by a binary search, O(Bins log n) instead of a pass over the
/// values. Raises what `Histogram` raises.
THistogram SortedHistogram(const TKorFloatVector& Ascending, Float Min, Float Max, Integer Bins);

/// The normal density of Mean and StdDev scaled to a histogram's counts: Count x BinWidth
/// x the density, so that the curve's area equals the histogram's. X and Y receive Points
/// points from Lo to Hi, laid out as `KornumStatistics::NormalPDFValues` lays them out,
/// which raises what it raises for them.
void NormalCounts(Float Count, Float BinWidth, Float Mean, Float StdDev, Float Lo, Float Hi, Integer Points,
                  std::vector<Float>& X, std::vector<Float>& Y);

/// How an axis maps values to pixels.
enum class TScale {
    Linear,  ///< Equal steps of value are equal steps of pixels.
    Log10    ///< Equal ratios of value are equal steps; values <= 0 are not drawn.
};

/// A canvas that moves every draw by (DX, DY) onto another canvas, with this canvas's
/// font and text encoding; a control that draws from its own origin draws where it is
/// placed. In measuring mode nothing reaches the target; `DrawnRight` still says how far
/// the text went.
class TKorOffsetCanvas : public Platform::TCanvas {
public:
    /// Draws onto Target moved by (DX, DY), or, when Measure is true, only measures.
    TKorOffsetCanvas(Platform::TCanvas& Target, std::int32_t DX, std::int32_t DY, bool Measure = false);
    /// The target's width of the text in this canvas's font.
    std::int32_t TextWidth(std::string_view Text) override;
    /// Draws the text on the target with Rect moved, and moves Rect back.
    std::int32_t DrawText(std::string_view Text, Platform::TRect& Rect, std::uint32_t Flags) override;
    /// Fills Rect, moved, on the target.
    void FillRect(const Platform::TRect& Rect, Platform::TColor Color) override;
    /// Frames Rect, moved, on the target.
    void FrameRect(const Platform::TRect& Rect, Platform::TColor Color) override;
    /// Draws the line, moved, on the target.
    void DrawLine(std::int32_t X1, std::int32_t Y1, std::int32_t X2, std::int32_t Y2, Platform::TColor Color) override;
    /// Draws the polyline, moved, on the target.
    void Polyline(std::span<const Platform::TPointF> Points, Platform::TColor Color, double Width = 1) override;
    /// Clips the target to Rect, moved.
    void SetClipRect(const Platform::TRect& Rect) override;
    /// Removes the target's clip rectangle.
    void ResetClipRect() override;
    /// The target's colour for Color.
    Platform::TColor Resolve(Platform::TColor Color) const override;
    /// The right edge, in this canvas's coordinates, of the text drawn or measured so far
    /// (0 before any).
    std::int32_t DrawnRight() const noexcept { return drawnRight_; }

private:
    void Prepare();
    Platform::TCanvas& target_;
    std::int32_t dx_, dy_;
    bool measure_;
    std::int32_t drawnRight_ = 0;
};

/// A chart: bars and lines over an x axis and a y axis with ticks at round values, a
/// title, axis captions and a legend. Build it, then `Draw` it on a canvas.
///
/// The x axis spans `SetXRange` (or the data's x range); the y axis spans the data's y
/// range widened to round ticks, from 0 on a linear axis when no value is negative. Bars
/// and lines are clipped to the plot area, the lines drawn over the bars in the order
/// added. Tick labels are never allowed to overlap: fewer ticks are taken until they fit.
class TKorPlot {
public:
    /// The title, a caption of the math label (`^m` draws mu), drawn centred on top.
    void SetTitle(const std::string& Caption) { title_ = Caption; }
    /// The caption under the x axis.
    void SetXLabel(const std::string& Text) { xLabel_ = Text; }
    /// The caption over the y axis.
    void SetYLabel(const std::string& Text) { yLabel_ = Text; }
    /// The x axis's span; Lo < Hi, both finite, or `Platform::Exception` is raised.
    void SetXRange(Float Lo, Float Hi);
    /// How the y axis maps values (linear by default).
    void SetYScale(TScale Scale) { yScale_ = Scale; }

    /// Bars from Left, one every Step: bar i stands over [Left + i Step, Left + i Step +
    /// Fill Step] from the axis's bottom (0 on a linear axis) to Heights[i]. Fill 1 gives
    /// a histogram's touching bars, less separate bars. Legend names them (none if empty).
    void AddBars(Float Left, Float Step, const std::vector<Float>& Heights, Float Fill, Platform::TColor Color,
                 const std::string& Legend);
    /// A line through the points (X[i], Y[i]), 2 pixels wide; X and Y must have the same
    /// length or `Platform::Exception` is raised. On a logarithmic axis a value <= 0
    /// breaks the line.
    void AddLine(const std::vector<Float>& X, const std::vector<Float>& Y, Platform::TColor Color,
                 const std::string& Legend);

    /// Draws the chart into Bounds (a plot without data draws its frame and title).
    void Draw(Platform::TCanvas& Canvas, const Platform::TRect& Bounds);

    /// The rectangle inside the axes, as the last `Draw` laid it out.
    const Platform::TRect& PlotArea() const noexcept { return area_; }
    /// The x axis's ticks of the last `Draw`.
    const TTicks& XTicks() const noexcept { return xTicks_; }
    /// The y axis's ticks of the last `Draw`; their Lo and Hi are the y axis's span.
    const TTicks& YTicks() const noexcept { return yTicks_; }

private:
    struct Series {
        bool bars;
        std::vector<Float> x, y;  // bars: x[0] = Left, x[1] = Step, x[2] = Fill
        Platform::TColor color;
        std::string legend;
    };
    void Layout(Platform::TCanvas& canvas, const Platform::TRect& bounds);
    double PixelX(Float x) const;
    double PixelY(Float y) const;
    void DrawSeries(Platform::TCanvas& canvas) const;
    void DrawAxes(Platform::TCanvas& canvas) const;
    void DrawLegend(Platform::TCanvas& canvas) const;

    std::string title_, xLabel_, yLabel_;
    bool xRangeSet_ = false;
    Float xLo_ = 0, xHi_ = 1;          // as set by SetXRange
    Float viewXLo_ = 0, viewXHi_ = 1;  // as the last Draw laid it out
    TScale yScale_ = TScale::Linear;
    std::vector<Series> series_;
    Platform::TRect area_;
    TTicks xTicks_, yTicks_;
    std::int32_t lineHeight_ = 0, titleHeight_ = 0;
};

/// A sample's histogram with the normal density of Mean and StdDev over it: the finite
/// values counted in Bins bins from Min to Max, the sample's extremes (when either is not
/// finite, from the least to the greatest finite value, found here) (Bins 0: by
/// `FreedmanDiaconisBins` with IQR, at most 200), the curve scaled by `NormalCounts`
/// (left out when StdDev is not positive or either is not finite), and the title
/// `n = N, ^m = MEAN, ^s = SD` with five significant digits. A sample without a finite
/// value raises `Platform::Exception`.
TKorPlot SampleHistogram(const TKorFloatVector& Values, Float Min, Float Max, Float Mean, Float StdDev, Float IQR,
                         Integer Bins = 0);

/// The same picture of a descriptive-statistics component's values, from its statistics
/// (`Population` chooses the standard deviation): when every value is finite the bins are
/// counted from its ascending copy by `SortedHistogram`, without a pass over the values.
/// An open update bracket is not closed: the statistics are those last computed.
TKorPlot SampleHistogram(const KornumDescStats::TKorDescStats& Stats, Integer Bins = 0);

/// Loads the faces a plot draws with and renders their common characters once, so that
/// a later `SavePlot` finds them in Cairo's caches. A program may call it on a thread of
/// its own while it reads its data; it draws nothing anyone sees.
void PrepareFonts() noexcept;

/// Draws Plot on a white image of Width x Height pixels and writes it to Path as its
/// extension asks (`.svg`, `.png` or `.pdf`, else `Platform::Exception`). Everything that
/// can fail in drawing fails before the file is opened; a file that cannot be written
/// raises `KornumCanvas::EWriteError` and is left out, never half written.
void SavePlot(TKorPlot& Plot, const std::string& Path, std::int32_t Width = 800, std::int32_t Height = 500);

}  // namespace KornumPlot
KORNUM_EXPORT_END
