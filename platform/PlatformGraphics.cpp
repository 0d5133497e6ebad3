#include <kornum/PlatformGraphics.h>

#include <kornum/PlatformExceptions.h>

#include <array>
#include <charconv>
#include <cstdio>

namespace Platform {
namespace {

constexpr std::array<std::pair<TSystemColor, const char*>, 5> SystemColorNames{{
    {TSystemColor::WindowText, "clWindowText"},
    {TSystemColor::BtnFace, "clBtnFace"},
    {TSystemColor::BtnHighlight, "clBtnHighlight"},
    {TSystemColor::BtnShadow, "clBtnShadow"},
    {TSystemColor::GrayText, "clGrayText"},
}};

constexpr std::array<std::pair<std::uint8_t, char>, 4> StyleLetters{{
    {fsBold, 'B'}, {fsItalic, 'I'}, {fsUnderline, 'U'}, {fsStrikeOut, 'S'}}};

void AppendUtf8(std::string& out, char32_t c) {
    if (c < 0x80) {
        out += char(c);
    } else if (c < 0x800) {
        out += char(0xC0 | (c >> 6));
        out += char(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += char(0xE0 | (c >> 12));
        out += char(0x80 | ((c >> 6) & 0x3F));
        out += char(0x80 | (c & 0x3F));
    } else {
        out += char(0xF0 | (c >> 18));
        out += char(0x80 | ((c >> 12) & 0x3F));
        out += char(0x80 | ((c >> 6) & 0x3F));
        out += char(0x80 | (c & 0x3F));
    }
}

[[noreturn]] void BadFont(std::string_view text) {
    throw EConvertError("'" + std::string(text) + "' is not a font (Face;Size;Styles;Colour)");
}

}  // namespace

std::string TColor::Html() const {
    char text[8];
    std::snprintf(text, sizeof text, "#%02X%02X%02X", Red(), Green(), Blue());
    return text;
}

void TFont::Assign(const TPersistent& Source) {
    const auto* font = dynamic_cast<const TFont*>(&Source);
    if (font == nullptr) return TPersistent::Assign(Source);
    Name = font->Name;
    Size = font->Size;
    Style = font->Style;
    Color = font->Color;
}

std::string ColorToText(TColor Color) {
    for (auto [system, name] : SystemColorNames)
        if (Color.IsSystem() && Color.SystemColor() == system) return name;
    return Color.Html();
}

TColor ColorFromText(std::string_view Text) {
    for (auto [system, name] : SystemColorNames)
        if (Text == name) return TColor::System(system);
    unsigned value = 0;
    const char* last = Text.data() + Text.size();
    if (Text.size() == 7 && Text[0] == '#') {
        auto [end, error] = std::from_chars(Text.data() + 1, last, value, 16);
        if (error == std::errc() && end == last)
            return TColor::RGB(std::uint8_t(value >> 16), std::uint8_t(value >> 8), std::uint8_t(value));
    }
    throw EConvertError("'" + std::string(Text) + "' is not a colour (#RRGGBB or a system colour)");
}

std::string TFont::ToText() const {
    std::string styles;
    for (auto [bit, letter] : StyleLetters)
        if (Style & bit) styles += letter;
    return Name + ";" + std::to_string(Size) + ";" + styles + ";" + ColorToText(Color);
}

void TFont::FromText(std::string_view Text) {
    std::string_view parts[4];
    std::string_view rest = Text;
    for (int i = 0; i < 4; ++i) {
        const std::size_t end = i < 3 ? rest.find(';') : rest.size();
        if (end == std::string_view::npos) BadFont(Text);
        parts[i] = rest.substr(0, end);
        rest.remove_prefix(i < 3 ? end + 1 : end);
    }
    std::int32_t size = 0;
    auto [end, error] = std::from_chars(parts[1].data(), parts[1].data() + parts[1].size(), size);
    if (parts[0].empty() || error != std::errc() || end != parts[1].data() + parts[1].size() || size <= 0) BadFont(Text);
    std::uint8_t style = 0;
    for (char c : parts[2]) {
        bool known = false;
        for (auto [bit, letter] : StyleLetters)
            if (c == letter) style |= bit, known = true;
        if (!known) BadFont(Text);
    }
    TColor color;
    try {
        color = ColorFromText(parts[3]);
    } catch (const EConvertError&) {
        BadFont(Text);
    }
    Name = std::string(parts[0]);
    Size = size;
    Style = style;
    Color = color;
}

std::size_t Utf8CharLength(std::string_view Text) noexcept {
    if (Text.empty()) return 0;
    const auto byte = [Text](std::size_t i) { return static_cast<unsigned char>(Text[i]); };
    const unsigned char lead = byte(0);
    if (lead < 0x80) return 1;
    // The lead byte gives the length; the range of the second byte excludes the overlong
    // forms (after E0 and F0), the surrogates (after ED) and what lies beyond U+10FFFF
    // (after F4).
    std::size_t length;
    unsigned char low = 0x80, high = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        if (lead == 0xE0) low = 0xA0;
        if (lead == 0xED) high = 0x9F;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        if (lead == 0xF0) low = 0x90;
        if (lead == 0xF4) high = 0x8F;
    } else {
        return 0;
    }
    if (Text.size() < length || byte(1) < low || byte(1) > high) return 0;
    for (std::size_t i = 2; i < length; ++i)
        if (byte(i) < 0x80 || byte(i) > 0xBF) return 0;
    return length;
}

bool IsUtf8(std::string_view Text) noexcept {
    while (!Text.empty()) {
        const std::size_t length = Utf8CharLength(Text);
        if (length == 0) return false;
        Text.remove_prefix(length);
    }
    return true;
}

void CheckUtf8(std::string_view Text) {
    for (std::size_t at = 0; at < Text.size();) {
        const std::size_t length = Utf8CharLength(Text.substr(at));
        if (length == 0) {
            char message[64];
            std::snprintf(message, sizeof message, "the text is not UTF-8: byte 0x%02X at offset %zu",
                          unsigned(static_cast<unsigned char>(Text[at])), at);
            throw EConvertError(message);
        }
        at += length;
    }
}

std::u32string DecodeText(std::string_view Text, std::string_view Face, TTextEncoding Encoding) {
    std::u32string characters;
    characters.reserve(Text.size());
    if (Face != "Symbol" && Encoding == TTextEncoding::Utf8) {
        CheckUtf8(Text);
        while (!Text.empty()) {
            const std::size_t length = Utf8CharLength(Text);
            // The lead byte's payload bits, then six bits from each continuation byte.
            static constexpr unsigned char LeadMask[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
            char32_t c = static_cast<unsigned char>(Text[0]) & LeadMask[length];
            for (std::size_t i = 1; i < length; ++i) c = c << 6 | (static_cast<unsigned char>(Text[i]) & 0x3F);
            characters += c;
            Text.remove_prefix(length);
        }
        return characters;
    }
    for (char byte : Text) {
        const auto value = static_cast<unsigned char>(byte);
        characters += Face == "Symbol" ? SymbolEncodingToUnicode(value) : char32_t(value);
    }
    return characters;
}

std::string TextToUtf8(std::string_view Text, std::string_view Face, TTextEncoding Encoding) {
    std::string out;
    for (char32_t c : DecodeText(Text, Face, Encoding))
        if (c != 0) AppendUtf8(out, c);
    return out;
}

// A canvas that draws only text ignores shapes and clipping.
void TCanvas::FillRect(const TRect&, TColor) {}
void TCanvas::FrameRect(const TRect&, TColor) {}
void TCanvas::DrawLine(std::int32_t, std::int32_t, std::int32_t, std::int32_t, TColor) {}
void TCanvas::Polyline(std::span<const TPointF>, TColor, double) {}
void TCanvas::SetClipRect(const TRect&) {}
void TCanvas::ResetClipRect() {}

TColor TCanvas::Resolve(TColor Color) const {
    if (!Color.IsSystem()) return Color;
    switch (Color.SystemColor()) {
        case TSystemColor::WindowText: return clBlack;
        case TSystemColor::BtnFace: return TColor::RGB(240, 240, 240);
        case TSystemColor::BtnHighlight: return clWhite;
        case TSystemColor::BtnShadow: return TColor::RGB(160, 160, 160);
        case TSystemColor::GrayText: return TColor::RGB(109, 109, 109);
    }
    return clBlack;
}

}  // namespace Platform
