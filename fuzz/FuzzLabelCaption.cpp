// Any bytes as the caption of `kornum label`: the UTF-8 check, the quoting of a caption
// that fails it, and the math label painting on a canvas that reads UTF-8. A caption that
// is UTF-8 paints one whole character per draw, in order; one that is not raises
// EConvertError before the first draw; nothing else may happen.
#include "cli/Output.h"

#include <kornum/KornumMathLabel.h>
#include <kornum/PlatformExceptions.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace {

void Check(bool condition) {
    if (!condition) std::abort();
}

// Measures as the real canvases do, reading text through its encoding (and so refusing
// text that is not UTF-8), and keeps every draw.
class RecordingCanvas : public Platform::TCanvas {
public:
    struct Draw {
        std::string text, face;
        std::int32_t left;
    };
    std::vector<Draw> draws;

    std::int32_t TextWidth(std::string_view text) override {
        return std::int32_t(7 * Platform::DecodeText(text, Font().Name, TextEncoding()).size());
    }
    std::int32_t DrawText(std::string_view text, Platform::TRect& rect, std::uint32_t flags) override {
        const std::int32_t width = TextWidth(text);
        if (flags & Platform::TextFlags::CalcRect) {
            rect.Right = rect.Left + width;
            rect.Bottom = rect.Top + 12;
        } else {
            draws.push_back({std::string(text), Font().Name, rect.Left});
        }
        return 12;
    }
};

// Paints the caption with one set of the label's settings and checks what was drawn.
void Paint(const std::string& caption, bool utf8, std::int32_t width, bool effect, bool centred) {
    KornumMathLabel::TKorMathLabel label(nullptr);
    label.SetCaption(caption);
    label.SetBounds(0, 0, width, 30);
    label.SetShowAccelChar(!effect);
    label.SetEffect(effect ? Kornumcontrols::TLabelEffect::Raised : Kornumcontrols::TLabelEffect::None);
    label.SetEnabled(!centred);
    if (centred) label.SetLayout(Kornumcontrols::TTextLayout::Center);
    RecordingCanvas canvas;
    canvas.SetTextEncoding(Platform::TTextEncoding::Utf8);
    try {
        label.Paint(canvas);
    } catch (const Platform::EConvertError&) {
        Check(!utf8 && canvas.draws.empty());
        return;
    }
    Check(utf8);
    // Each draw is one character: a symbol byte, or one whole UTF-8 sequence of the caption
    // (a caret included, for "^^"), the plain ones in the caption's order.
    std::size_t at = 0;
    std::int32_t left = 0;
    for (const RecordingCanvas::Draw& draw : canvas.draws) {
        if (draw.face == "Symbol") {
            Check(draw.text.size() == 1);
        } else {
            Check(!draw.text.empty() && Platform::Utf8CharLength(draw.text) == draw.text.size());
            const std::size_t found = caption.find(draw.text, at);
            Check(found != std::string::npos);
            at = found + (effect ? 0 : draw.text.size());  // the effect draws a character three times
        }
        if (!effect) Check(draw.left >= left);
        left = draw.left;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string caption(reinterpret_cast<const char*>(data), size);
    const bool utf8 = Platform::IsUtf8(caption);

    // The check agrees with the decoder: UTF-8 decodes and encodes back to itself (less its
    // zeros), and anything else is refused with the place of the first bad byte.
    try {
        const std::string again = Platform::TextToUtf8(caption, "DejaVu Sans", Platform::TTextEncoding::Utf8);
        std::string withoutZeros;
        for (char c : caption)
            if (c != '\0') withoutZeros += c;
        Check(utf8 && again == withoutZeros);
    } catch (const Platform::EConvertError& error) {
        Check(!utf8 && std::string_view(error.what()).starts_with("the text is not UTF-8: byte 0x"));
    }
    // The program quotes a caption it refuses: the quote is UTF-8 without control bytes.
    if (!utf8) {
        const std::string quoted = KornumCli::Quoted(caption);
        Check(Platform::IsUtf8(quoted));
        for (char c : quoted) Check(static_cast<unsigned char>(c) >= 0x20 && c != 0x7F);
    }

    Paint(caption, utf8, 1 << 20, false, false);
    Paint(caption, utf8, 40, true, true);
    return 0;
}
