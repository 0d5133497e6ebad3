// The chart: data ranges, layout of the axes and their labels, bars, lines and legend.
#include "KornumPlot.h"

#include <kornum/KornumMathLabel.h>
#include <kornum/PlatformExceptions.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace KornumPlot {
namespace {

constexpr std::int32_t Margin = 10, TickLength = 5, LabelGap = 4;
constexpr std::int32_t TextSize = 10, TitleSize = 14;
const Platform::TColor GridColor = Platform::TColor::RGB(225, 225, 225);
const Platform::TColor FrameColor = Platform::TColor::RGB(60, 60, 60);

// Pixels far outside the image are held back, so that a curve running off the plot stays
// a curve Cairo can stroke.
double Held(double pixel) { return std::clamp(pixel, -1e6, 1e6); }

std::int32_t Round(double pixel) { return std::int32_t(std::lround(Held(pixel))); }

Platform::TColor Darker(Platform::TColor c) {
    return Platform::TColor::RGB(std::uint8_t(c.Red() * 3 / 5), std::uint8_t(c.Green() * 3 / 5),
                                 std::uint8_t(c.Blue() * 3 / 5));
}

std::int32_t TextHeight(Platform::TCanvas& canvas) {
    Platform::TRect r{0, 0, 0, 0};
    return canvas.DrawText("0", r, Platform::TextFlags::CalcRect);
}

void UseFont(Platform::TCanvas& canvas, std::int32_t size) {
    canvas.Font().Size = size;
    canvas.Font().Style = 0;
    canvas.Font().Color = Platform::clBlack;
}

void Write(Platform::TCanvas& canvas, const std::string& text, Platform::TRect rect, std::uint32_t flags) {
    canvas.DrawText(text, rect, flags | Platform::TextFlags::NoPrefix | Platform::TextFlags::SingleLine);
}

}  // namespace

void TKorPlot::SetXRange(Float Lo, Float Hi) {
    if (!std::isfinite(Lo) || !std::isfinite(Hi) || !(Lo < Hi))
        throw Platform::Exception("the x axis needs a finite range with its low end first");
    xRangeSet_ = true;
    xLo_ = Lo;
    xHi_ = Hi;
}

void TKorPlot::AddBars(Float Left, Float Step, const std::vector<Float>& Heights, Float Fill, Platform::TColor Color,
                       const std::string& Legend) {
    series_.push_back({true, {Left, Step, Fill}, Heights, Color, Legend});
}

void TKorPlot::AddLine(const std::vector<Float>& X, const std::vector<Float>& Y, Platform::TColor Color,
                       const std::string& Legend) {
    if (X.size() != Y.size()) throw Platform::Exception("a line needs as many y values as x values");
    series_.push_back({false, X, Y, Color, Legend});
}

void TKorPlot::Layout(Platform::TCanvas& canvas, const Platform::TRect& bounds) {
    // The data's ranges: x over the bars' edges and the lines' points, y over the values.
    Float xLo = std::numeric_limits<Float>::infinity(), xHi = -xLo, yLo = xLo, yHi = -xLo;
    const bool log = yScale_ == TScale::Log10;
    for (const Series& s : series_) {
        if (s.bars) {
            xLo = std::min(xLo, s.x[0]);
            xHi = std::max(xHi, s.x[0] + s.x[1] * Float(s.y.size()));
        } else if (!s.x.empty()) {
            xLo = std::min(xLo, *std::min_element(s.x.begin(), s.x.end()));
            xHi = std::max(xHi, *std::max_element(s.x.begin(), s.x.end()));
        }
        for (Float y : s.y) {
            if (!std::isfinite(y) || (log && !(y > 0))) continue;
            yLo = std::min(yLo, y);
            yHi = std::max(yHi, y);
        }
    }
    if (xRangeSet_) {
        xLo = xLo_;
        xHi = xHi_;
    } else if (!(xLo < xHi)) {
        xLo = xLo <= xHi ? xLo - 0.5L : 0;
        xHi = xLo + 1;
    }
    viewXLo_ = xLo;
    viewXHi_ = xHi;
    if (!(yLo <= yHi)) {
        yLo = log ? 0.1L : 0;
        yHi = 1;
    }
    if (!log) yLo = std::min(yLo, Float(0));  // bars and densities stand on 0

    UseFont(canvas, TextSize);
    lineHeight_ = TextHeight(canvas);
    UseFont(canvas, TitleSize);
    titleHeight_ = title_.empty() ? 0 : TextHeight(canvas) + 6;
    UseFont(canvas, TextSize);

    area_.Top = bounds.Top + Margin + titleHeight_ + (yLabel_.empty() ? 0 : lineHeight_ + LabelGap) + lineHeight_ / 2;
    area_.Bottom = bounds.Bottom - Margin - (xLabel_.empty() ? 0 : lineHeight_ + LabelGap) - lineHeight_ -
                   TickLength - LabelGap;
    const Integer yCount = std::clamp<Integer>((area_.Bottom - area_.Top) / (3 * std::max(1, lineHeight_)), 2, 8);
    yTicks_ = log ? LogTicks(yLo, yHi, yCount) : NiceTicks(yLo, yHi, yCount, true);
    std::int32_t widest = 0;
    for (const std::string& label : yTicks_.Labels) widest = std::max(widest, canvas.TextWidth(label));
    area_.Left = bounds.Left + Margin + widest + LabelGap + TickLength;

    // The most x ticks whose labels keep a gap between them; the last label's half
    // width is kept inside the image.
    for (Integer count = 10; count >= 2; --count) {
        xTicks_ = NiceTicks(xLo, xHi, count);
        const std::int32_t lastHalf = xTicks_.Labels.empty() ? 0 : canvas.TextWidth(xTicks_.Labels.back()) / 2;
        area_.Right = bounds.Right - Margin - std::max<std::int32_t>(lastHalf, Margin);
        bool fits = true;
        for (std::size_t i = 1; i < xTicks_.Values.size() && fits; ++i) {
            const double room = PixelX(xTicks_.Values[i]) - PixelX(xTicks_.Values[i - 1]);
            const double need =
                (canvas.TextWidth(xTicks_.Labels[i]) + canvas.TextWidth(xTicks_.Labels[i - 1])) / 2.0 + 3 * LabelGap;
            fits = room >= need;
        }
        if (fits) break;
    }
}

double TKorPlot::PixelX(Float x) const {
    return Held(double(Float(area_.Left) + (x - viewXLo_) / (viewXHi_ - viewXLo_) * Float(area_.Width())));
}

double TKorPlot::PixelY(Float y) const {
    Float at;
    if (yScale_ == TScale::Log10)
        at = (std::log10(y) - std::log10(yTicks_.Lo)) / (std::log10(yTicks_.Hi) - std::log10(yTicks_.Lo));
    else
        at = (y - yTicks_.Lo) / (yTicks_.Hi - yTicks_.Lo);
    return Held(double(Float(area_.Bottom) - at * Float(area_.Height())));
}

void TKorPlot::DrawSeries(Platform::TCanvas& canvas) const {
    canvas.SetClipRect(area_);
    for (const Series& s : series_) {
        if (s.bars) {
            const std::int32_t base = yScale_ == TScale::Log10 ? area_.Bottom : Round(PixelY(0));
            for (std::size_t i = 0; i < s.y.size(); ++i) {
                const Float h = s.y[i];
                if (!(h > 0 || h < 0) || (yScale_ == TScale::Log10 && !(h > 0))) continue;
                const Float left = s.x[0] + Float(i) * s.x[1];
                std::int32_t x0 = Round(PixelX(left)), x1 = Round(PixelX(left + s.x[2] * s.x[1]));
                if (x1 <= x0) x1 = x0 + 1;
                const std::int32_t top = Round(PixelY(h));
                const Platform::TRect bar{x0, std::min(top, base), x1, std::max(top, base)};
                canvas.FillRect(bar, s.color);
                if (x1 - x0 >= 4) canvas.FrameRect(bar, Darker(s.color));
            }
        } else {
            // A run of drawable points; a value a logarithmic axis cannot show breaks it.
            std::vector<Platform::TPointF> run;
            const auto flush = [&] {
                canvas.Polyline(run, s.color, 2);
                run.clear();
            };
            for (std::size_t i = 0; i < s.x.size(); ++i) {
                if (!std::isfinite(s.y[i]) || (yScale_ == TScale::Log10 && !(s.y[i] > 0))) {
                    flush();
                    continue;
                }
                run.push_back({PixelX(s.x[i]), PixelY(s.y[i])});
            }
            flush();
        }
    }
    canvas.ResetClipRect();
}

void TKorPlot::DrawAxes(Platform::TCanvas& canvas) const {
    UseFont(canvas, TextSize);
    const std::int32_t half = lineHeight_ / 2;
    for (std::size_t i = 0; i < yTicks_.Values.size(); ++i) {
        const std::int32_t y = Round(PixelY(yTicks_.Values[i]));
        canvas.DrawLine(area_.Left - TickLength, y, area_.Left - 1, y, FrameColor);
        Write(canvas, yTicks_.Labels[i], {area_.Left - 1000, y - half, area_.Left - TickLength - LabelGap, y + half},
              Platform::TextFlags::Right);
    }
    for (std::size_t i = 0; i < xTicks_.Values.size(); ++i) {
        const std::int32_t x = Round(PixelX(xTicks_.Values[i]));
        canvas.DrawLine(x, area_.Bottom, x, area_.Bottom + TickLength - 1, FrameColor);
        const std::int32_t top = area_.Bottom + TickLength + LabelGap;
        Write(canvas, xTicks_.Labels[i], {x - 500, top, x + 500, top + lineHeight_}, Platform::TextFlags::Center);
    }
    canvas.FrameRect({area_.Left - 1, area_.Top - 1, area_.Right + 1, area_.Bottom + 1}, FrameColor);
    if (!xLabel_.empty()) {
        const std::int32_t top = area_.Bottom + TickLength + LabelGap + lineHeight_ + LabelGap;
        Write(canvas, xLabel_, {area_.Left, top, area_.Right, top + lineHeight_}, Platform::TextFlags::Center);
    }
    if (!yLabel_.empty()) {
        const std::int32_t top = area_.Top - half - LabelGap - lineHeight_;
        Write(canvas, yLabel_, {Margin, top, area_.Right, top + lineHeight_}, Platform::TextFlags::Left);
    }
}

void TKorPlot::DrawLegend(Platform::TCanvas& canvas) const {
    std::vector<const Series*> named;
    for (const Series& s : series_)
        if (!s.legend.empty()) named.push_back(&s);
    if (named.empty()) return;
    UseFont(canvas, TextSize);
    constexpr std::int32_t Swatch = 22, Pad = 6;
    std::int32_t widest = 0;
    for (const Series* s : named) widest = std::max(widest, canvas.TextWidth(s->legend));
    const std::int32_t w = Pad + Swatch + Pad + widest + Pad, row = lineHeight_ + 4;
    const std::int32_t h = Pad + row * std::int32_t(named.size()) + Pad - 4;
    // The corner where the fewest points and bar tops lie.
    const Platform::TRect corners[] = {
        {area_.Right - Pad - w, area_.Top + Pad, area_.Right - Pad, area_.Top + Pad + h},
        {area_.Left + Pad, area_.Top + Pad, area_.Left + Pad + w, area_.Top + Pad + h},
        {area_.Right - Pad - w, area_.Bottom - Pad - h, area_.Right - Pad, area_.Bottom - Pad},
    };
    Platform::TRect box = corners[0];
    std::size_t fewest = std::numeric_limits<std::size_t>::max();
    for (const Platform::TRect& corner : corners) {
        std::size_t inside = 0;
        for (const Series& s : series_)
            for (std::size_t i = 0; i < s.y.size(); ++i) {
                const Float x = s.bars ? s.x[0] + (Float(i) + s.x[2] / 2) * s.x[1] : s.x[i];
                const double px = PixelX(x), py = PixelY(s.y[i]);
                // A bar covers everything under its top.
                if (px >= corner.Left && px < corner.Right && py < corner.Bottom && (s.bars || py >= corner.Top))
                    ++inside;
            }
        if (inside < fewest) {
            fewest = inside;
            box = corner;
        }
    }
    canvas.FillRect(box, Platform::clWhite);
    canvas.FrameRect(box, Platform::TColor::RGB(170, 170, 170));
    for (std::size_t i = 0; i < named.size(); ++i) {
        const std::int32_t top = box.Top + Pad + row * std::int32_t(i), middle = top + lineHeight_ / 2;
        const Series& s = *named[i];
        if (s.bars) {
            canvas.FillRect({box.Left + Pad, middle - 5, box.Left + Pad + Swatch, middle + 5}, s.color);
            canvas.FrameRect({box.Left + Pad, middle - 5, box.Left + Pad + Swatch, middle + 5}, Darker(s.color));
        } else {
            const Platform::TPointF line[] = {{double(box.Left + Pad), middle + 0.5},
                                              {double(box.Left + Pad + Swatch), middle + 0.5}};
            canvas.Polyline(line, s.color, 2);
        }
        Write(canvas, s.legend, {box.Left + Pad + Swatch + Pad, top, box.Right, top + lineHeight_},
              Platform::TextFlags::Left);
    }
}

void TKorPlot::Draw(Platform::TCanvas& Canvas, const Platform::TRect& Bounds) {
    Layout(Canvas, Bounds);
    for (Float y : yTicks_.Values)
        Canvas.DrawLine(area_.Left, Round(PixelY(y)), area_.Right - 1, Round(PixelY(y)), GridColor);
    DrawSeries(Canvas);
    DrawAxes(Canvas);
    DrawLegend(Canvas);
    if (title_.empty()) return;
    KornumMathLabel::TKorMathLabel label(nullptr);
    label.SetShowAccelChar(false);
    label.SetCaption(title_);
    label.Font().Size = TitleSize;
    label.Font().Color = Platform::clBlack;
    label.SetBounds(0, 0, Bounds.Width(), titleHeight_);
    // Measured first, then centred over the plot area.
    TKorOffsetCanvas measure(Canvas, 0, 0, true);
    label.Paint(measure);
    const std::int32_t left = std::max(Bounds.Left, (area_.Left + area_.Right - measure.DrawnRight()) / 2);
    TKorOffsetCanvas placed(Canvas, left, Bounds.Top + Margin);
    label.Paint(placed);
}

}  // namespace KornumPlot
