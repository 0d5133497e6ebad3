#include "KornumCanvas.h"

#include <kornum/PlatformExceptions.h>

#include <cairo-pdf.h>
#include <cairo.h>

#include <cmath>
#include <cstdio>
#include <fstream>

namespace KornumCanvas {
namespace {

constexpr double PixelsPerPoint = 96.0 / 72.0;

cairo_status_t AppendTo(void* closure, const unsigned char* data, unsigned int length) {
    static_cast<std::string*>(closure)->append(reinterpret_cast<const char*>(data), length);
    return CAIRO_STATUS_SUCCESS;
}

// Text without the accelerator marks: a single '&' is dropped, "&&" is one '&'.
std::string WithoutPrefixes(std::string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '&' && i + 1 < text.size()) ++i;
        else if (text[i] == '&') continue;
        out += text[i];
    }
    return out;
}

std::string EscapeXml(std::string_view text) {
    std::string out;
    for (char c : text) {
        switch (c) {
            case '&': out += "&amp;"; break;
            case '<': out += "&lt;"; break;
            case '>': out += "&gt;"; break;
            case '"': out += "&quot;"; break;
            default: out += c;
        }
    }
    return out;
}

std::string Number(double x) {
    char text[32];
    std::snprintf(text, sizeof text, "%.2f", x);
    return text;
}

}  // namespace

std::optional<TImageFormat> FormatOfPath(std::string_view Path) {
    const auto ends = [Path](std::string_view suffix) {
        return Path.size() > suffix.size() && Path.substr(Path.size() - suffix.size()) == suffix;
    };
    if (ends(".svg")) return TImageFormat::Svg;
    if (ends(".png")) return TImageFormat::Png;
    if (ends(".pdf")) return TImageFormat::Pdf;
    return std::nullopt;
}

std::string RenderingFace(std::string_view Face) { return Face == "Symbol" ? "DejaVu Sans" : std::string(Face); }

struct TKorImageCanvas::Impl {
    TImageFormat format;
    std::int32_t width, height;
    Platform::TColor background;
    std::string pdf;          // the PDF's bytes as Cairo writes them
    std::string svgElements;  // the <text> elements of an SVG
    cairo_surface_t* surface = nullptr;
    cairo_t* cr = nullptr;
    std::int32_t drawnRight = 0;

    // Cairo set to the canvas font: face, slant, weight and size in pixels.
    void UseFont(const Platform::TFont& font) {
        cairo_select_font_face(cr, RenderingFace(font.Name).c_str(),
                               font.Style & Platform::fsItalic ? CAIRO_FONT_SLANT_ITALIC : CAIRO_FONT_SLANT_NORMAL,
                               font.Style & Platform::fsBold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
        cairo_set_font_size(cr, font.Size * PixelsPerPoint);
    }
};

TKorImageCanvas::TKorImageCanvas(TImageFormat Format, std::int32_t Width, std::int32_t Height,
                                 Platform::TColor Background)
    : impl_(std::make_unique<Impl>()) {
    impl_->format = Format;
    impl_->width = Width;
    impl_->height = Height;
    impl_->background = Resolve(Background);
    if (Format == TImageFormat::Pdf)
        impl_->surface = cairo_pdf_surface_create_for_stream(AppendTo, &impl_->pdf, Width, Height);
    else  // an SVG is written by hand; its surface only measures
        impl_->surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, Width, Height);
    impl_->cr = cairo_create(impl_->surface);
    const Platform::TColor b = impl_->background;
    cairo_set_source_rgb(impl_->cr, b.Red() / 255.0, b.Green() / 255.0, b.Blue() / 255.0);
    cairo_paint(impl_->cr);
}

TKorImageCanvas::~TKorImageCanvas() {
    cairo_destroy(impl_->cr);
    cairo_surface_destroy(impl_->surface);
}

std::int32_t TKorImageCanvas::TextWidth(std::string_view Text) {
    impl_->UseFont(Font());
    cairo_text_extents_t extents;
    cairo_text_extents(impl_->cr, Platform::TextToUtf8(Text, Font().Name).c_str(), &extents);
    return std::int32_t(std::lround(extents.x_advance));
}

std::int32_t TKorImageCanvas::LineHeight() {
    impl_->UseFont(Font());
    cairo_font_extents_t font;
    cairo_font_extents(impl_->cr, &font);
    return std::int32_t(std::ceil(font.height));
}

std::int32_t TKorImageCanvas::DrawnRight() const noexcept { return impl_->drawnRight; }

std::int32_t TKorImageCanvas::DrawText(std::string_view Text, Platform::TRect& Rect, std::uint32_t Flags) {
    const std::string bytes = Flags & Platform::TextFlags::NoPrefix ? std::string(Text) : WithoutPrefixes(Text);
    const std::int32_t width = TextWidth(bytes), height = LineHeight();
    if (Flags & Platform::TextFlags::CalcRect) {
        Rect.Right = Rect.Left + width;
        Rect.Bottom = Rect.Top + height;
        return height;
    }
    double x = Rect.Left;
    if (Flags & Platform::TextFlags::Center) x += (Rect.Width() - width) / 2.0;
    else if (Flags & Platform::TextFlags::Right) x = Rect.Right - width;
    cairo_font_extents_t font;
    cairo_font_extents(impl_->cr, &font);
    const double baseline = Rect.Top + font.ascent;
    const std::string utf8 = Platform::TextToUtf8(bytes, Font().Name);
    const Platform::TColor color = Resolve(Font().Color);
    impl_->drawnRight = std::max(impl_->drawnRight, std::int32_t(std::ceil(x)) + width);
    if (impl_->format == TImageFormat::Svg) {
        std::string& out = impl_->svgElements;
        out += "  <text x=\"" + Number(x) + "\" y=\"" + Number(baseline) + "\" font-family=\"" +
               EscapeXml(RenderingFace(Font().Name)) + "\" font-size=\"" + Number(Font().Size * PixelsPerPoint) +
               "px\" fill=\"" + color.Html() + "\"";
        if (Font().Style & Platform::fsBold) out += " font-weight=\"bold\"";
        if (Font().Style & Platform::fsItalic) out += " font-style=\"italic\"";
        if (Font().Name == "Symbol") out += " class=\"symbol\"";
        out += " xml:space=\"preserve\">" + EscapeXml(utf8) + "</text>\n";
        return height;
    }
    cairo_set_source_rgb(impl_->cr, color.Red() / 255.0, color.Green() / 255.0, color.Blue() / 255.0);
    cairo_move_to(impl_->cr, x, baseline);
    cairo_show_text(impl_->cr, utf8.c_str());
    if (Font().Style & (Platform::fsUnderline | Platform::fsStrikeOut)) {
        cairo_set_line_width(impl_->cr, std::max(1.0, font.height / 16));
        const double under = baseline + font.descent / 2, through = baseline - font.ascent / 3;
        for (auto [style, y] : {std::pair{Platform::fsUnderline, under}, {Platform::fsStrikeOut, through}}) {
            if (!(Font().Style & style)) continue;
            cairo_move_to(impl_->cr, x, y);
            cairo_line_to(impl_->cr, x + width, y);
            cairo_stroke(impl_->cr);
        }
    }
    return height;
}

std::string TKorImageCanvas::Contents() {
    switch (impl_->format) {
        case TImageFormat::Svg: {
            const Platform::TColor b = impl_->background;
            return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
                   std::to_string(impl_->width) + "\" height=\"" + std::to_string(impl_->height) + "\" viewBox=\"0 0 " +
                   std::to_string(impl_->width) + " " + std::to_string(impl_->height) + "\">\n  <rect width=\"100%\" height=\"100%\" fill=\"" +
                   b.Html() + "\"/>\n" + impl_->svgElements + "</svg>\n";
        }
        case TImageFormat::Png: {
            std::string png;
            cairo_surface_flush(impl_->surface);
            cairo_surface_write_to_png_stream(impl_->surface, AppendTo, &png);
            return png;
        }
        case TImageFormat::Pdf:
            cairo_surface_finish(impl_->surface);
            return impl_->pdf;
    }
    return {};
}

void TKorImageCanvas::SaveToFile(const std::string& Path) {
    const std::string bytes = Contents();
    std::ofstream out(Path, std::ios::binary);
    out.write(bytes.data(), std::streamsize(bytes.size()));
    if (!out) throw Platform::Exception("Cannot write the image to " + Path);
}

}  // namespace KornumCanvas
