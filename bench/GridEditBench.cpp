// The grid edits at full-HD size: a paint on the Cairo image canvas in virtual mode, the
// same for 10^2 elements and for 2^31 - 1, beside plain Cairo showing the same texts in
// the same cells; and a paste of a 1000 x 100 block beside std::from_chars reading its
// tokens.
#include <kornum/KornumCanvas.h>
#include <kornum/KornumMatrixEdit.h>
#include <kornum/KornumVectorEdit.h>

#include <benchmark/benchmark.h>
#include <cairo.h>

#include <charconv>
#include <limits>
#include <string>
#include <vector>

namespace {

using Kornumglobals::Float;
using Kornumglobals::Integer;

constexpr Integer Width = 1920, Height = 1080;

Float Value(Integer row, Integer col) { return row * 1.25L + col / 3.0L; }

void BM_PaintVectorEdit(benchmark::State& state) {
    KornumVectorEdit::TKorVectorEdit edit(nullptr);
    edit.SetVirtualMode(true);
    edit.SetCount(Integer(state.range(0)));
    edit.OnGetElement = [](KornumVectorEdit::TKorVectorEdit&, Integer i, Float& x) { x = Value(i, 0); };
    edit.SetBounds(0, 0, Width, Height);
    KornumCanvas::TKorImageCanvas canvas(KornumCanvas::TImageFormat::Png, Width, Height, Platform::clWhite);
    for (auto _ : state) edit.Paint(canvas);
}
BENCHMARK(BM_PaintVectorEdit)->Arg(100)->Arg(std::numeric_limits<Integer>::max())->Unit(benchmark::kMillisecond);

// Side x Side elements: 10 x 10, and 46341 x 46341, just over 2^31.
void BM_PaintMatrixEdit(benchmark::State& state) {
    KornumMatrixEdit::TKorMatrixEdit edit(nullptr);
    edit.SetVirtualMode(true);
    edit.SetRowCount(Integer(state.range(0)));
    edit.SetColCount(Integer(state.range(0)));
    edit.OnGetElement = [](KornumMatrixEdit::TKorMatrixEdit&, Integer r, Integer c, Float& x) { x = Value(r, c); };
    edit.SetBounds(0, 0, Width, Height);
    KornumCanvas::TKorImageCanvas canvas(KornumCanvas::TImageFormat::Png, Width, Height, Platform::clWhite);
    for (auto _ : state) edit.Paint(canvas);
}
BENCHMARK(BM_PaintMatrixEdit)->Arg(10)->Arg(46341)->Unit(benchmark::kMillisecond);

// The peer: Cairo alone fills the image and shows the texts of the matrix cells in view
// (53 rows of 20 pixels, 20 columns of 96), right-aligned as the grid does.
void BM_PaintPlainCairo(benchmark::State& state) {
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, Width, Height);
    cairo_t* cr = cairo_create(surface);
    cairo_select_font_face(cr, "DejaVu Sans", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(cr, 10 * 96.0 / 72);
    std::vector<std::string> texts;
    for (Integer r = 0; r < 53; ++r)
        for (Integer c = 0; c < 20; ++c) {
            char text[64];
            texts.emplace_back(text, std::to_chars(text, text + sizeof text, Value(r, c)).ptr);
        }
    for (auto _ : state) {
        cairo_set_source_rgb(cr, 1, 1, 1);
        cairo_paint(cr);
        cairo_set_source_rgb(cr, 0, 0, 0);
        for (Integer r = 0; r < 53; ++r)
            for (Integer c = 0; c < 20; ++c) {
                const std::string& text = texts[std::size_t(r * 20 + c)];
                cairo_text_extents_t extents;
                cairo_text_extents(cr, text.c_str(), &extents);
                cairo_move_to(cr, 48 + (c + 1) * 96 - 4 - extents.x_advance, 20 + r * 20 + 15);
                cairo_show_text(cr, text.c_str());
            }
    }
    cairo_destroy(cr);
    cairo_surface_destroy(surface);
}
BENCHMARK(BM_PaintPlainCairo)->Unit(benchmark::kMillisecond);

// A 1000 x 100 block of numbers as a spreadsheet copies them.
std::string Block() {
    std::string text;
    for (Integer r = 0; r < 1000; ++r) {
        for (Integer c = 0; c < 100; ++c) {
            char number[64];
            if (c > 0) text += '\t';
            text.append(number, std::to_chars(number, number + sizeof number, Value(r, c)).ptr);
        }
        text += '\n';
    }
    return text;
}

void BM_PasteText(benchmark::State& state) {
    Kornumglobals::TKorFloatMatrix m;
    m.SetLength(1000);
    for (auto& row : m) row.SetLength(100);
    KornumMatrixEdit::TKorMatrixEdit edit(nullptr);
    edit.SetMatrix(m);
    const std::string text = Block();
    for (auto _ : state) {
        edit.PasteText(text);
        benchmark::DoNotOptimize(m[999][99]);
    }
}
BENCHMARK(BM_PasteText)->Unit(benchmark::kMillisecond);

// The peer: std::from_chars reads the same tokens into one vector.
void BM_PasteFromChars(benchmark::State& state) {
    const std::string text = Block();
    std::vector<Float> values(100000);
    for (auto _ : state) {
        const char* at = text.data();
        const char* const end = at + text.size();
        for (Float& value : values) {
            at = std::from_chars(at, end, value).ptr + 1;  // past the tab or line end
        }
        benchmark::DoNotOptimize(values.data());
    }
}
BENCHMARK(BM_PasteFromChars)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
