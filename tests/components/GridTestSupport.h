// A canvas that records what the grid edits draw, and input helpers for their tests.
#pragma once

#include <kornum/KornumGridEdit.h>
#include <kornum/PlatformInput.h>

#include <string>
#include <vector>

namespace KornumTest {

// Every character is 10 pixels wide and a line 12 high; text, fills and clips are kept.
class GridCanvas : public Platform::TCanvas {
public:
    struct Text {
        std::string text;
        Platform::TRect rect;
        Platform::TColor color;
    };
    std::vector<Text> texts;
    std::vector<std::pair<Platform::TRect, Platform::TColor>> fills, frames;
    int lines = 0, clips = 0;

    std::int32_t TextWidth(std::string_view text) override { return std::int32_t(10 * text.size()); }
    std::int32_t DrawText(std::string_view text, Platform::TRect& rect, std::uint32_t flags) override {
        if (flags & Platform::TextFlags::CalcRect) {
            rect.Right = rect.Left + TextWidth(text);
            rect.Bottom = rect.Top + 12;
        } else {
            texts.push_back({std::string(text), rect, Font().Color});
        }
        return 12;
    }
    void FillRect(const Platform::TRect& rect, Platform::TColor color) override { fills.emplace_back(rect, color); }
    void FrameRect(const Platform::TRect& rect, Platform::TColor color) override { frames.emplace_back(rect, color); }
    void DrawLine(std::int32_t, std::int32_t, std::int32_t, std::int32_t, Platform::TColor) override { ++lines; }
    void SetClipRect(const Platform::TRect&) override { ++clips; }

    // The texts drawn, in order.
    std::vector<std::string> Drawn() const {
        std::vector<std::string> drawn;
        for (const Text& t : texts) drawn.push_back(t.text);
        return drawn;
    }
    bool HasText(const std::string& text) const {
        for (const Text& t : texts)
            if (t.text == text) return true;
        return false;
    }
};

// Presses Key with Shift on the grid; returns whether the grid handled it.
inline bool Press(KornumGridEdit::TKorCustomGridEdit& grid, Kornumglobals::Word key, Platform::TShiftState shift = 0) {
    grid.KeyDown(key, shift);
    return key == 0;
}

// Types Text into the grid and presses Enter.
inline void Enter(KornumGridEdit::TKorCustomGridEdit& grid, std::string_view text) {
    grid.TextInput(text);
    Press(grid, Platform::vkReturn);
}

}  // namespace KornumTest
