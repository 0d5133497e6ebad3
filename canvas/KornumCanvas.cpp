#include "KornumCanvas.h"

#include <kornum/PlatformExceptions.h>

#include <cairo-pdf.h>
#include <cairo.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

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
      reason_(std::strerror(Error)) {}

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

    ~Impl() {
        if (cr != nullptr) cairo_destroy(cr);
        if (surface != nullptr) cairo_surface_destroy(surface);
    }

    // Cairo set to the canvas font: face, slant, weight and size in pixels.
    void UseFont(const Platform::TFont& font) {
        cairo_select_font_face(cr, RenderingFace(font.Name).c_str(),
                               font.Style & Platform::fsItalic ? CAIRO_FONT_SLANT_ITALIC : CAIRO_FONT_SLANT_NORMAL,
                               font.Style & Platform::fsBold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
        cairo_set_font_size(cr, font.Size * PixelsPerPoint);
    }

    // Raises EMissingGlyph for the first character of the UTF-8 text that the current font
    // maps to glyph 0, the font's "no such character" box.
    void CheckGlyphs(const std::string& utf8, const std::string& face) {
        if (utf8.empty()) return;
        cairo_glyph_t* glyphs = nullptr;
        cairo_text_cluster_t* clusters = nullptr;
        int glyphCount = 0, clusterCount = 0;
        cairo_text_cluster_flags_t flags;
        const cairo_status_t status =
            cairo_scaled_font_text_to_glyphs(cairo_get_scaled_font(cr), 0, 0, utf8.data(), int(utf8.size()), &glyphs,
                                             &glyphCount, &clusters, &clusterCount, &flags);
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
};

TKorImageCanvas::TKorImageCanvas(TImageFormat Format, std::int32_t Width, std::int32_t Height,
                                 Platform::TColor Background)
    : impl_(std::make_unique<Impl>()) {
    const std::string size = std::to_string(Width) + " x " + std::to_string(Height) + " pixels";
    if (Width < 1 || Height < 1) throw EImageSize("an image of " + size + " is empty: both sides must be at least 1");
    if (Format == TImageFormat::Png && (Width > MaxPngSide || Height > MaxPngSide))
        throw EImageSize("an image of " + size + " is too large for a PNG: at most " + std::to_string(MaxPngSide) +
                         " pixels each way");
    impl_->format = Format;
    impl_->width = Width;
    impl_->height = Height;
    impl_->background = Resolve(Background);
    // A PDF page is in points: the surface is scaled so that the canvas draws in pixels and
    // a font of n points is n points on the page. An SVG is written by hand; its surface
    // only measures, so one pixel does.
    constexpr double PointsPerPixel = 1 / PixelsPerPoint;
    if (Format == TImageFormat::Pdf)
        impl_->surface = cairo_pdf_surface_create_for_stream(AppendTo, &impl_->pdf, Width * PointsPerPixel,
                                                             Height * PointsPerPixel);
    else
        impl_->surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, Format == TImageFormat::Png ? Width : 1,
                                                    Format == TImageFormat::Png ? Height : 1);
    impl_->cr = cairo_create(impl_->surface);
    if (const cairo_status_t status = cairo_status(impl_->cr); status != CAIRO_STATUS_SUCCESS)
        throw EImageSize("Cairo cannot make an image of " + size + ": " + cairo_status_to_string(status));
    if (Format == TImageFormat::Pdf) cairo_scale(impl_->cr, PointsPerPixel, PointsPerPixel);
    const Platform::TColor b = impl_->background;
    cairo_set_source_rgb(impl_->cr, b.Red() / 255.0, b.Green() / 255.0, b.Blue() / 255.0);
    cairo_paint(impl_->cr);
}

TKorImageCanvas::~TKorImageCanvas() = default;

std::int32_t TKorImageCanvas::TextWidth(std::string_view Text) {
    impl_->UseFont(Font());
    const std::string utf8 = Platform::TextToUtf8(Text, Font().Name, TextEncoding());
    impl_->CheckGlyphs(utf8, Font().Name);
    cairo_text_extents_t extents;
    cairo_text_extents(impl_->cr, utf8.c_str(), &extents);
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
    const std::string utf8 = Platform::TextToUtf8(bytes, Font().Name, TextEncoding());
    const Platform::TColor color = Resolve(Font().Color);
    impl_->drawnRight = std::max(impl_->drawnRight, std::int32_t(std::ceil(x)) + width);
    if (impl_->format == TImageFormat::Svg) {
        std::string& out = impl_->svgElements;
        out += "  <text x=\"" + Number(x) + "\" y=\"" + Number(baseline) + "\" font-family=\"" +
               EscapeXml(RenderingFace(Font().Name)) + "\" font-size=\"" + std::to_string(Font().Size) +
               "pt\" fill=\"" + color.Html() + "\"";
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
            const cairo_status_t status = cairo_surface_write_to_png_stream(impl_->surface, AppendTo, &png);
            if (status != CAIRO_STATUS_SUCCESS)
                throw Platform::Exception(std::string("Cairo cannot write the PNG: ") + cairo_status_to_string(status));
            return png;
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
