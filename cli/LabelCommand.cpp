#include "LabelCommand.h"

#include "Options.h"
#include "Output.h"
#include "Parameters.h"
#include "PlotOutput.h"

#include <kornum/KornumCanvas.h>
#include <kornum/KornumMathLabel.h>

#include <algorithm>
#include <cstdio>
#include <memory>

namespace KornumCli {
namespace {

struct LabelSettings {
    std::string output;
    int width = 0;
};

// A font face is written into messages and files: UTF-8 without control characters.
bool PrintableUtf8(const std::string& text) {
    return Platform::IsUtf8(text) &&
           std::none_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; });
}

CommandTable LabelTable(KornumMathLabel::TKorMathLabel& label, LabelSettings& s) {
    return {
        "label",
        "Usage: kornum label CAPTION -o FILE.svg|FILE.png|FILE.pdf [OPTIONS]",
        "Draws CAPTION, UTF-8 text, as a math label: a caret introduces a symbol. ^ and a\n"
        "letter is the Greek letter (^p pi, ^W Omega); ^+ not equal, ^< less or equal, ^>\n"
        "greater or equal, ^- plus-minus, ^* times, ^/ divided by, ^= approximately equal,\n"
        "^& infinity, ^% degree, ^8 element of, ^9 not element of, ^1 union, ^2\n"
        "intersection, ^0 empty set, ^{ right arrow, ^} left arrow, ^( left-right arrow, ^[\n"
        "implies, ^] is implied by, ^) if and only if, ^@ and, ^! or, ^, ellipsis, ^.\n"
        "bullet; ^^ a caret. Every other character, & included, is drawn as itself.\n"
        "\n"
        "Text is set at the size asked for in an SVG or PDF (--size 16: 16 points); a PNG\n"
        "has 96 pixels per inch (16 points are 21.3 pixels high) and is at most 32767\n"
        "pixels wide.\n",
        {
            {"--output", "-o", "FILE", "the image to write; its extension chooses SVG, PNG or PDF",
             [&s](const std::string& v) { s.output = ImagePath(v, "-o"); }},
            {"--size", "", "PT", "font size in points, 1 to 1000 (default 16)",
             [&label](const std::string& v) { label.Font().Size = std::int32_t(WholeNumber(v, "--size", 1, 1000)); }},
            {"--font", "", "FACE", "the face of the text (default DejaVu Sans)",
             [&label](const std::string& v) {
                 if (v.empty() || v.find(';') != std::string::npos || !PrintableUtf8(v))
                     throw UsageError("--font takes a face name: " + Quoted(v));
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
        "Exit status: 0 the image is written; 1 it cannot be written (the system's reason\n"
        "is shown and no partial file is left); 2 bad usage, or a caption that cannot be\n"
        "drawn: not UTF-8, a character the font has no glyph for, or an image too large\n"
        "(a smaller --size or --width, or SVG or PDF, makes a long caption fit).\n"};
}

int Draw(KornumMathLabel::TKorMathLabel& label, const LabelSettings& s, const std::vector<std::string>& operands) {
    if (operands.empty()) throw UsageError("a caption is needed");
    if (operands.size() > 1) throw UsageError("one caption only (quote it when it has blanks)");
    if (s.output.empty()) throw UsageError("-o FILE is needed");
    if (!Platform::IsUtf8(operands[0])) throw UsageError("the caption is not UTF-8 text: " + Quoted(operands[0]));
    label.SetCaption(operands[0]);
    const KornumCanvas::TImageFormat format = *KornumCanvas::FormatOfPath(s.output);
    constexpr int margin = 4;
    constexpr auto utf8 = Platform::TTextEncoding::Utf8;

    // Everything that can fail on the caption fails here, before the file is opened.
    std::unique_ptr<KornumCanvas::TKorImageCanvas> canvas;
    try {
        // A first pass on an unbounded label measures the caption; the image is sized to it.
        KornumCanvas::TKorImageCanvas measure(KornumCanvas::TImageFormat::Svg, 1, 1, label.Color());
        measure.SetTextEncoding(utf8);
        measure.Font().Assign(label.Font());
        const int height = measure.LineHeight() + 2 * margin;
        label.SetBounds(0, 0, 1 << 30, height);
        label.Paint(measure);
        const int width = s.width != 0 ? s.width : measure.DrawnRight() + 2 * margin;

        canvas = std::make_unique<KornumCanvas::TKorImageCanvas>(format, width, height, label.Color());
        canvas->SetTextEncoding(utf8);
        label.SetBounds(0, 0, width - margin, height - margin);
        // The label draws from its own origin: moved by the margin into the image.
        KornumPlot::TKorOffsetCanvas shifted(*canvas, margin, margin);
        label.Paint(shifted);
    } catch (const KornumCanvas::EMissingGlyph& error) {
        throw UsageError(std::string("the caption cannot be drawn: ") + error.what());
    } catch (const KornumCanvas::EImageSize& error) {
        throw UsageError(std::string(error.what()) + " (try a smaller --size or --width, or SVG or PDF)");
    }

    try {
        canvas->SaveToFile(s.output);
    } catch (const KornumCanvas::EWriteError& error) {
        std::fprintf(stderr, "kornum label: cannot write %s: %s\n", Quoted(error.Path()).c_str(), error.Reason().c_str());
        return 1;
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
    // The caption is drawn as written: a program's label has no accelerator keys, so '&'
    // is a character like any other.
    label.SetShowAccelChar(false);
    LabelSettings settings;
    return RunCommand(LabelTable(label, settings), arguments, out,
                      [&](const std::vector<std::string>& operands) { return Draw(label, settings, operands); });
}

}  // namespace KornumCli
