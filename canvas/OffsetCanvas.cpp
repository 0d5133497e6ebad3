// A canvas that hands every draw, moved, to another canvas.
#include "KornumPlot.h"

#include <algorithm>
#include <vector>

namespace KornumPlot {

TKorOffsetCanvas::TKorOffsetCanvas(Platform::TCanvas& Target, std::int32_t DX, std::int32_t DY, bool Measure)
    : target_(Target), dx_(DX), dy_(DY), measure_(Measure) {
    SetTextEncoding(Target.TextEncoding());
}

// The target draws with this canvas's font and reads text as this canvas does.
void TKorOffsetCanvas::Prepare() {
    target_.Font().Assign(Font());
    target_.SetTextEncoding(TextEncoding());
}

std::int32_t TKorOffsetCanvas::TextWidth(std::string_view Text) {
    Prepare();
    return target_.TextWidth(Text);
}

std::int32_t TKorOffsetCanvas::DrawText(std::string_view Text, Platform::TRect& Rect, std::uint32_t Flags) {
    Prepare();
    if (measure_ || (Flags & Platform::TextFlags::CalcRect)) {
        Platform::TRect measured = Rect;
        const std::int32_t height = target_.DrawText(Text, measured, Flags | Platform::TextFlags::CalcRect);
        if (Flags & Platform::TextFlags::CalcRect) Rect = measured;
        else drawnRight_ = std::max(drawnRight_, measured.Right);
        return height;
    }
    Platform::TRect moved = Rect.Offset(dx_, dy_);
    const std::int32_t height = target_.DrawText(Text, moved, Flags);
    drawnRight_ = std::max(drawnRight_, Rect.Left + TextWidth(Text));
    Rect = moved.Offset(-dx_, -dy_);
    return height;
}

void TKorOffsetCanvas::FillRect(const Platform::TRect& Rect, Platform::TColor Color) {
    if (!measure_) target_.FillRect(Rect.Offset(dx_, dy_), Color);
}

void TKorOffsetCanvas::FrameRect(const Platform::TRect& Rect, Platform::TColor Color) {
    if (!measure_) target_.FrameRect(Rect.Offset(dx_, dy_), Color);
}

void TKorOffsetCanvas::DrawLine(std::int32_t X1, std::int32_t Y1, std::int32_t X2, std::int32_t Y2,
                                Platform::TColor Color) {
    if (!measure_) target_.DrawLine(X1 + dx_, Y1 + dy_, X2 + dx_, Y2 + dy_, Color);
}

void TKorOffsetCanvas::Polyline(std::span<const Platform::TPointF> Points, Platform::TColor Color, double Width) {
    if (measure_) return;
    std::vector<Platform::TPointF> moved(Points.begin(), Points.end());
    for (Platform::TPointF& p : moved) p = {p.X + dx_, p.Y + dy_};
    target_.Polyline(moved, Color, Width);
}

void TKorOffsetCanvas::SetClipRect(const Platform::TRect& Rect) {
    if (!measure_) target_.SetClipRect(Rect.Offset(dx_, dy_));
}

void TKorOffsetCanvas::ResetClipRect() {
    if (!measure_) target_.ResetClipRect();
}

Platform::TColor TKorOffsetCanvas::Resolve(Platform::TColor Color) const { return target_.Resolve(Color); }

}  // namespace KornumPlot
