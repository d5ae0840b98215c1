// Where keys lead in a list that is edited in place.
#include <gtest/gtest.h>

#include "list/CellKeys.h"
#include "list/EditorPlace.h"
#include "list/ListRows.h"

namespace
{

constexpr int kRows = 4;
constexpr int kColumns = 4;

struct KeyRow
{
    const char* name;
    UINT key;
    const char* held; // "", "S" Shift, "C" Ctrl
    bool combo;
    CellPlace from;
    bool moves;
    CellPlace target;
};

// Columns 1 and 2 are never edited unless a test says otherwise.
class CellKeys : public testing::Test
{
protected:
    CellKeys()
    {
        m_fixed.Add(1);
        m_fixed.Add(2);
    }

    void Check(const KeyRow& row)
    {
        const std::string held = row.held;
        const CellKey key = {row.key, held.find('S') != std::string::npos, held.find('C') != std::string::npos};
        const CellGrid grid = {kRows, m_columns, &m_fixed};
        CellPlace target = {-9, -9};
        ASSERT_EQ(row.moves, FindKeyTarget(key, row.combo, grid, row.from, target)) << row.name;
        if (!row.moves)
            return;
        EXPECT_EQ(row.target.row, target.row) << row.name;
        EXPECT_EQ(row.target.column, target.column) << row.name;
    }

    CArray<int, int> m_fixed;
    int m_columns = kColumns;
};

} // namespace

TEST_F(CellKeys, LeadToTheNextCell)
{
    const KeyRow rows[] = {
        {"up", VK_UP, "", false, {2, 3}, true, {1, 3}},
        {"up in row 0 goes on", VK_UP, "", false, {0, 3}, false, {}},
        {"up stays in a column that is never edited", VK_UP, "", false, {2, 1}, true, {1, 1}},
        {"down", VK_DOWN, "", false, {2, 3}, true, {3, 3}},
        {"down in the last row goes on", VK_DOWN, "", false, {3, 3}, false, {}},
        {"up with Shift", VK_UP, "S", false, {2, 3}, true, {1, 3}},
        {"down with Ctrl", VK_DOWN, "C", false, {2, 3}, true, {3, 3}},
        {"left is the editor's", VK_LEFT, "", false, {2, 3}, false, {}},
        {"right is the editor's", VK_RIGHT, "", false, {2, 0}, false, {}},
        {"Shift+Left is the editor's", VK_LEFT, "S", false, {2, 3}, false, {}},
        {"Shift+Right is the editor's", VK_RIGHT, "S", false, {2, 0}, false, {}},
        {"Ctrl+Left skips what is never edited", VK_LEFT, "C", false, {2, 3}, true, {2, 0}},
        {"Ctrl+Left in column 0 goes on", VK_LEFT, "C", false, {2, 0}, false, {}},
        {"Ctrl+Right skips what is never edited", VK_RIGHT, "C", false, {2, 0}, true, {2, 3}},
        {"Ctrl+Right in the last column goes on", VK_RIGHT, "C", false, {2, 3}, false, {}},
        {"Ctrl+Shift+Right", VK_RIGHT, "CS", false, {2, 0}, true, {2, 3}},
        {"Enter", VK_RETURN, "", false, {1, 0}, true, {1, 3}},
        {"Enter in the last column", VK_RETURN, "", false, {1, 3}, true, {2, 0}},
        {"Enter in the last cell goes on", VK_RETURN, "", false, {3, 3}, false, {}},
        {"Enter in the last row", VK_RETURN, "", false, {3, 0}, true, {3, 3}},
        {"Ctrl+Enter", VK_RETURN, "C", false, {1, 0}, true, {1, 3}},
        {"Tab is the dialog's", VK_TAB, "", false, {1, 0}, false, {}},
        {"Shift+Tab is the dialog's", VK_TAB, "S", false, {1, 0}, false, {}},
        {"Escape is the dialog's", VK_ESCAPE, "", false, {1, 0}, false, {}},
        {"Space is the editor's", VK_SPACE, "", false, {1, 0}, false, {}},
        {"a letter is the editor's", 'A', "", false, {1, 0}, false, {}},
        {"a key of the input method", VK_PROCESSKEY, "", false, {1, 0}, false, {}},
        {"a key of the input method in a combo box", VK_PROCESSKEY, "C", true, {1, 0}, false, {}},
    };
    for (const KeyRow& row : rows)
        Check(row);
}

TEST_F(CellKeys, WithAModifierLeaveAComboBoxOnlyByLeftRightAndEnter)
{
    const KeyRow rows[] = {
        {"up", VK_UP, "", true, {2, 3}, true, {1, 3}},
        {"down", VK_DOWN, "", true, {2, 3}, true, {3, 3}},
        {"Shift+Up", VK_UP, "S", true, {2, 3}, false, {}},
        {"Ctrl+Up", VK_UP, "C", true, {2, 3}, false, {}},
        {"Shift+Down", VK_DOWN, "S", true, {2, 3}, false, {}},
        {"Ctrl+Down", VK_DOWN, "C", true, {2, 3}, false, {}},
        {"left", VK_LEFT, "", true, {2, 3}, false, {}},
        {"Shift+Left", VK_LEFT, "S", true, {2, 3}, false, {}},
        {"Ctrl+Left", VK_LEFT, "C", true, {2, 3}, true, {2, 0}},
        {"Ctrl+Right", VK_RIGHT, "C", true, {2, 0}, true, {2, 3}},
        {"Enter", VK_RETURN, "", true, {1, 0}, true, {1, 3}},
        {"Shift+Enter", VK_RETURN, "S", true, {1, 0}, true, {1, 3}},
        {"Ctrl+Enter", VK_RETURN, "C", true, {1, 0}, true, {1, 3}},
    };
    for (const KeyRow& row : rows)
        Check(row);
}

TEST_F(CellKeys, EnterBeginsTheNextRowInColumn0EvenIfThatIsNeverEdited)
{
    m_fixed.Add(0);
    Check({"next row", VK_RETURN, "", false, {1, 3}, true, {2, 0}});
    Check({"Ctrl+Left finds no column", VK_LEFT, "C", false, {1, 3}, false, {}});
}

TEST_F(CellKeys, CtrlRightFromColumn0PassesTheFixedColumns1And2)
{
    Check({"to column 3", VK_RIGHT, "C", false, {0, 0}, true, {0, 3}});
    m_columns = 3;
    Check({"behind the header", VK_RIGHT, "C", false, {0, 0}, false, {}});
}

TEST_F(CellKeys, WithoutAHeaderOnlyUpAndDownMove)
{
    m_columns = 0;
    Check({"Enter", VK_RETURN, "", false, {1, 0}, false, {}});
    Check({"Ctrl+Right", VK_RIGHT, "C", false, {1, 0}, false, {}});
    Check({"Down", VK_DOWN, "", false, {1, 0}, true, {2, 0}});
}

TEST_F(CellKeys, ColumnsThatDoNotExistMayBeEdited)
{
    EXPECT_TRUE(IsEditableColumn(m_fixed, 0));
    EXPECT_FALSE(IsEditableColumn(m_fixed, 1));
    EXPECT_FALSE(IsEditableColumn(m_fixed, 2));
    EXPECT_TRUE(IsEditableColumn(m_fixed, -1));
    EXPECT_TRUE(IsEditableColumn(m_fixed, 1000));
    EXPECT_TRUE(IsEditableColumn(CArray<int, int>(), 1));
}

TEST_F(CellKeys, SpaceAndEnterStartAnEdit)
{
    EXPECT_TRUE(IsStartKey(VK_SPACE));
    EXPECT_TRUE(IsStartKey(VK_RETURN));
    for (const UINT key : {VK_TAB, VK_ESCAPE, VK_F2, VK_UP, VK_PROCESSKEY})
        EXPECT_FALSE(IsStartKey(key)) << key;
}

TEST(EditorPlace, ButtonIsOneAndAHalfTimesAsWideAsHigh)
{
    const CRect cell(100, 20, 200, 37); // 17 high: 25.5 is cut to 25
    EXPECT_TRUE(CRect(175, 20, 200, 37) == ButtonPlace(cell));
    EXPECT_TRUE(CRect(100, 20, 175, 37) == EditBesideButton(cell));
}

TEST(EditorPlace, NarrowCellLeavesNoRoomBesideTheButton)
{
    EXPECT_TRUE(CRect(100, 20, 100, 40) == EditBesideButton(CRect(100, 20, 110, 40)));
}

TEST(EditorPlace, ComboBoxIsAsHighAsItsDropDown)
{
    EXPECT_TRUE(CRect(100, 20, 200, 170) == ComboBoxPlace(CRect(100, 20, 200, 37)));
}

TEST(EditorPlace, DatePickerIsAtLeast17PixelsHigh)
{
    EXPECT_TRUE(CRect(100, 20, 200, 37) == DatePickerPlace(CRect(100, 20, 200, 30)));
    EXPECT_TRUE(CRect(100, 20, 200, 50) == DatePickerPlace(CRect(100, 20, 200, 50)));
}

TEST(ListRows, TheRowThatTookThePlaceOfADeletedOneComesNext)
{
    EXPECT_EQ(2, RowAfterDelete(2, 4));
    EXPECT_EQ(3, RowAfterDelete(4, 4));
    EXPECT_EQ(0, RowAfterDelete(0, 1));
    EXPECT_EQ(-1, RowAfterDelete(0, 0));
}
