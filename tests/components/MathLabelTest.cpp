// The math label against a canvas that records every draw.
#include "TestSupport.h"

#include <kornum/KornumMathLabel.h>
#include <kornum/PlatformStreaming.h>

#include <string>
#include <vector>

namespace {

using namespace KornumMathLabel;
using Platform::TColor;
using Platform::TRect;
namespace TextFlags = Platform::TextFlags;

struct Draw {
    std::string text, face;
    TColor color;
    TRect rect;
    std::uint32_t flags;
    bool operator==(const Draw&) const = default;
};

// Every character is 10 pixels wide and 12 high.
class RecordingCanvas : public Platform::TCanvas {
public:
    std::vector<Draw> draws;
    std::int32_t TextWidth(std::string_view text) override { return std::int32_t(10 * text.size()); }
    std::int32_t DrawText(std::string_view text, TRect& rect, std::uint32_t flags) override {
        draws.push_back({std::string(text), Font().Name, Font().Color, rect, flags});
        if (flags & TextFlags::CalcRect) {
            rect.Right = rect.Left + TextWidth(text);
            rect.Bottom = rect.Top + 12;
        }
        return 12;
    }
};

// What the label draws for a caption on a 200 x 20 label, as (text, face) pairs.
std::vector<std::pair<std::string, std::string>> Drawn(const std::string& caption,
                                                       Platform::TTextEncoding encoding = Platform::TTextEncoding::Latin1) {
    TKorMathLabel label(nullptr);
    label.SetCaption(caption);
    label.SetBounds(0, 0, 200, 20);
    RecordingCanvas canvas;
    canvas.SetTextEncoding(encoding);
    label.Paint(canvas);
    std::vector<std::pair<std::string, std::string>> drawn;
    for (const Draw& d : canvas.draws) drawn.emplace_back(d.text, d.face);
    return drawn;
}

using Pairs = std::vector<std::pair<std::string, std::string>>;
const std::string Text = "DejaVu Sans", Symbol = "Symbol";

TEST(MathLabel, CaretsIntroduceSymbols) {
    EXPECT_EQ(Drawn("x^+y"), (Pairs{{"x", Text}, {"\xB9", Symbol}, {"y", Text}}));
    EXPECT_EQ(Drawn("^^"), (Pairs{{"^", Text}}));
    EXPECT_EQ(Drawn("^p r^2"), (Pairs{{"p", Symbol}, {" ", Text}, {"r", Text}, {"\xC7", Symbol}}));
    EXPECT_EQ(Drawn("a^"), (Pairs{{"a", Text}}));
    EXPECT_EQ(Drawn(""), Pairs{});
    EXPECT_EQ(Drawn("^#^?"), (Pairs{{" ", Symbol}, {" ", Symbol}}));  // any other character: a blank
    EXPECT_EQ(Drawn("^W^z"), (Pairs{{"W", Symbol}, {"z", Symbol}}));
}

TEST(MathLabel, EveryRowOfTheEscapeTable) {
    const std::vector<std::pair<char, unsigned char>> table = {
        {'!', 0xDA}, {'%', 0xB0}, {'&', 0xA5}, {'(', 0xAB}, {')', 0xDB}, {'*', 0xB4}, {'+', 0xB9}, {',', 0xBC},
        {'-', 0xB1}, {'.', 0xB7}, {'/', 0xB8}, {'0', 0xC6}, {'1', 0xC8}, {'2', 0xC7}, {'3', 0xC9}, {'4', 0xCA},
        {'5', 0xCB}, {'6', 0xCC}, {'7', 0xCD}, {'8', 0xCE}, {'9', 0xCF}, {'<', 0xA3}, {'=', 0xBB}, {'>', 0xB3},
        {'@', 0xD9}, {'[', 0xDE}, {']', 0xDC}, {'{', 0xAE}, {'}', 0xAC}};
    for (auto [c, code] : table) EXPECT_EQ(Drawn(std::string("^") + c), (Pairs{{std::string(1, char(code)), Symbol}})) << c;
    // And what the symbol typeface shows at those codes.
    EXPECT_EQ(Platform::DecodeText("\xB9pW\xDA", "Symbol"), (std::u32string{0x2260, 0x03C0, 0x03A9, 0x2228}));
    EXPECT_EQ(Platform::TextToUtf8("\xA5\xCE", "Symbol"), "\u221E\u2208");
    EXPECT_EQ(Platform::TextToUtf8("p\xE9", "DejaVu Sans"), "p\u00E9");  // other faces: Latin-1
}

TEST(MathLabel, OnAUtf8CanvasACharacterIsAWholeSequence) {
    constexpr auto utf8 = Platform::TTextEncoding::Utf8;
    // mu (2 bytes), e-acute (2), the euro sign (3) and a musical G clef (4 bytes) are one
    // draw each; a caret before a long character gives the blank of "any other character".
    EXPECT_EQ(Drawn("\u00B5c\u00E9\u20AC\U0001D11E", utf8),
              (Pairs{{"\u00B5", Text}, {"c", Text}, {"\u00E9", Text}, {"\u20AC", Text}, {"\U0001D11E", Text}}));
    EXPECT_EQ(Drawn("^\u00E9x^p^^\u00E9", utf8), (Pairs{{" ", Symbol}, {"x", Text}, {"p", Symbol}, {"^", Text}, {"\u00E9", Text}}));
    // The same bytes on a Latin-1 canvas are one character each, as always.
    EXPECT_EQ(Drawn("^\u00E9", Platform::TTextEncoding::Latin1), (Pairs{{" ", Symbol}, {"\xA9", Text}}));

    // A caption that is not UTF-8 draws nothing and says where it goes wrong.
    TKorMathLabel label(nullptr);
    label.SetCaption("ab\xC3(");
    RecordingCanvas canvas;
    canvas.SetTextEncoding(utf8);
    EXPECT_TRUE(KornumTest::Raises<Platform::EConvertError>([&] { label.Paint(canvas); },
                                                            "the text is not UTF-8: byte 0xC3 at offset 2"));
    EXPECT_TRUE(canvas.draws.empty());
}

TEST(MathLabel, Utf8SequencesAndTheirDecoding) {
    using Platform::Utf8CharLength;
    // Shortest and longest of each length, from the Unicode standard's table of well-formed
    // byte sequences.
    for (const char* valid : {"\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
                              "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"})
        EXPECT_EQ(Utf8CharLength(valid), std::string_view(valid).size()) << valid;
    // Continuation and unused lead bytes, overlong forms, surrogates, beyond U+10FFFF, cut short.
    for (const char* invalid : {"\x80", "\xBF", "\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF",
                                "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF", "\xE2\x82", "\xC2" "A", ""})
        EXPECT_EQ(Utf8CharLength(invalid), 0u) << invalid;
    EXPECT_TRUE(Platform::IsUtf8(""));
    EXPECT_TRUE(Platform::IsUtf8("caf\u00E9 \U0001F600"));
    EXPECT_FALSE(Platform::IsUtf8("caf\xE9"));

    constexpr auto utf8 = Platform::TTextEncoding::Utf8;
    EXPECT_EQ(Platform::DecodeText("\u00B5\u20AC\U0001D11E", "DejaVu Sans", utf8), (std::u32string{0xB5, 0x20AC, 0x1D11E}));
    // A Symbol face reads bytes through its own encoding whatever the canvas reads.
    EXPECT_EQ(Platform::TextToUtf8("\xB9p", "Symbol", utf8), "\u2260\u03C0");
    EXPECT_TRUE(KornumTest::Raises<Platform::EConvertError>([] { Platform::DecodeText("ok\xFF", "Serif", utf8); },
                                                            "the text is not UTF-8: byte 0xFF at offset 2"));
}

TEST(MathLabel, DrawsOneCharacterAtATimeUntilTheRightEdge) {
    TKorMathLabel label(nullptr);
    label.SetCaption("ab^pcdef");
    label.SetBounds(0, 0, 25, 20);
    label.Font().Color = TColor::RGB(1, 2, 3);
    RecordingCanvas canvas;
    label.Paint(canvas);
    // a at 0, b at 10, pi at 20; the left edge then reaches 30, past 25: the rest is dropped.
    ASSERT_EQ(canvas.draws.size(), 3u);
    const std::uint32_t flags = TextFlags::ExpandTabs | TextFlags::Left;
    EXPECT_EQ(canvas.draws[0], (Draw{"a", Text, TColor::RGB(1, 2, 3), {0, 0, 25, 20}, flags}));
    EXPECT_EQ(canvas.draws[2], (Draw{"p", Symbol, TColor::RGB(1, 2, 3), {20, 0, 25, 20}, flags}));
}

TEST(MathLabel, EffectsDrawBelowRightThenAboveLeftThenTheText) {
    for (auto [effect, down, up] : {std::tuple{Kornumcontrols::TLabelEffect::Raised, Platform::clBtnShadow, Platform::clBtnHighlight},
                                    {Kornumcontrols::TLabelEffect::Sunken, Platform::clBtnHighlight, Platform::clBtnShadow}}) {
        TKorMathLabel label(nullptr);
        label.SetCaption("^a");
        label.SetBounds(0, 0, 100, 20);
        label.SetEffect(effect);
        RecordingCanvas canvas;
        label.Paint(canvas);
        ASSERT_EQ(canvas.draws.size(), 3u);
        EXPECT_EQ(canvas.draws[0].rect, (TRect{1, 1, 101, 21}));
        EXPECT_EQ(canvas.draws[0].color, down);
        EXPECT_EQ(canvas.draws[1].rect, (TRect{-1, -1, 99, 19}));
        EXPECT_EQ(canvas.draws[1].color, up);
        EXPECT_EQ(canvas.draws[2].rect, (TRect{0, 0, 100, 20}));
        EXPECT_EQ(canvas.draws[2].color, Platform::clWindowText);
        for (const Draw& d : canvas.draws) EXPECT_EQ(d.face, Symbol);
    }
}

TEST(MathLabel, DisabledGreyNoPrefixAndMeasuring) {
    TKorMathLabel label(nullptr);
    label.SetCaption("a^b&");
    label.SetEnabled(false);
    label.SetShowAccelChar(false);
    RecordingCanvas canvas;
    label.Paint(canvas);
    ASSERT_EQ(canvas.draws.size(), 3u);
    for (const Draw& d : canvas.draws) {
        EXPECT_EQ(d.color, Platform::clGrayText);
        EXPECT_TRUE(d.flags & TextFlags::NoPrefix);
    }
    // Measuring an empty caption measures a blank; a centred layout measures first.
    label.SetCaption("");
    label.SetLayout(Kornumcontrols::TTextLayout::Center);
    label.SetBounds(0, 0, 100, 40);
    RecordingCanvas measuring;
    label.Paint(measuring);
    ASSERT_EQ(measuring.draws.size(), 1u);
    EXPECT_EQ(measuring.draws[0].text, " ");
    EXPECT_TRUE(measuring.draws[0].flags & TextFlags::CalcRect);
}

TEST(MathLabel, ConstructionPropertiesAndTextForm) {
    TKorMathLabel label(nullptr);
    EXPECT_EQ(label.SymbolFont().Name, "Symbol");
    EXPECT_EQ(label.SymbolFont().Size, label.Font().Size);
    EXPECT_FALSE(label.AutoSize());
    EXPECT_EQ(label.Alignment(), Kornumcontrols::TAlignment::LeftJustify);
    EXPECT_TRUE(label.ShowAccelChar());
    EXPECT_FALSE(label.WordWrap());
    EXPECT_EQ(label.Layout(), Kornumcontrols::TTextLayout::Top);

    std::vector<std::string> names;
    for (const auto& property : label.PublishedProperties()) names.push_back(property.Name);
    EXPECT_EQ(names, (std::vector<std::string>{
                         "Align",         "Anchors",       "BiDiMode",      "Caption",     "Color",       "Constraints",
                         "DragCursor",    "DragKind",      "DragMode",      "Enabled",     "FocusControl", "Font",
                         "Layout",        "ParentBiDiMode", "ParentColor",  "ParentFont",  "ParentShowHint", "PopupMenu",
                         "ShowAccelChar", "ShowHint",      "Transparent",   "Visible",     "WordWrap",    "OnClick",
                         "OnContextPopup", "OnDblClick",   "OnDragDrop",    "OnDragOver",  "OnEndDock",   "OnEndDrag",
                         "OnMouseDown",   "OnMouseMove",   "OnMouseUp",     "OnStartDock", "OnStartDrag"}));

    label.SetName("Formula");
    label.SetCaption("^a ^+ ^b");
    label.Font().FromText("DejaVu Serif;14;BI;#102030");
    label.SetEnabled(false);
    TKorMathLabel copy(nullptr);
    Platform::ReadComponentText(copy, Platform::WriteComponentText(label));
    EXPECT_EQ(copy.Name(), "Formula");
    EXPECT_EQ(copy.Caption(), "^a ^+ ^b");
    EXPECT_EQ(copy.Font().ToText(), "DejaVu Serif;14;BI;#102030");
    EXPECT_FALSE(copy.Enabled());
    EXPECT_THROW(copy.Font().FromText("Sans;x;;#000000"), Platform::EConvertError);
}

}  // namespace
