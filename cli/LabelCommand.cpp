#include "LabelCommand.h"

#include "CommandOptions.h"

#include <kornum/KornumCanvas.h>
#include <kornum/KornumMathLabel.h>

#include <charconv>
#include <cstdio>

namespace KornumCli {
namespace {

constexpr const char* Usage =
    "Usage: kornum label CAPTION -o FILE.svg|FILE.png|FILE.pdf [--size PT] [--font FACE]\n"
    "                    [--color #RRGGBB] [--effect 0|1|2] [--disabled] [--width PX]\n"
    "\n"
    "Draws CAPTION as a math label: a caret introduces a symbol. ^ and a letter is the\n"
    "Greek letter (^p pi, ^W Omega); ^+ not equal, ^< less or equal, ^> greater or\n"
    "equal, ^- plus-minus, ^* times, ^/ divided by, ^= approximately equal, ^& infinity,\n"
    "^% degree, ^8 element of, ^9 not element of, ^1 union, ^2 intersection, ^0 empty\n"
    "set, ^{ right arrow, ^} left arrow, ^( left-right arrow, ^[ implies, ^] is implied\n"
    "by, ^) if and only if, ^@ and, ^! or, ^, ellipsis, ^. bullet; ^^ a caret.\n"
    "\n"
    "Options:\n"
    "  -o FILE        the image to write; its extension chooses SVG, PNG or PDF\n"
    "  --size PT      font size in points (default 16)\n"
    "  --font FACE    the face of the text (default DejaVu Sans)\n"
    "  --color #RGB   text colour as #RRGGBB (default #000000)\n"
    "  --effect N     0 plain, 1 raised, 2 sunken (default 0)\n"
    "  --disabled     draw as a disabled label, in grey\n"
    "  --width PX     the label's width; the caption is cut at its right edge\n"
    "                 (default: wide enough for the whole caption)\n";

int UsageError(const std::string& message) { return KornumCli::UsageError("label", message); }

bool ReadWhole(const std::string& text, int low, int high, int& value) {
    auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() && value >= low && value <= high;
}

}  // namespace

int RunLabel(const std::vector<std::string>& arguments) {
    KornumMathLabel::TKorMathLabel label(nullptr);
    label.SetColor(Platform::clWhite);
    label.Font().Size = 16;
    label.Font().Color = Platform::clBlack;
    std::string output;
    int width = 0;
    bool haveCaption = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        const bool hasValue = i + 1 < arguments.size();
        const std::string value = hasValue ? arguments[i + 1] : "";
        int number = 0;
        if (argument == "--help") {
            std::fputs(Usage, stdout);
            return 0;
        } else if (argument == "-o") {
            if (!hasValue || !KornumCanvas::FormatOfPath(value)) return UsageError("-o takes a file ending in .svg, .png or .pdf");
            output = value, ++i;
        } else if (argument == "--size") {
            if (!ReadWhole(value, 1, 1000, number)) return UsageError("--size takes a whole number of points from 1 to 1000");
            label.Font().Size = number, ++i;
        } else if (argument == "--font") {
            if (value.empty() || value.find(';') != std::string::npos) return UsageError("--font takes a face name");
            label.Font().Name = value, ++i;
        } else if (argument == "--color") {
            try {
                label.Font().Color = Platform::ColorFromText(value);
            } catch (const Platform::EConvertError&) {
                return UsageError("--color takes a colour as #RRGGBB");
            }
            ++i;
        } else if (argument == "--effect") {
            if (!ReadWhole(value, 0, 2, number)) return UsageError("--effect takes 0, 1 or 2");
            label.SetEffect(Kornumcontrols::TLabelEffect(number)), ++i;
        } else if (argument == "--disabled") {
            label.SetEnabled(false);
        } else if (argument == "--width") {
            if (!ReadWhole(value, 1, 100000, number)) return UsageError("--width takes a whole number of pixels");
            width = number, ++i;
        } else if (argument.size() > 1 && argument[0] == '-') {
            return UsageError("unknown option '" + argument + "'");
        } else if (!haveCaption) {
            label.SetCaption(argument);
            haveCaption = true;
        } else {
            return UsageError("one caption only (quote it when it has blanks)");
        }
    }
    if (!haveCaption) return UsageError("a caption is needed");
    if (output.empty()) return UsageError("-o FILE is needed");
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

}  // namespace KornumCli
