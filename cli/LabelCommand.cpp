#include "LabelCommand.h"

#include "Options.h"
#include "Output.h"
#include "Parameters.h"

#include <kornum/KornumCanvas.h>
#include <kornum/KornumMathLabel.h>

#include <cstdio>

namespace KornumCli {
namespace {

struct LabelSettings {
    std::string output;
    int width = 0;
};

CommandTable LabelTable(KornumMathLabel::TKorMathLabel& label, LabelSettings& s) {
    return {
        "label",
        "Usage: kornum label CAPTION -o FILE.svg|FILE.png|FILE.pdf [OPTIONS]",
        "Draws CAPTION as a math label: a caret introduces a symbol. ^ and a letter is the\n"
        "Greek letter (^p pi, ^W Omega); ^+ not equal, ^< less or equal, ^> greater or\n"
        "equal, ^- plus-minus, ^* times, ^/ divided by, ^= approximately equal, ^& infinity,\n"
        "^% degree, ^8 element of, ^9 not element of, ^1 union, ^2 intersection, ^0 empty\n"
        "set, ^{ right arrow, ^} left arrow, ^( left-right arrow, ^[ implies, ^] is implied\n"
        "by, ^) if and only if, ^@ and, ^! or, ^, ellipsis, ^. bullet; ^^ a caret.\n",
        {
            {"--output", "-o", "FILE", "the image to write; its extension chooses SVG, PNG or PDF",
             [&s](const std::string& v) {
                 if (!KornumCanvas::FormatOfPath(v)) throw UsageError("-o takes a file ending in .svg, .png or .pdf: " + Quoted(v));
                 s.output = v;
             }},
            {"--size", "", "PT", "font size in points, 1 to 1000 (default 16)",
             [&label](const std::string& v) { label.Font().Size = std::int32_t(WholeNumber(v, "--size", 1, 1000)); }},
            {"--font", "", "FACE", "the face of the text (default DejaVu Sans)",
             [&label](const std::string& v) {
                 if (v.empty() || v.find(';') != std::string::npos) throw UsageError("--font takes a face name: " + Quoted(v));
                 label.Font().Name = v;
             }},
            {"--color", "", "#RRGGBB", "text colour (default #000000)",
             [&label](const std::string& v) {
                 try {
                     label.Font().Color = Platform::ColorFromText(v);
                 } catch (const Platform::EConvertError&) {
                     throw UsageError("--color must be a colour as #RRGGBB: " + Quoted(v));
                 }
             }},
            {"--effect", "", "N", "0 plain, 1 raised, 2 sunken (default 0)",
             [&label](const std::string& v) { label.SetEffect(Kornumcontrols::TLabelEffect(WholeNumber(v, "--effect", 0, 2))); }},
            {"--disabled", "", "", "draw as a disabled label, in grey", [&label](const std::string&) { label.SetEnabled(false); }},
            {"--width", "", "PX", "the label's width; the caption is cut at its right edge\n(default: wide enough for the whole caption)",
             [&s](const std::string& v) { s.width = int(WholeNumber(v, "--width", 1, 100000)); }},
        },
        ""};
}

int Draw(KornumMathLabel::TKorMathLabel& label, const LabelSettings& s, const std::vector<std::string>& operands,
         Output&) {
    if (operands.empty()) throw UsageError("a caption is needed");
    if (operands.size() > 1) throw UsageError("one caption only (quote it when it has blanks)");
    if (s.output.empty()) throw UsageError("-o FILE is needed");
    label.SetCaption(operands[0]);
    const std::string& output = s.output;
    int width = s.width;
    const KornumCanvas::TImageFormat format = *KornumCanvas::FormatOfPath(output);

    // A first pass on a wide canvas measures the caption; the image is sized to it.
    const int margin = 4;
    KornumCanvas::TKorImageCanvas measure(KornumCanvas::TImageFormat::Svg, 1, 1, label.Color());
    measure.Font().Assign(label.Font());
    const int height = measure.LineHeight() + 2 * margin;
    label.SetBounds(0, 0, 1 << 20, height);
    label.Paint(measure);
    if (width == 0) width = measure.DrawnRight() + 2 * margin;

    KornumCanvas::TKorImageCanvas canvas(format, width, height, label.Color());
    label.SetBounds(0, 0, width - margin, height - margin);
    // The label draws from its own origin; the margin moves it into the image.
    struct Shifted : Platform::TCanvas {
        KornumCanvas::TKorImageCanvas& target;
        int by;
        Shifted(KornumCanvas::TKorImageCanvas& t, int b) : target(t), by(b) {}
        std::int32_t TextWidth(std::string_view text) override {
            target.Font().Assign(Font());
            return target.TextWidth(text);
        }
        std::int32_t DrawText(std::string_view text, Platform::TRect& rect, std::uint32_t flags) override {
            target.Font().Assign(Font());
            Platform::TRect moved = rect.Offset(by, by);
            const std::int32_t h = target.DrawText(text, moved, flags);
            rect = moved.Offset(-by, -by);
            return h;
        }
    } shifted(canvas, margin);
    label.Paint(shifted);
    try {
        canvas.SaveToFile(output);
    } catch (const Platform::Exception& error) {
        std::fprintf(stderr, "kornum label: %s\n", error.what());
        return 1;
    }
    return 0;
}

}  // namespace

int RunLabel(const std::vector<std::string>& arguments, Output& out) {
    KornumMathLabel::TKorMathLabel label(nullptr);
    label.SetColor(Platform::clWhite);
    label.Font().Size = 16;
    label.Font().Color = Platform::clBlack;
    LabelSettings settings;
    return RunCommand(LabelTable(label, settings), arguments, out,
                      [&](const std::vector<std::string>& operands) { return Draw(label, settings, operands, out); });
}

}  // namespace KornumCli
