// Draws a math label into an SVG file in the temporary directory and prints its size.
#include <kornum/KornumCanvas.h>
#include <kornum/KornumMathLabel.h>

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>

int main() {
    // "alpha in [0, pi] implies sin alpha >= 0": ^a alpha, ^8 element of, ^p pi,
    // ^[ double right arrow, ^> greater or equal.
    KornumMathLabel::TKorMathLabel label(nullptr);
    label.SetCaption("^a ^8 [0, ^p] ^[ sin ^a ^> 0");
    label.Font().Size = 14;
    label.SetBounds(0, 0, 320, 32);

    KornumCanvas::TKorImageCanvas canvas(KornumCanvas::TImageFormat::Svg, 320, 32, Platform::clWhite);
    label.Paint(canvas);

    // One <text> element per character drawn: the 28 bytes of the caption less its six
    // carets.
    const std::string svg = canvas.Contents();
    std::size_t elements = 0;
    for (std::size_t at = svg.find("<text "); at != std::string::npos; at = svg.find("<text ", at + 1)) ++elements;

    const std::filesystem::path path = std::filesystem::temp_directory_path() / "kornum-math-label.svg";
    canvas.SaveToFile(path.string());
    std::printf("wrote %s: %ju bytes, %zu text elements, drawn up to x = %d\n", path.string().c_str(),
                static_cast<std::uintmax_t>(std::filesystem::file_size(path)), elements, canvas.DrawnRight());
    return 0;
}
