// The vector edits on a recording canvas, driven by synthetic keys, text and clicks.
#include "GridTestSupport.h"
#include "TestSupport.h"

#include <kornum/Kornum_RS_Math.h>
#include <kornum/Kornumconvert.h>
#include <kornum/KornumVectorEdit.h>

#include <cmath>
#include <limits>
#include <set>

namespace {

using namespace KornumVectorEdit;
using namespace KornumTest;
using Kornum_RS_Math::rsInvalidRow;
using Platform::ssCtrl;
using Platform::ssShift;
using Platform::TColor;

const Float NaN = std::numeric_limits<Float>::quiet_NaN();

TKorFloatVector Numbers(int n) {
    TKorFloatVector v;
    v.SetLength(n);
    for (int i = 0; i < n; ++i) v[i] = i;
    return v;
}

// A 200 x 150 edit: a title row and six whole value rows of 20 pixels.
struct VectorEditTest : ::testing::Test {
    TKorFloatVector v = Numbers(100);
    TKorVectorEdit edit{nullptr};
    void SetUp() override {
        edit.SetVector(v);
        edit.SetBounds(0, 0, 200, 150);
    }
};

TEST_F(VectorEditTest, EditsAreSeenThroughTheCallersVector) {
    Enter(edit, "2.5");
    EXPECT_EQ(v[0], 2.5L);
    EXPECT_EQ(edit.CurrentRow(), 1);  // Enter commits and moves down
    v[1] = 7;
    EXPECT_EQ(edit.GetElement(1), 7);
    edit.SetElement(2, -1);
    EXPECT_EQ(v[2], -1);
    edit.SwapElements(0, 2);
    EXPECT_EQ(v[0], -1);
    EXPECT_EQ(v[2], 2.5L);
    EXPECT_EQ(edit.Count(), 100);
}

TEST_F(VectorEditTest, AnIndexOutOfRangeRaisesTheRootExceptionAndChangesNothing) {
    EXPECT_TRUE(Raises<Platform::Exception>([&] { edit.GetElement(-1); }, rsInvalidRow));
    EXPECT_TRUE(Raises<Platform::Exception>([&] { edit.GetElement(100); }, rsInvalidRow));
    EXPECT_TRUE(Raises<Platform::Exception>([&] { edit.SetElement(100, 1); }, rsInvalidRow));
    EXPECT_TRUE(Raises<Platform::Exception>([&] { edit.SwapElements(0, 100); }, rsInvalidRow));
    EXPECT_TRUE(Raises<Platform::Exception>([&] { edit.SwapElements(-1, 0); }, rsInvalidRow));
    EXPECT_EQ(v[0], 0);
    TKorLabelledVectorEdit labelled(nullptr);
    labelled.SetVector(Numbers(2));
    EXPECT_TRUE(Raises<Platform::Exception>([&] { labelled.GetLabel(2); }, rsInvalidRow));
    EXPECT_TRUE(Raises<Platform::Exception>([&] { labelled.SetLabel(-1, "x"); }, rsInvalidRow));
    EXPECT_EQ(labelled.Labels().Count(), 0);
}

TEST_F(VectorEditTest, NavigationKeysMoveTheCurrentCellAndScrollToIt) {
    for (int i = 0; i < 7; ++i) EXPECT_TRUE(Press(edit, Platform::vkDown));
    EXPECT_EQ(edit.CurrentRow(), 7);
    EXPECT_EQ(edit.TopRow(), 2);  // rows 2 to 7 in view
    EXPECT_TRUE(Press(edit, Platform::vkNext));
    EXPECT_EQ(edit.CurrentRow(), 13);
    EXPECT_EQ(edit.TopRow(), 8);
    EXPECT_TRUE(Press(edit, Platform::vkPrior));
    EXPECT_EQ(edit.CurrentRow(), 7);
    EXPECT_EQ(edit.TopRow(), 2);
    EXPECT_TRUE(Press(edit, Platform::vkEnd, ssCtrl));
    EXPECT_EQ(edit.CurrentRow(), 99);
    EXPECT_EQ(edit.TopRow(), 94);
    EXPECT_TRUE(Press(edit, Platform::vkDown));  // stays on the last row
    EXPECT_EQ(edit.CurrentRow(), 99);
    EXPECT_TRUE(Press(edit, Platform::vkTab, ssShift));  // one column: Tab goes along the rows
    EXPECT_EQ(edit.CurrentRow(), 98);
    EXPECT_TRUE(Press(edit, Platform::vkTab));
    EXPECT_EQ(edit.CurrentRow(), 99);
    EXPECT_TRUE(Press(edit, Platform::vkHome, ssCtrl));
    EXPECT_EQ(edit.CurrentRow(), 0);
    EXPECT_EQ(edit.TopRow(), 0);
    EXPECT_TRUE(Press(edit, Platform::vkUp));
    EXPECT_EQ(edit.CurrentRow(), 0);
    EXPECT_FALSE(Press(edit, Platform::vkC, ssCtrl));  // left to the host
    edit.MouseWheel(-2 * Platform::WheelDelta);         // two notches towards the user
    EXPECT_EQ(edit.TopRow(), 6);
    EXPECT_EQ(edit.CurrentRow(), 0);
    edit.MouseWheel(Platform::WheelDelta / 2);  // half a notch waits for the other half
    EXPECT_EQ(edit.TopRow(), 6);
    edit.MouseWheel(Platform::WheelDelta / 2);
    EXPECT_EQ(edit.TopRow(), 3);
    edit.SetBounds(0, 0, 200, 150);  // as a host does at every paint
    GridCanvas canvas;
    edit.Paint(canvas);
    EXPECT_EQ(edit.TopRow(), 3);
    edit.SetBounds(0, 0, 200, 100);  // a new size brings the current cell back
    EXPECT_EQ(edit.TopRow(), 0);
}

TEST_F(VectorEditTest, AnEditCommitsOnEnterAndCancelsOnEscape) {
    edit.TextInput("1e3");
    EXPECT_TRUE(edit.Editing());
    EXPECT_EQ(v[0], 0);  // nothing stored before the commit
    EXPECT_TRUE(Press(edit, Platform::vkReturn));
    EXPECT_EQ(v[0], 1000);

    // A bad number keeps the edit open with the reason and stores nothing.
    Enter(edit, "12a");
    EXPECT_TRUE(edit.Editing());
    EXPECT_EQ(edit.EditError(), "'12a' is not a valid number");
    EXPECT_EQ(edit.CurrentRow(), 1);
    EXPECT_EQ(v[1], 1);
    GridCanvas canvas;
    edit.Paint(canvas);
    EXPECT_TRUE(canvas.HasText("'12a' is not a valid number"));
    EXPECT_TRUE(Press(edit, Platform::vkEscape));
    EXPECT_FALSE(edit.Editing());
    EXPECT_EQ(edit.EditError(), "");
    EXPECT_EQ(v[1], 1);

    // F2 keeps the cell's text; the caret moves and deletes by character.
    v[1] = 2.5L;
    EXPECT_TRUE(Press(edit, Platform::vkF2));
    EXPECT_EQ(edit.EditText(), "2.5");
    Press(edit, Platform::vkBack);   // "2."
    Press(edit, Platform::vkHome);
    Press(edit, Platform::vkDelete);  // "."
    edit.TextInput("-0");            // "-0."
    Press(edit, Platform::vkEnd);
    edit.TextInput("75");
    EXPECT_EQ(edit.EditText(), "-0.75");
    EXPECT_TRUE(Press(edit, Platform::vkDown));  // commits, then moves
    EXPECT_EQ(v[1], -0.75L);
    EXPECT_EQ(edit.CurrentRow(), 2);

    // Backspace starts an empty edit; an empty text is the null value.
    Press(edit, Platform::vkBack);
    EXPECT_EQ(edit.EditText(), "");
    Press(edit, Platform::vkReturn);
    EXPECT_TRUE(std::isnan(v[2]));
    EXPECT_EQ(edit.CellText(2, 0), "");
}

TEST_F(VectorEditTest, NullValuesShowAsTheNullTextAndAreEnteredAsIt) {
    const std::string saved = KorNullStr;
    KorNullStr = "-";
    v[0] = NaN;
    GridCanvas canvas;
    edit.Paint(canvas);
    ASSERT_TRUE(canvas.HasText("-"));
    for (const auto& t : canvas.texts) {
        if (t.text == "-") {
            EXPECT_EQ(t.color, Platform::clGrayText);
        }
    }
    Press(edit, Platform::vkDown);
    Enter(edit, "-");
    EXPECT_TRUE(std::isnan(v[1]));
    edit.SetCurrentCell(1, 0);
    EXPECT_EQ(edit.CopyText(), "-\n");
    KorNullStr = saved;
}

TEST_F(VectorEditTest, DecimalsAndReadOnly) {
    v[0] = 1.5L;
    v[1] = 0.1L;
    EXPECT_EQ(edit.CellText(1, 0), "0.1");  // the shortest text that reads back
    edit.SetDecimals(2);
    EXPECT_EQ(edit.CellText(0, 0), "1.50");
    EXPECT_EQ(edit.CopyText(), "1.5\n");  // the clipboard keeps every digit
    edit.SetReadOnly(true);
    edit.TextInput("9");
    EXPECT_FALSE(edit.Editing());
    Press(edit, Platform::vkDelete);
    edit.PasteText("9");
    EXPECT_EQ(v[0], 1.5L);
}

TEST_F(VectorEditTest, ShiftExtendsTheSelectionAndCopyKeepsEveryDigit) {
    v[1] = 1.0L / 3;
    v[2] = NaN;
    v[3] = -1e-300L;
    Press(edit, Platform::vkDown);
    Press(edit, Platform::vkDown, ssShift);
    Press(edit, Platform::vkDown, ssShift);
    EXPECT_EQ(edit.Selection(), (KornumGridEdit::TGridRect{0, 1, 0, 3}));
    const std::string text = edit.CopyText();
    const std::size_t first = text.find('\n'), second = text.find('\n', first + 1);
    EXPECT_EQ(Kornumconvert::Str2Float(text.substr(0, first)), 1.0L / 3);  // reads back the same
    EXPECT_EQ(text.substr(first + 1, second - first), "\n");              // null
    EXPECT_EQ(text.substr(second + 1), "-1e-300\n");
    Press(edit, Platform::vkDelete);  // the selection becomes null
    EXPECT_TRUE(std::isnan(v[1]) && std::isnan(v[3]));
    EXPECT_EQ(v[4], 4);
}

TEST_F(VectorEditTest, PasteReadsTheWholeBlockBeforeWriting) {
    edit.SetCurrentCell(97, 0);
    edit.PasteText("7\r\n\n8\n");
    EXPECT_EQ(v[97], 7);
    EXPECT_TRUE(std::isnan(v[98]));
    EXPECT_EQ(v[99], 8);
    EXPECT_EQ(edit.Selection(), (KornumGridEdit::TGridRect{0, 97, 0, 99}));

    edit.SetCurrentCell(10, 0);
    EXPECT_TRUE(Raises([&] { edit.PasteText("1\n2\nx7\n"); }, "Cannot paste 'x7' into row 12, column 0: it is not a number"));
    EXPECT_TRUE(Raises([&] { edit.PasteText("1\t2\n"); },
                       "The pasted block does not fit: its line 1 of 2 values would reach row 10, column 1 of a grid of 100 x 1"));
    edit.SetCurrentCell(98, 0);
    EXPECT_TRUE(Raises([&] { edit.PasteText("1\n2\n3"); },
                       "The pasted block does not fit: its line 3 of 1 values would reach row 100, column 0 of a grid of 100 x 1"));
    EXPECT_EQ(v[10], 10);
    EXPECT_EQ(v[11], 11);
    EXPECT_TRUE(std::isnan(v[98]));
    EXPECT_EQ(v[99], 8);
}

TEST_F(VectorEditTest, OnChangeFollowsInputThatStoresValues) {
    int changes = 0;
    edit.OnChange = [&](KornumGridEdit::TKorCustomGridEdit& sender) {
        EXPECT_EQ(&sender, &edit);
        ++changes;
    };
    Press(edit, Platform::vkDown);
    edit.SetElement(5, 1);  // the accessors are the program's own
    Enter(edit, "x");       // not stored
    EXPECT_EQ(changes, 0);
    // A paste into an open edit goes in at the caret.
    edit.PasteText("25\n");
    EXPECT_EQ(edit.EditText(), "x25");
    Press(edit, Platform::vkHome);
    Press(edit, Platform::vkDelete);
    Press(edit, Platform::vkReturn);
    EXPECT_EQ(v[1], 25);
    Press(edit, Platform::vkDelete);
    edit.PasteText("1\n2\n");
    EXPECT_EQ(changes, 3);
}

TEST(VectorEditVirtual, PaintingAsksOnlyForTheRowsInView) {
    for (Integer count : {10, std::numeric_limits<Integer>::max()}) {
        TKorVectorEdit edit(nullptr);
        edit.SetVirtualMode(true);
        edit.SetCount(count);
        edit.SetBounds(0, 0, 200, 150);
        std::set<Integer> asked;
        int calls = 0;
        edit.OnGetElement = [&](TKorVectorEdit&, Integer index, Float& value) {
            asked.insert(index);
            ++calls;
            value = index / 4.0L;
        };
        GridCanvas canvas;
        edit.Paint(canvas);
        EXPECT_EQ(calls, 7) << count;  // six whole rows and a part of the seventh
        EXPECT_EQ(*asked.begin(), 0);
        EXPECT_TRUE(canvas.HasText("1.5"));  // element 6, the last in view
        Press(edit, Platform::vkEnd, ssCtrl);
        asked.clear();
        calls = 0;
        GridCanvas bottom;
        edit.Paint(bottom);
        EXPECT_EQ(calls, 6) << count;
        EXPECT_EQ(*asked.rbegin(), count - 1);
        EXPECT_TRUE(bottom.HasText(std::to_string(count - 1)));  // the last row's title

        Float stored = 0;
        Integer at = -1;
        edit.OnSetElement = [&](TKorVectorEdit&, Integer index, Float value) { at = index, stored = value; };
        Enter(edit, "42");
        EXPECT_EQ(at, count - 1);
        EXPECT_EQ(stored, 42);
        EXPECT_TRUE(Raises<Platform::Exception>([&] { edit.GetElement(count); }, rsInvalidRow));
        Press(edit, Platform::vkA, ssCtrl);
        if (count > KornumGridEdit::TKorCustomGridEdit::MaxCopyCells) {
            calls = 0;
            EXPECT_TRUE(Raises([&] { edit.CopyText(); },
                               "The selection of 2147483647 x 1 cells is too large to copy: at most 16777216 cells"));
            EXPECT_EQ(calls, 0);
        } else {
            EXPECT_EQ(edit.CopyText(), "0\n0.25\n0.5\n0.75\n1\n1.25\n1.5\n1.75\n2\n2.25\n");
        }
    }
    TKorVectorEdit unfed(nullptr);  // no event: every cell is null
    unfed.SetVirtualMode(true);
    unfed.SetCount(3);
    EXPECT_TRUE(std::isnan(unfed.GetElement(2)));
}

TEST(LabelledVectorEdit, LabelsMoveWithTheirValuesAndMissingOnesShowNotAvailable) {
    TKorFloatVector v = Numbers(3);
    TKorLabelledVectorEdit edit(nullptr);
    edit.SetVector(v);
    edit.SetLabel(1, "beta");
    EXPECT_EQ(edit.Labels().Count(), 2);
    EXPECT_EQ(edit.GetLabel(0), "");
    EXPECT_EQ(edit.GetLabel(2), "");
    edit.SwapElements(1, 2);
    EXPECT_EQ(edit.GetLabel(2), "beta");
    EXPECT_EQ(v[2], 1);

    Platform::SetResourceText(Kornum_RS_Math::rsNA, "n/v");  // looked up when drawn
    GridCanvas canvas;
    edit.Paint(canvas);
    Platform::RestoreDefaultResources();
    std::vector<std::string> labels;
    for (const auto& t : canvas.texts)
        if (t.text == "beta" || t.text == "n/v") labels.push_back(t.text);
    EXPECT_EQ(labels, (std::vector<std::string>{"n/v", "n/v", "beta"}));
    EXPECT_TRUE(canvas.HasText("Label"));
    EXPECT_TRUE(canvas.HasText("Value"));

    edit.SetVirtualMode(true);
    edit.SetCount(2);
    edit.OnGetLabel = [](TKorLabelledVectorEdit&, Integer index, std::string& label) {
        if (index == 0) label = "first";
    };
    EXPECT_EQ(edit.GetLabel(0), "first");
    EXPECT_EQ(edit.GetLabel(1), "");
}

TEST(VectorEditComponent, PublishesItsSettings) {
    TKorVectorEdit edit(nullptr);
    const Platform::TPropertyInfo* decimals = edit.FindProperty("Decimals");
    ASSERT_NE(decimals, nullptr);
    EXPECT_EQ(std::get<std::int64_t>(decimals->Get(edit)), -1);
    decimals->Set(edit, std::int64_t(3));
    EXPECT_EQ(edit.Decimals(), 3);
    edit.FindProperty("ReadOnly")->Set(edit, true);
    EXPECT_TRUE(edit.ReadOnly());
    EXPECT_EQ(edit.ClassName(), "TKorVectorEdit");
}

}  // namespace
