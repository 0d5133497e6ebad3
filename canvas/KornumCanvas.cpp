#include "KornumCanvas.h"

#include "canvas/detail/PngWriter.hpp"

#include <kornum/PlatformExceptions.h>

#include <cairo-pdf.h>
#include <cairo.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

namespace KornumCanvas {
namespace {

constexpr double PixelsPerPoint = 96.0 / 72.0;

// A character as a message shows it: U+XXXX, then the character itself in quotes unless it
// is a control character.
std::string CharacterName(char32_t c) {
    char code[16];
    std::snprintf(code, sizeof code, "U+%04X", unsigned(c));
    std::string name = code;
    if (c < 0x20 || (c >= 0x7F && c < 0xA0) || c > 0x10FFFF) return name;
    std::string utf8;
    if (c < 0x80) {
        utf8 += char(c);
    } else if (c < 0x800) {
        utf8 += char(0xC0 | (c >> 6));
        utf8 += char(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        utf8 += char(0xE0 | (c >> 12));
        utf8 += char(0x80 | ((c >> 6) & 0x3F));
        utf8 += char(0x80 | (c & 0x3F));
    } else {
        utf8 += char(0xF0 | (c >> 18));
        utf8 += char(0x80 | ((c >> 12) & 0x3F));
        utf8 += char(0x80 | ((c >> 6) & 0x3F));
        utf8 += char(0x80 | (c & 0x3F));
    }
    return name + " '" + utf8 + "'";
}

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

EMissingGlyph::EMissingGlyph(char32_t Character, const std::string& Face)
    : Platform::Exception("the font '" + Face + "' has no glyph for " + CharacterName(Character)), character_(Character) {}

EWriteError::EWriteError(const std::string& Path, int Error)
    : Platform::Exception("cannot write the image to '" + Path + "': " + std::strerror(Error)),
      path_(Path),
      reason_(std::strerror(Error)),
      error_(Error) {}

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

namespace {

void UseColor(cairo_t* cr, Platform::TColor color) {
    cairo_set_source_rgb(cr, color.Red() / 255.0, color.Green() / 255.0, color.Blue() / 255.0);
}

// Raises EMissingGlyph for the first character of the UTF-8 text that the context's font
// maps to glyph 0, the font's "no such character" box.
void CheckGlyphs(cairo_t* cr, const std::string& utf8, const std::string& face) {
    if (utf8.empty()) return;
    cairo_glyph_t* glyphs = nullptr;
    cairo_text_cluster_t* clusters = nullptr;
    int glyphCount = 0, clusterCount = 0;
    cairo_text_cluster_flags_t flags;
    const cairo_status_t status = cairo_scaled_font_text_to_glyphs(
        cairo_get_scaled_font(cr), 0, 0, utf8.data(), int(utf8.size()), &glyphs, &glyphCount, &clusters, &clusterCount, &flags);
    if (status != CAIRO_STATUS_SUCCESS)
        throw Platform::Exception(std::string("Cairo cannot set the text: ") + cairo_status_to_string(status));
    // Clusters pair the text's bytes with the glyphs drawn for them, in order.
    std::size_t byte = 0, glyph = 0, missing = std::string::npos;
    for (int i = 0; i < clusterCount && missing == std::string::npos; ++i) {
        for (int g = 0; g < clusters[i].num_glyphs; ++g)
            if (glyphs[glyph + std::size_t(g)].index == 0) missing = byte;
        byte += std::size_t(clusters[i].num_bytes);
        glyph += std::size_t(clusters[i].num_glyphs);
    }
    cairo_glyph_free(glyphs);
    cairo_text_cluster_free(clusters);
    if (missing != std::string::npos) {
        const std::string_view rest = std::string_view(utf8).substr(missing);
        const std::u32string character =
            Platform::DecodeText(rest.substr(0, Platform::Utf8CharLength(rest)), "", Platform::TTextEncoding::Utf8);
        throw EMissingGlyph(character.at(0), face);
    }
}

// The pixel rectangle of a one-pixel line from (x1, y1) to (x2, y2), ends included, when
// the line is horizontal or vertical; such lines are filled, so that they cover whole
// pixels in every format.
bool AxisLine(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2, Platform::TRect& pixels) {
    if (x1 != x2 && y1 != y2) return false;
    pixels = {std::min(x1, x2), std::min(y1, y2), std::max(x1, x2) + 1, std::max(y1, y2) + 1};
    return true;
}

}  // namespace

TKorCairoCanvas::TKorCairoCanvas(_cairo* Context) : cr_(Context) {}

TKorCairoCanvas::~TKorCairoCanvas() = default;

// Cairo set to the canvas font: face, slant, weight and size in pixels. Selecting a face
// is a look-up, so it is done only when the font has changed since the last call.
void TKorCairoCanvas::UseFont() {
    const Platform::TFont& font = Font();
    if (fontSet_ && font.Name == usedFont_.Name && font.Size == usedFont_.Size && font.Style == usedFont_.Style) return;
    cairo_select_font_face(cr_, RenderingFace(font.Name).c_str(),
                           font.Style & Platform::fsItalic ? CAIRO_FONT_SLANT_ITALIC : CAIRO_FONT_SLANT_NORMAL,
                           font.Style & Platform::fsBold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(cr_, font.Size * PixelsPerPoint);
    cairo_font_extents_t extents;
    cairo_font_extents(cr_, &extents);
    ascent_ = extents.ascent;
    descent_ = extents.descent;
    height_ = extents.height;
    usedFont_.Assign(font);
    fontSet_ = true;
    measuredWidth_ = -1;
    glyphsChecked_.reset();
}

std::int32_t TKorCairoCanvas::TextWidth(std::string_view Text) {
    UseFont();
    if (measuredWidth_ >= 0 && Text == measured_ && TextEncoding() == measuredEncoding_) return measuredWidth_;
    const std::string utf8 = Platform::TextToUtf8(Text, Font().Name, TextEncoding());
    // Each ASCII character is looked up once per font; numbers are made of a dozen.
    const bool known = std::all_of(utf8.begin(), utf8.end(), [this](char c) {
        return static_cast<unsigned char>(c) < 128 && glyphsChecked_[static_cast<unsigned char>(c)];
    });
    if (!known) {
        CheckGlyphs(cr_, utf8, Font().Name);
        for (char c : utf8)
            if (static_cast<unsigned char>(c) < 128) glyphsChecked_.set(static_cast<unsigned char>(c));
    }
    cairo_text_extents_t extents;
    cairo_text_extents(cr_, utf8.c_str(), &extents);
    measured_.assign(Text);
    measuredEncoding_ = TextEncoding();
    measuredWidth_ = std::int32_t(std::lround(extents.x_advance));
    return measuredWidth_;
}

std::int32_t TKorCairoCanvas::LineHeight() {
    UseFont();
    return std::int32_t(std::ceil(height_));
}

std::int32_t TKorCairoCanvas::DrawText(std::string_view Text, Platform::TRect& Rect, std::uint32_t Flags) {
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
    drawnRight_ = std::max(drawnRight_, std::int32_t(std::ceil(x)) + width);
    ShowText(Platform::TextToUtf8(bytes, Font().Name, TextEncoding()), x, Rect.Top + ascent_, width,
             Resolve(Font().Color));
    return height;
}

void TKorCairoCanvas::ShowText(const std::string& Utf8, double X, double Baseline, std::int32_t Width,
                               Platform::TColor Color) {
    UseColor(cr_, Color);
    cairo_move_to(cr_, X, Baseline);
    cairo_show_text(cr_, Utf8.c_str());
    if (!(Font().Style & (Platform::fsUnderline | Platform::fsStrikeOut))) return;
    cairo_set_line_width(cr_, std::max(1.0, height_ / 16));
    const double under = Baseline + descent_ / 2, through = Baseline - ascent_ / 3;
    for (auto [style, y] : {std::pair{Platform::fsUnderline, under}, {Platform::fsStrikeOut, through}}) {
        if (!(Font().Style & style)) continue;
        cairo_move_to(cr_, X, y);
        cairo_line_to(cr_, X + Width, y);
        cairo_stroke(cr_);
    }
}

void TKorCairoCanvas::FillRect(const Platform::TRect& Rect, Platform::TColor Color) {
    if (Rect.Width() <= 0 || Rect.Height() <= 0) return;
    UseColor(cr_, Resolve(Color));
    cairo_rectangle(cr_, Rect.Left, Rect.Top, Rect.Width(), Rect.Height());
    cairo_fill(cr_);
}

void TKorCairoCanvas::FrameRect(const Platform::TRect& Rect, Platform::TColor Color) {
    const std::int32_t right = Rect.Right - 1, bottom = Rect.Bottom - 1;
    if (right < Rect.Left || bottom < Rect.Top) return;
    DrawLine(Rect.Left, Rect.Top, right, Rect.Top, Color);
    DrawLine(Rect.Left, bottom, right, bottom, Color);
    DrawLine(Rect.Left, Rect.Top, Rect.Left, bottom, Color);
    DrawLine(right, Rect.Top, right, bottom, Color);
}

void TKorCairoCanvas::DrawLine(std::int32_t X1, std::int32_t Y1, std::int32_t X2, std::int32_t Y2,
                               Platform::TColor Color) {
    if (Platform::TRect pixels; AxisLine(X1, Y1, X2, Y2, pixels)) return FillRect(pixels, Color);
    UseColor(cr_, Resolve(Color));
    cairo_set_line_width(cr_, 1);
    cairo_move_to(cr_, X1 + 0.5, Y1 + 0.5);
    cairo_line_to(cr_, X2 + 0.5, Y2 + 0.5);
    cairo_stroke(cr_);
}

void TKorCairoCanvas::Polyline(std::span<const Platform::TPointF> Points, Platform::TColor Color, double Width) {
    if (Points.size() < 2) return;
    UseColor(cr_, Resolve(Color));
    cairo_set_line_width(cr_, Width);
    cairo_set_line_join(cr_, CAIRO_LINE_JOIN_ROUND);
    cairo_move_to(cr_, Points[0].X, Points[0].Y);
    for (const Platform::TPointF& p : Points.subspan(1)) cairo_line_to(cr_, p.X, p.Y);
    cairo_stroke(cr_);
    cairo_set_line_join(cr_, CAIRO_LINE_JOIN_MITER);
}

void TKorCairoCanvas::SetClipRect(const Platform::TRect& Rect) {
    cairo_reset_clip(cr_);
    cairo_rectangle(cr_, Rect.Left, Rect.Top, std::max(0, Rect.Width()), std::max(0, Rect.Height()));
    cairo_clip(cr_);
}

void TKorCairoCanvas::ResetClipRect() { cairo_reset_clip(cr_); }

struct TKorImageCanvas::Impl {
    TImageFormat format;
    std::int32_t width, height;
    Platform::TColor background;
    std::string pdf;          // the PDF's bytes as Cairo writes them
    std::string svgElements;  // the elements of an SVG
    std::string svgClip;      // the clip-path attribute of the SVG elements drawn now
    int svgClips = 0;         // the clip paths defined so far
    cairo_surface_t* surface = nullptr;
    cairo_t* cr = nullptr;

    ~Impl() {
        if (cr != nullptr) cairo_destroy(cr);
        if (surface != nullptr) cairo_surface_destroy(surface);
    }

    static std::unique_ptr<Impl> Make(TImageFormat format, std::int32_t width, std::int32_t height) {
        const std::string size = std::to_string(width) + " x " + std::to_string(height) + " pixels";
        if (width < 1 || height < 1) throw EImageSize("an image of " + size + " is empty: both sides must be at least 1");
        if (format == TImageFormat::Png && (width > MaxPngSide || height > MaxPngSide))
            throw EImageSize("an image of " + size + " is too large for a PNG: at most " + std::to_string(MaxPngSide) +
                             " pixels each way");
        auto impl = std::make_unique<Impl>();
        impl->format = format;
        impl->width = width;
        impl->height = height;
        // A PDF page is in points: the surface is scaled so that the canvas draws in pixels
        // and a font of n points is n points on the page. An SVG is written by hand; its
        // surface only measures, so one pixel does.
        constexpr double PointsPerPixel = 1 / PixelsPerPoint;
        if (format == TImageFormat::Pdf)
            impl->surface = cairo_pdf_surface_create_for_stream(AppendTo, &impl->pdf, width * PointsPerPixel,
                                                                height * PointsPerPixel);
        else
            impl->surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, format == TImageFormat::Png ? width : 1,
                                                       format == TImageFormat::Png ? height : 1);
        impl->cr = cairo_create(impl->surface);
        if (const cairo_status_t status = cairo_status(impl->cr); status != CAIRO_STATUS_SUCCESS)
            throw EImageSize("Cairo cannot make an image of " + size + ": " + cairo_status_to_string(status));
        if (format == TImageFormat::Pdf) cairo_scale(impl->cr, PointsPerPixel, PointsPerPixel);
        return impl;
    }

    // An SVG element's colour and clip: ` fill="#RRGGBB"` (or stroke) and the clip path.
    std::string Paint(const char* attribute, Platform::TColor color) const {
        return std::string(" ") + attribute + "=\"" + color.Html() + "\"" + svgClip;
    }
};

TKorImageCanvas::TKorImageCanvas(TImageFormat Format, std::int32_t Width, std::int32_t Height,
                                 Platform::TColor Background)
    : TKorImageCanvas(Impl::Make(Format, Width, Height), Background) {}

TKorImageCanvas::TKorImageCanvas(std::unique_ptr<Impl> Surface, Platform::TColor Background)
    : TKorCairoCanvas(Surface->cr), impl_(std::move(Surface)) {
    impl_->background = Resolve(Background);
    UseColor(impl_->cr, impl_->background);
    cairo_paint(impl_->cr);
}

TKorImageCanvas::~TKorImageCanvas() = default;

void TKorImageCanvas::ShowText(const std::string& Utf8, double X, double Baseline, std::int32_t Width,
                               Platform::TColor Color) {
    if (impl_->format != TImageFormat::Svg) return TKorCairoCanvas::ShowText(Utf8, X, Baseline, Width, Color);
    std::string& out = impl_->svgElements;
    out += "  <text x=\"" + Number(X) + "\" y=\"" + Number(Baseline) + "\" font-family=\"" +
           EscapeXml(RenderingFace(Font().Name)) + "\" font-size=\"" + std::to_string(Font().Size) + "pt\"" +
           impl_->Paint("fill", Color);
    if (Font().Style & Platform::fsBold) out += " font-weight=\"bold\"";
    if (Font().Style & Platform::fsItalic) out += " font-style=\"italic\"";
    if (Font().Name == "Symbol") out += " class=\"symbol\"";
    out += " xml:space=\"preserve\">" + EscapeXml(Utf8) + "</text>\n";
}

void TKorImageCanvas::FillRect(const Platform::TRect& Rect, Platform::TColor Color) {
    if (impl_->format != TImageFormat::Svg) return TKorCairoCanvas::FillRect(Rect, Color);
    if (Rect.Width() <= 0 || Rect.Height() <= 0) return;
    impl_->svgElements += "  <rect x=\"" + std::to_string(Rect.Left) + "\" y=\"" + std::to_string(Rect.Top) +
                          "\" width=\"" + std::to_string(Rect.Width()) + "\" height=\"" +
                          std::to_string(Rect.Height()) + "\"" + impl_->Paint("fill", Resolve(Color)) + "/>\n";
}

void TKorImageCanvas::FrameRect(const Platform::TRect& Rect, Platform::TColor Color) {
    if (impl_->format != TImageFormat::Svg) return TKorCairoCanvas::FrameRect(Rect, Color);
    if (Rect.Width() <= 0 || Rect.Height() <= 0) return;
    impl_->svgElements += "  <rect x=\"" + Number(Rect.Left + 0.5) + "\" y=\"" + Number(Rect.Top + 0.5) +
                          "\" width=\"" + std::to_string(Rect.Width() - 1) + "\" height=\"" +
                          std::to_string(Rect.Height() - 1) + "\" fill=\"none\"" +
                          impl_->Paint("stroke", Resolve(Color)) + "/>\n";
}

void TKorImageCanvas::DrawLine(std::int32_t X1, std::int32_t Y1, std::int32_t X2, std::int32_t Y2,
                               Platform::TColor Color) {
    if (impl_->format != TImageFormat::Svg) return TKorCairoCanvas::DrawLine(X1, Y1, X2, Y2, Color);
    if (Platform::TRect pixels; AxisLine(X1, Y1, X2, Y2, pixels)) return FillRect(pixels, Color);
    impl_->svgElements += "  <line x1=\"" + Number(X1 + 0.5) + "\" y1=\"" + Number(Y1 + 0.5) + "\" x2=\"" +
                          Number(X2 + 0.5) + "\" y2=\"" + Number(Y2 + 0.5) + "\"" +
                          impl_->Paint("stroke", Resolve(Color)) + "/>\n";
}

void TKorImageCanvas::Polyline(std::span<const Platform::TPointF> Points, Platform::TColor Color, double Width) {
    if (impl_->format != TImageFormat::Svg) return TKorCairoCanvas::Polyline(Points, Color, Width);
    if (Points.size() < 2) return;
    std::string& out = impl_->svgElements;
    out += "  <polyline points=\"";
    for (std::size_t i = 0; i < Points.size(); ++i) {
        if (i > 0) out += ' ';
        out += Number(Points[i].X);
        out += ',';
        out += Number(Points[i].Y);
    }
    out += "\" fill=\"none\" stroke-width=\"" + Number(Width) + "\" stroke-linejoin=\"round\"" +
           impl_->Paint("stroke", Resolve(Color)) + "/>\n";
}

void TKorImageCanvas::SetClipRect(const Platform::TRect& Rect) {
    TKorCairoCanvas::SetClipRect(Rect);
    if (impl_->format != TImageFormat::Svg) return;
    const std::string id = "clip" + std::to_string(++impl_->svgClips);
    impl_->svgElements += "  <clipPath id=\"" + id + "\"><rect x=\"" + std::to_string(Rect.Left) + "\" y=\"" +
                          std::to_string(Rect.Top) + "\" width=\"" + std::to_string(std::max(0, Rect.Width())) +
                          "\" height=\"" + std::to_string(std::max(0, Rect.Height())) + "\"/></clipPath>\n";
    impl_->svgClip = " clip-path=\"url(#" + id + ")\"";
}

void TKorImageCanvas::ResetClipRect() {
    TKorCairoCanvas::ResetClipRect();
    impl_->svgClip.clear();
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
            cairo_surface_flush(impl_->surface);
            try {
                return detail::EncodePng(cairo_image_surface_get_data(impl_->surface), impl_->width, impl_->height,
                                         cairo_image_surface_get_stride(impl_->surface));
            } catch (const std::runtime_error& error) {
                throw Platform::Exception(std::string("cannot write the PNG: ") + error.what());
            }
        }
        case TImageFormat::Pdf: {
            cairo_surface_finish(impl_->surface);
            const cairo_status_t status = cairo_surface_status(impl_->surface);
            if (status != CAIRO_STATUS_SUCCESS)
                throw Platform::Exception(std::string("Cairo cannot write the PDF: ") + cairo_status_to_string(status));
            return impl_->pdf;
        }
    }
    return {};
}

void TKorImageCanvas::SaveToFile(const std::string& Path) {
    const std::string bytes = Contents();
    const int file = ::open(Path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (file < 0) throw EWriteError(Path, errno);
    // After a failure only a regular file is removed, a device or a pipe being not ours to
    // remove; through a symbolic link, the file it names is removed, not the link.
    struct stat written {};
    const bool regular = ::fstat(file, &written) == 0 && S_ISREG(written.st_mode);
    const auto removeWritten = [&] {
        if (!regular) return;
        char* real = ::realpath(Path.c_str(), nullptr);
        if (real == nullptr) return;
        struct stat named {};
        if (::stat(real, &named) == 0 && named.st_dev == written.st_dev && named.st_ino == written.st_ino) ::unlink(real);
        std::free(real);
    };
    for (std::size_t done = 0; done < bytes.size();) {
        const ssize_t wrote = ::write(file, bytes.data() + done, bytes.size() - done);
        if (wrote >= 0) {
            done += std::size_t(wrote);
        } else if (errno != EINTR) {
            const int error = errno;
            ::close(file);
            removeWritten();
            throw EWriteError(Path, error);
        }
    }
    // A full disk or a lost network file system may only show when the file is closed.
    // Linux releases the descriptor even when close fails, so it is not closed again.
    if (::close(file) != 0 && errno != EINTR) {
        const int error = errno;
        removeWritten();
        throw EWriteError(Path, error);
    }
}

}  // namespace KornumCanvas
