// The editable list: operations on rows.
#include "EditableListFixture.h"

#include "MessageSpy.h"

namespace
{

constexpr UINT kBoth = LVIS_SELECTED | LVIS_FOCUSED;

class EditableListRows : public EditableListFixture
{
protected:
    typedef std::vector<std::wstring> Texts;
    typedef std::vector<DWORD_PTR> Values;

    UINT State(int row) { return List().GetItemState(row, kBoth); }

    int HighlightedRow()
    {
        int row = 0;
        int column = 0;
        List().GetClickPos(row, column);
        return row;
    }
};

} // namespace

TEST_F(EditableListRows, MovesARowUpWithAllItsTexts)
{
    List().SelectItem(2, true);
    EXPECT_EQ(2, List().UpItem(2));
    EXPECT_EQ((Texts{L"r0c0", L"r2c0", L"r1c0", L"r3c0"}), Column(0));
    EXPECT_EQ((Texts{L"r0c1", L"r2c1", L"r1c1", L"r3c1"}), Column(1));
    EXPECT_EQ((Texts{L"r0c2", L"r2c2", L"r1c2", L"r3c2"}), Column(2));
    EXPECT_EQ(kBoth, State(1));
    EXPECT_EQ(List().m_hWnd, ::GetFocus());
}

TEST_F(EditableListRows, MovesARowDownWithAllItsTexts)
{
    List().SelectItem(1, true);
    EXPECT_EQ(1, List().DownItem(-1));
    EXPECT_EQ((Texts{L"r0c0", L"r2c0", L"r1c0", L"r3c0"}), Column(0));
    EXPECT_EQ((Texts{L"r0c2", L"r2c2", L"r1c2", L"r3c2"}), Column(2));
    EXPECT_EQ(kBoth, State(2));
}

TEST_F(EditableListRows, UpItem0AndDownItemLastMoveNothingAndSelectTheRowAgain)
{
    List().SetItemState(0, kBoth, kBoth);
    EXPECT_EQ(0, List().UpItem(0));
    EXPECT_EQ(kBoth, State(0));
    List().SelectItem(3, true);
    EXPECT_EQ(3, List().DownItem(3));
    EXPECT_EQ(kBoth, State(3));
    EXPECT_EQ((Texts{L"r0c0", L"r1c0", L"r2c0", L"r3c0"}), Column(0));
    EXPECT_EQ((Values{1000, 1001, 1002, 1003}), Data());
}

TEST_F(EditableListRows, UpItemExchangesItemDataWithThreeColumnsAndNotWithTwo)
{
    EXPECT_EQ(2, List().UpItem(2));
    EXPECT_EQ((Values{1000, 1002, 1001, 1003}), Data());
    Create(LVS_REPORT, kRows, 2);
    EXPECT_EQ(2, List().UpItem(2));
    EXPECT_EQ((Texts{L"r0c0", L"r2c0", L"r1c0", L"r3c0"}), Column(0));
    EXPECT_EQ((Texts{L"r0c1", L"r2c1", L"r1c1", L"r3c1"}), Column(1));
    EXPECT_EQ((Values{1000, 1001, 1002, 1003}), Data());
}

TEST_F(EditableListRows, DownItemExchangesItemDataWithThreeColumnsAndNotWithTwo)
{
    EXPECT_EQ(1, List().DownItem(1));
    EXPECT_EQ((Values{1000, 1002, 1001, 1003}), Data());
    Create(LVS_REPORT, kRows, 2);
    EXPECT_EQ(1, List().DownItem(1));
    EXPECT_EQ((Values{1000, 1001, 1002, 1003}), Data());
}

TEST_F(EditableListRows, HighlightMovesOneRowForEveryColumn)
{
    List().SetCellHighlight(true, 3, 1);
    List().UpItem(3);
    EXPECT_EQ(3 - kColumns, HighlightedRow());
    List().DownItem(0);
    EXPECT_EQ(3, HighlightedRow());
    List().UpItem(0);
    List().DownItem(3);
    List().TopItem(2);
    List().EndItem(2);
    EXPECT_EQ(3, HighlightedRow());
}

TEST_F(EditableListRows, TheSavedStateIsSetAndNotTheSelection)
{
    List().SetItemState(0, kBoth, kBoth);
    List().SetItemState(3, 0, kBoth);
    EXPECT_EQ(3, List().UpItem(3));
    EXPECT_EQ(0u, State(2));
    EXPECT_EQ(kBoth, State(0));
}

TEST_F(EditableListRows, TheRowThatWasLeftKeepsItsSelection)
{
    List().SelectItem(2, true);
    List().UpItem(2);
    EXPECT_EQ((std::vector<int>{1, 2}), Selected());
    Create(LVS_REPORT | LVS_SINGLESEL);
    List().SelectItem(2, true);
    List().UpItem(2);
    EXPECT_EQ((std::vector<int>{1}), Selected());
}

TEST_F(EditableListRows, MinusOneIsTheFirstSelectedRow)
{
    List().SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
    List().SetItemState(3, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ(2, List().UpItem(-1));
    EXPECT_EQ((Texts{L"r0c0", L"r2c0", L"r1c0", L"r3c0"}), Column(0));
}

TEST_F(EditableListRows, RowsThatDoNotExistAndNoSelectionAreRefused)
{
    for (const int row : {-1, -2, kRows, kRows + 1, INT_MAX, INT_MIN})
    {
        EXPECT_EQ(-1, List().UpItem(row)) << row;
        EXPECT_EQ(-1, List().DownItem(row)) << row;
        EXPECT_EQ(-1, List().TopItem(row)) << row;
        EXPECT_EQ(-1, List().EndItem(row)) << row;
        EXPECT_EQ(-1, List().DelItem(row)) << row;
        EXPECT_EQ(-1, List().InsItem(row == kRows ? kRows + 1 : row)) << row;
    }
    EXPECT_EQ((Texts{L"r0c0", L"r1c0", L"r2c0", L"r3c0"}), Column(0));
    EXPECT_EQ(Notes(), m_owner.notes);
}

TEST_F(EditableListRows, TopItemLeavesItsItemDataAt0)
{
    List().SelectItem(2, true);
    EXPECT_EQ(2, List().TopItem(2));
    EXPECT_EQ((Texts{L"r2c0", L"r0c0", L"r1c0", L"r3c0"}), Column(0));
    EXPECT_EQ((Texts{L"r2c2", L"r0c2", L"r1c2", L"r3c2"}), Column(2));
    EXPECT_EQ((Values{0, 1000, 1001, 1003}), Data());
    EXPECT_EQ(kBoth, State(0));
    EXPECT_EQ((std::vector<int>{0}), Selected());
    EXPECT_EQ(0, List().TopItem(0));
    EXPECT_EQ((Values{0, 1000, 1001, 1003}), Data());
    EXPECT_EQ(List().m_hWnd, ::GetFocus());
}

TEST_F(EditableListRows, EndItemLeavesItsItemDataAt0)
{
    List().SelectItem(1, true);
    EXPECT_EQ(1, List().EndItem(1));
    EXPECT_EQ((Texts{L"r0c0", L"r2c0", L"r3c0", L"r1c0"}), Column(0));
    EXPECT_EQ((Texts{L"r0c2", L"r2c2", L"r3c2", L"r1c2"}), Column(2));
    EXPECT_EQ((Values{1000, 1002, 1003, 0}), Data());
    EXPECT_EQ(kBoth, State(3));
    List().SetItemData(3, 77);
    EXPECT_EQ(3, List().EndItem(3));
    EXPECT_EQ(77u, List().GetItemData(3));
}

TEST_F(EditableListRows, MovedRowIsBroughtIntoView)
{
    Create(LVS_REPORT, 200);
    List().EndItem(0);
    EXPECT_LE(200 - List().GetCountPerPage() - 1, List().GetTopIndex());
    List().TopItem(150);
    EXPECT_EQ(0, List().GetTopIndex());
}

TEST_F(EditableListRows, InsItemAtTheCountAppendsAndBehindItFails)
{
    EXPECT_EQ(-1, List().InsItem(kRows + 1));
    EXPECT_EQ(kRows, List().InsItem(kRows));
    EXPECT_EQ((Texts{L"r0c0", L"r1c0", L"r2c0", L"r3c0", L""}), Column(0));
    EXPECT_EQ((std::vector<int>{kRows}), Selected());
}

TEST_F(EditableListRows, InsertedRowIsEmptyAndTheOnlySelectedOne)
{
    List().SetItemState(0, kBoth, kBoth);
    List().SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ(0, List().InsItem(-1));
    EXPECT_EQ((Texts{L"", L"r0c0", L"r1c0", L"r2c0", L"r3c0"}), Column(0));
    EXPECT_EQ(L"", CellText(0, 1));
    EXPECT_EQ(0u, List().GetItemData(0));
    EXPECT_EQ((std::vector<int>{0}), Selected());
    EXPECT_EQ(kBoth, State(0));
    EXPECT_EQ(List().m_hWnd, ::GetFocus());
}

TEST_F(EditableListRows, InsertedRowIsBroughtIntoView)
{
    Create(LVS_REPORT, 200);
    EXPECT_EQ(200, List().InsItem(200));
    EXPECT_LE(200 - List().GetCountPerPage(), List().GetTopIndex());
}

TEST_F(EditableListRows, OnlyAMovedRowMayStayPartlyInView)
{
    const MessageSpy spy(List().m_hWnd, LVM_ENSUREVISIBLE);
    List().UpItem(2);
    List().InsItem(0);
    List().DelItem(0);
    EXPECT_EQ((std::vector<MessageSpy::Parameters>{{1, TRUE}, {0, FALSE}, {0, FALSE}}), spy.Seen());
}

TEST_F(EditableListRows, DeletingThreeSelectedRowsAnswersMinus2AndSelectsNothing)
{
    for (const int row : {0, 2, 3})
        List().SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ(-2, List().DelItem(-1));
    EXPECT_EQ((Texts{L"r1c0"}), Column(0));
    EXPECT_EQ(std::vector<int>(), Selected());
    EXPECT_EQ((Notes{L"delete 0 2 3"}), TakeNotes());
}

TEST_F(EditableListRows, DeletingTheOnlyRowAnswersMinus1)
{
    Create(LVS_REPORT, 1);
    EXPECT_EQ(-1, List().DelItem(0));
    EXPECT_EQ(0, List().GetItemCount());
    EXPECT_EQ((Notes{L"delete 0"}), TakeNotes());
}

TEST_F(EditableListRows, DeletingTheLastOfFiveRowsSelectsRow3)
{
    Create(LVS_REPORT, 5);
    EXPECT_EQ(3, List().DelItem(4));
    EXPECT_EQ((std::vector<int>{3}), Selected());
    EXPECT_EQ(kBoth, State(3));
    EXPECT_EQ(List().m_hWnd, ::GetFocus());
}

TEST_F(EditableListRows, DeletingARowSelectsTheOneThatTakesItsPlace)
{
    List().SetItemState(1, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ(1, List().DelItem(-1));
    EXPECT_EQ((Texts{L"r0c0", L"r2c0", L"r3c0"}), Column(0));
    EXPECT_EQ((std::vector<int>{1}), Selected());
    EXPECT_EQ((Notes{L"delete 1"}), TakeNotes());
}

TEST_F(EditableListRows, OwnerSeesTheRowsBeforeTheyAreDeleted)
{
    int rowsThen = 0;
    DWORD_PTR data = 0;
    m_owner.onDelete = [&](CArray<int, int>& rows) {
        rowsThen = List().GetItemCount();
        data = List().GetItemData(rows[0]);
    };
    List().DelItem(2);
    EXPECT_EQ(kRows, rowsThen);
    EXPECT_EQ(1002u, data);
}

TEST_F(EditableListRows, SelectItemKeepsOrClearsTheOthers)
{
    List().SetItemState(1, kBoth, kBoth);
    List().SetItemState(3, LVIS_SELECTED | LVIS_CUT, LVIS_SELECTED | LVIS_CUT);
    List().SelectItem(2, false);
    EXPECT_EQ((std::vector<int>{1, 2, 3}), Selected());
    EXPECT_EQ(kBoth, State(2));
    List().SelectItem(0, true);
    EXPECT_EQ((std::vector<int>{0}), Selected());
    EXPECT_EQ(kBoth, State(0));
    EXPECT_EQ(static_cast<UINT>(LVIS_CUT), List().GetItemState(3, LVIS_CUT));
    for (const int row : {-1, kRows, INT_MAX})
        List().SelectItem(row, true);
    EXPECT_EQ((std::vector<int>{0}), Selected());
}

TEST_F(EditableListRows, SelectItemInASingleSelectionListTouchesNoOtherRow)
{
    Create(LVS_REPORT | LVS_SINGLESEL);
    List().SelectItem(1, true);
    std::vector<int> changed;
    m_owner.onAny = [&changed](NMHDR& header) {
        if (header.code == LVN_ITEMCHANGING)
            changed.push_back(reinterpret_cast<NMLISTVIEW&>(header).iItem);
    };
    List().SelectItem(2, true);
    EXPECT_EQ((std::vector<int>{2}), Selected());
    for (const int row : changed)
        EXPECT_TRUE(row == 1 || row == 2) << row; // the control itself clears the former one
}
