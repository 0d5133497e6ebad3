// The matrix edit on a recording canvas: its accessors, Inverse and Transpose, and the
// grid's moves, selection and clipboard across columns.
#include "GridTestSupport.h"
#include "TestSupport.h"

#include <kornum/KornumMatrixEdit.h>
#include <kornum/Kornum_RS_Math.h>
#include <kornum/Kornummsgs.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace {

using namespace KornumMatrixEdit;
using namespace KornumTest;
using KornumGridEdit::TGridRect;
using Platform::ssCtrl;
using Platform::ssShift;

TKorFloatMatrix Rows(std::initializer_list<std::initializer_list<Float>> rows) {
    TKorFloatMatrix m;
    m.SetLength(Integer(rows.size()));
    Integer i = 0;
    for (auto row : rows) {
        m[i].SetLength(Integer(row.size()));
        Integer j = 0;
        for (Float x : row) m[i][j++] = x;
        ++i;
    }
    return m;
}

// Collects what ErrorMsg shows while it lives.
struct ShownMessages {
    std::vector<std::string> texts;
    Kornummsgs::TErrorMsgHandler previous =
        Kornummsgs::SetErrorMsgHandler([this](const std::string& text) { texts.push_back(text); });
    ~ShownMessages() { Kornummsgs::SetErrorMsgHandler(previous); }
};

TEST(MatrixEdit, AccessorsCheckTheRowThenTheColumnWithTheRootException) {
    TKorFloatMatrix m = Rows({{1, 2, 3}, {4, 5, 6}});
    TKorMatrixEdit edit(nullptr);
    edit.SetMatrix(m);
    EXPECT_EQ(edit.RowCount(), 2);
    EXPECT_EQ(edit.ColCount(), 3);
    EXPECT_EQ(edit.GetElement(1, 2), 6);
    edit.SetElement(0, 1, -2);
    EXPECT_EQ(m[0][1], -2);  // shared with the caller
    using Kornum_RS_Math::rsInvalidCol;
    using Kornum_RS_Math::rsInvalidRow;
    EXPECT_TRUE(Raises<Platform::Exception>([&] { edit.GetElement(2, 0); }, rsInvalidRow));
    EXPECT_TRUE(Raises<Platform::Exception>([&] { edit.GetElement(-1, 9); }, rsInvalidRow));
    EXPECT_TRUE(Raises<Platform::Exception>([&] { edit.GetElement(0, 3); }, rsInvalidCol));
    EXPECT_TRUE(Raises<Platform::Exception>([&] { edit.SetElement(1, -1, 0); }, rsInvalidCol));
    EXPECT_EQ(m[1][0], 4);

    TKorFloatMatrix ragged = Rows({{1, 2}, {3}});
    EXPECT_TRUE(Raises([&] { edit.SetMatrix(ragged); }, Kornum_RS_Math::rsMatrixRect));
    EXPECT_EQ(edit.ColCount(), 3);  // still bound to m
}

TEST(MatrixEdit, InverseWritesThroughTheCallersHandleOrShowsWhyNot) {
    TKorFloatMatrix m = Rows({{4, 7}, {2, 6}});  // determinant 10
    TKorMatrixEdit edit(nullptr);
    edit.SetMatrix(m);
    ShownMessages shown;
    edit.Inverse();
    EXPECT_TRUE(AllMatch({{m[0][0], 0.6L}, {m[0][1], -0.7L}, {m[1][0], -0.2L}, {m[1][1], 0.4L}}, 1e-18L));
    EXPECT_TRUE(shown.texts.empty());

    TKorFloatMatrix singular = Rows({{1, 2}, {2, 4}});
    edit.SetMatrix(singular);
    edit.Inverse();
    EXPECT_EQ(shown.texts, std::vector<std::string>{Kornum_RS_Math::rsNoInvert.Text()});
    EXPECT_TRUE(AllMatch({{singular[0][0], 1}, {singular[0][1], 2}, {singular[1][0], 2}, {singular[1][1], 4}}));
}

TEST(MatrixEdit, TransposeBindsTheTransposedMatrix) {
    TKorMatrixEdit edit(nullptr);
    edit.SetMatrix(Rows({{1, 2, 3}, {4, 5, 6}}));
    edit.SetCurrentCell(1, 2);
    edit.Transpose();
    EXPECT_EQ(edit.RowCount(), 3);
    EXPECT_EQ(edit.ColCount(), 2);
    EXPECT_EQ(edit.Matrix()[2][1], 6);
    EXPECT_EQ(edit.Matrix()[0][1], 4);
    EXPECT_EQ(edit.CurrentRow(), 1);  // kept within the new shape
    EXPECT_EQ(edit.CurrentCol(), 1);
}

// A 3 x 4 matrix of r * 10 + c on a 500 x 200 edit: four columns and a title row in view.
struct MatrixGridTest : ::testing::Test {
    TKorFloatMatrix m = Rows({{0, 1, 2, 3}, {10, 11, 12, 13}, {20, 21, 22, 23}});
    TKorMatrixEdit edit{nullptr};
    void SetUp() override {
        edit.SetMatrix(m);
        edit.SetBounds(0, 0, 500, 200);
        GridCanvas canvas;
        edit.Paint(canvas);  // measures the row titles: 40 pixels
    }
    std::pair<Integer, Integer> At() const { return {edit.CurrentRow(), edit.CurrentCol()}; }
};

TEST_F(MatrixGridTest, TabWrapsAlongTheRowsAndHomeEndStayInTheRow) {
    using P = std::pair<Integer, Integer>;
    Press(edit, Platform::vkEnd);
    EXPECT_EQ(At(), P(0, 3));
    Press(edit, Platform::vkTab);
    EXPECT_EQ(At(), P(1, 0));
    Press(edit, Platform::vkTab, ssShift);
    EXPECT_EQ(At(), P(0, 3));
    Press(edit, Platform::vkHome);
    EXPECT_EQ(At(), P(0, 0));
    Press(edit, Platform::vkTab, ssShift);  // the first cell stays
    EXPECT_EQ(At(), P(0, 0));
    Press(edit, Platform::vkEnd, ssCtrl);
    EXPECT_EQ(At(), P(2, 3));
    Press(edit, Platform::vkTab);  // the last cell stays
    EXPECT_EQ(At(), P(2, 3));
    Press(edit, Platform::vkLeft);
    Press(edit, Platform::vkUp, ssShift);
    Press(edit, Platform::vkLeft, ssShift);
    EXPECT_EQ(edit.Selection(), (TGridRect{1, 1, 2, 2}));
    EXPECT_EQ(edit.CopyText(), "11\t12\n21\t22\n");
    Press(edit, Platform::vkA, ssCtrl);
    EXPECT_EQ(edit.Selection(), (TGridRect{0, 0, 3, 2}));
    // Tab commits an open edit before it moves.
    edit.SetCurrentCell(0, 0);
    edit.TextInput("5");
    Press(edit, Platform::vkTab);
    EXPECT_EQ(m[0][0], 5);
    EXPECT_EQ(At(), P(0, 1));
}

TEST_F(MatrixGridTest, ClicksPickCellsColumnsRowsOrEverything) {
    using P = std::pair<Integer, Integer>;
    edit.MouseDown(Platform::mbLeft, 0, 40 + 96 + 5, 20 + 20 + 5);
    EXPECT_EQ(At(), P(1, 1));
    edit.MouseDown(Platform::mbLeft, ssShift, 40 + 2 * 96 + 5, 20 + 2 * 20 + 5);
    EXPECT_EQ(edit.Selection(), (TGridRect{1, 1, 2, 2}));
    edit.MouseDown(Platform::mbLeft, 0, 40 + 3 * 96 + 5, 5);  // a column title
    EXPECT_EQ(edit.Selection(), (TGridRect{3, 0, 3, 2}));
    edit.MouseDown(Platform::mbLeft, 0, 5, 20 + 5);  // a row title
    EXPECT_EQ(edit.Selection(), (TGridRect{0, 0, 3, 0}));
    edit.MouseDown(Platform::mbLeft, 0, 5, 5);  // the corner
    EXPECT_EQ(edit.Selection(), (TGridRect{0, 0, 3, 2}));
    // A click does not leave a bad edit: the edit stays open where it was.
    edit.SetCurrentCell(0, 0);
    edit.TextInput("x");
    edit.MouseDown(Platform::mbLeft, 0, 40 + 96 + 5, 20 + 20 + 5);
    EXPECT_TRUE(edit.Editing());
    EXPECT_EQ(At(), P(0, 0));
}

TEST_F(MatrixGridTest, PasteWritesABlockOrNothing) {
    edit.SetCurrentCell(1, 2);
    edit.PasteText("-1\t-2\n-3\t-4\n");
    EXPECT_TRUE(AllMatch({{m[1][2], -1}, {m[1][3], -2}, {m[2][2], -3}, {m[2][3], -4}}));
    EXPECT_EQ(edit.Selection(), (TGridRect{2, 1, 3, 2}));

    edit.SetCurrentCell(0, 0);
    EXPECT_TRUE(Raises([&] { edit.PasteText("7\t8\n9\t1e99999\n"); },
                       "Cannot paste '1e99999' into row 1, column 1: it is not a number"));
    EXPECT_TRUE(Raises([&] { edit.PasteText("1\t2\t3\t4\t5\n"); },
                       "The pasted block does not fit: its line 1 of 5 values would reach row 0, column 4 of a grid of 3 x 4"));
    EXPECT_TRUE(AllMatch({{m[0][0], 0}, {m[0][1], 1}, {m[1][0], 10}, {m[1][1], 11}}));
}

TEST(MatrixEditVirtual, PaintingAsksOnlyForTheCellsInView) {
    for (Integer side : {10, 46341}) {  // 100 cells, and just over 2^31
        TKorMatrixEdit edit(nullptr);
        edit.SetVirtualMode(true);
        edit.SetRowCount(side);
        edit.SetColCount(side);
        edit.SetBounds(0, 0, 500, 200);
        long calls = 0;
        edit.OnGetElement = [&](TKorMatrixEdit&, Integer row, Integer col, Float& value) {
            ++calls;
            value = row * 100000.0L + col;
        };
        GridCanvas canvas;
        edit.Paint(canvas);
        // Nine rows and five columns, the last of each in part.
        EXPECT_EQ(calls, 9 * 5) << side;
        Press(edit, Platform::vkEnd, ssCtrl);
        EXPECT_EQ(edit.GetElement(side - 1, side - 1), (side - 1) * 100001.0L);
        EXPECT_TRUE(Raises<Platform::Exception>([&] { edit.GetElement(0, side); }, Kornum_RS_Math::rsInvalidCol));
    }
}

}  // namespace
