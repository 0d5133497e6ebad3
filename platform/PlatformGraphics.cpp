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

std::u32string DecodeText(std::string_view Text, std::string_view Face) {
    std::u32string characters;
    characters.reserve(Text.size());
    for (char byte : Text) {
        const auto value = static_cast<unsigned char>(byte);
        characters += Face == "Symbol" ? SymbolEncodingToUnicode(value) : char32_t(value);
    }
    return characters;
}

std::string TextToUtf8(std::string_view Text, std::string_view Face) {
    std::string out;
    for (char32_t c : DecodeText(Text, Face))
        if (c != 0) AppendUtf8(out, c);
    return out;
}

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
