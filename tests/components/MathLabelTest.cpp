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
std::vector<std::pair<std::string, std::string>> Drawn(const std::string& caption) {
    TKorMathLabel label(nullptr);
    label.SetCaption(caption);
    label.SetBounds(0, 0, 200, 20);
    RecordingCanvas canvas;
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
