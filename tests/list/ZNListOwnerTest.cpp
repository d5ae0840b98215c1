// The editable list under owners that do in a notification what no owner should: the list must live through it, say
// everything once, and leave nothing behind.
#include "EditableListFixture.h"

#include "GdiCount.h"
#include "ObjectCounter.h"
#include "WindowCount.h"

#include <afxdtctl.h>

namespace
{

class EditableListOwner : public EditableListFixture
{
protected:
    typedef std::function<void()> Action;

    std::vector<Action> Answers()
    {
        return {[this] { AnswerWithEdit(); },
                [this] { AnswerWithButton(); },
                [this] { AnswerWithCombo(CBS_DROPDOWN); },
                [this] { AnswerWithCombo(CBS_DROPDOWNLIST); },
                [this] { AnswerWithCombo(CBS_SIMPLE); },
                [this] { AnswerWithPicker(); }};
    }

    // The ways to end the edit of cell 1,1.
    std::vector<Action> Ends()
    {
        return {[this] { List().EndEdit(); },
                [this] { m_other.SetFocus(); },
                [this] { Press(VK_RETURN); },
                [this] { Press(VK_DOWN); },
                [this] { ClickCell(2, 0); },
                [this] { List().SendMessage(WM_VSCROLL, SB_LINEDOWN); },
                [this] { List().SendMessage(WM_HSCROLL, SB_LINERIGHT); },
                [this] { List().SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120)); },
                [this] { List().UpItem(2); },
                [this] { List().DownItem(2); },
                [this] { List().TopItem(2); },
                [this] { List().EndItem(2); },
                [this] { List().InsItem(2); },
                [this] { List().DelItem(2); },
                [this] { List().ShowInPlaceEdit(2, 2, L""); },
                [this] { List().ShowInPlaceComboBox(2, 2, 0, 0); },
                [this] { List().ShowInPlaceDateTimeCtrl(2, 2, 0, L""); },
                [this] { List().DestroyWindow(); }};
    }

    // Every editor, ended in every way, with something evil done when the owner hears of the end.
    void EndInEveryWay(const Action& evil)
    {
        for (const Action& answer : Answers())
        {
            for (const Action& end : Ends())
            {
                Create();
                answer();
                ClickCell(1, 1);
                TakeNotes();
                const HWND list = List().m_hWnd;
                m_owner.onBegin = nullptr;
                int calls = 0;
                m_owner.onEnd = [&](int row, int column) {
                    if (row == 1 && column == 1 && ++calls == 1)
                        evil();
                };
                end();
                m_owner.onEnd = nullptr;
                EXPECT_EQ(1, calls);
                ASSERT_TRUE(!::IsWindow(list) || WaitFor([this] { return CountEditors() <= 2; }));
            }
        }
    }

    // As the list view tells its parent.
    void ClickHeading(int column)
    {
        NMLISTVIEW click = {};
        click.hdr.hwndFrom = List().m_hWnd;
        click.hdr.idFrom = kListId;
        click.hdr.code = LVN_COLUMNCLICK;
        click.iItem = -1;
        click.iSubItem = column;
        m_owner.SendMessage(WM_NOTIFY, kListId, reinterpret_cast<LPARAM>(&click));
    }

    size_t CountEnds(int row, int column)
    {
        const std::wstring start = L"end " + std::to_wstring(row) + L"," + std::to_wstring(column);
        return std::count_if(m_owner.notes.begin(), m_owner.notes.end(),
                             [&](const std::wstring& note) { return note.compare(0, start.size(), start) == 0; });
    }

    void PumpOnce()
    {
        bool turned = false;
        m_owner.onMessage = [&turned] { turned = true; };
        m_owner.PostMessage(EditOwner::kMessage);
        EXPECT_TRUE(WaitFor([&turned] { return turned; }));
        m_owner.onMessage = nullptr;
    }
};

} // namespace

TEST_F(EditableListOwner, MayDestroyTheListWhenAnEditEnds)
{
    EndInEveryWay([this] { List().DestroyWindow(); });
}

TEST_F(EditableListOwner, MayDestroyTheListWithoutItsObjectWhenAnEditEnds)
{
    EndInEveryWay([this] { ::DestroyWindow(List().m_hWnd); });
}

TEST_F(EditableListOwner, MayDeleteAllRowsWhenAnEditEnds)
{
    EndInEveryWay([this] { List().DeleteAllItems(); });
}

TEST_F(EditableListOwner, MayDeleteTheEditedRowWhenAnEditEnds)
{
    EndInEveryWay([this] { List().DeleteItem(1); });
}

TEST_F(EditableListOwner, MayDeleteColumnsWhenAnEditEnds)
{
    EndInEveryWay([this] {
        while (List().DeleteColumn(0))
            continue;
    });
}

TEST_F(EditableListOwner, MayEndTheEditAgainWhenAnEditEnds)
{
    EndInEveryWay([this] { List().EndEdit(); });
}

TEST_F(EditableListOwner, MayOpenAnotherEditorWhenAnEditEnds)
{
    const std::vector<Action> others = {
        [this] { List().ShowInPlaceEdit(0, 2, L"another"); },
        [this] { List().ShowInPlaceEditBtn(0, 2, 0, L"another"); },
        [this] { List().ShowInPlaceComboBox(0, 2, CBS_DROPDOWN, 0); },
        [this] { List().ShowInPlaceDateTimeCtrl(0, 2, 0, L"2016-05-07"); },
    };
    // In turn, beginning with another one for each answer: every way to end meets all of them.
    const size_t ways = Ends().size();
    size_t ended = 0;
    EndInEveryWay([&] {
        others[(ended + ended / ways) % others.size()]();
        ++ended;
    });
}

TEST_F(EditableListOwner, MayMoveTheFocusWhenAnEditEnds)
{
    EndInEveryWay([this] { m_other.SetFocus(); });
}

TEST_F(EditableListOwner, EditorThatWasOpenedWhenAnEditEndedEndsByItsOwnKind)
{
    AnswerWithPicker();
    ClickCell(1, 1);
    m_owner.onBegin = nullptr;
    m_owner.onEnd = [this](int row, int) {
        if (row == 1)
            List().ShowInPlaceDateTimeCtrl(3, 1, 0, L"2001-02-03");
    };
    List().EndEdit();
    TakeNotes();
    List().EndEdit();
    EXPECT_EQ((Notes{L"end 3,1 2001-02-03"}), TakeNotes());
}

TEST_F(EditableListOwner, MayDeleteTheListObjectWhenAKeyEndsAnEdit)
{
    AnswerWithEdit();
    ClickCell(1, 1);
    m_owner.onBegin = nullptr;
    m_owner.onEnd = [this](int, int) { DeleteList(); };
    Press(VK_DOWN);
    EXPECT_EQ(1u, CountEnds(1, 1));
}

TEST_F(EditableListOwner, MayDestroyTheListWhenAnEditBegins)
{
    for (const bool byKey : {false, true})
    {
        Create();
        m_owner.onBegin = [this](int, int) { List().DestroyWindow(); };
        if (byKey)
        {
            List().SetFocus();
            List().SelectItem(1, true);
            Press(VK_RETURN);
        }
        else
            ClickCell(1, 1);
        EXPECT_FALSE(::IsWindow(List().m_hWnd));
        EXPECT_EQ((Notes{L"begin 1,1 r1c1"}), TakeNotes());
    }
}

TEST_F(EditableListOwner, MayDestroyTheListWithAnOpenEditorWhenAnEditBegins)
{
    for (const Action& answer : Answers())
    {
        Create();
        answer();
        const std::function<void(int, int)> open = m_owner.onBegin;
        m_owner.onBegin = [this, open](int row, int column) {
            open(row, column);
            List().DestroyWindow();
        };
        ClickCell(1, 1);
        EXPECT_EQ(1u, CountEnds(1, 1));
        TakeNotes();
    }
}

TEST_F(EditableListOwner, MayDeleteAllRowsWhenAnEditBegins)
{
    m_owner.onBegin = [this](int row, int column) {
        List().DeleteAllItems();
        EXPECT_EQ(nullptr, List().ShowInPlaceEdit(row, column, L""));
    };
    ClickCell(1, 1);
    EXPECT_EQ(0, CountEditors());
}

TEST_F(EditableListOwner, MayOpenSeveralEditorsWhenAnEditBegins)
{
    m_owner.onBegin = [this](int row, int column) {
        List().ShowInPlaceComboBox(row, column, CBS_DROPDOWN, 0);
        List().ShowInPlaceDateTimeCtrl(row, column, 0, L"2016-05-07");
        List().ShowInPlaceEdit(row, column, L"last");
    };
    ClickCell(1, 1);
    EXPECT_EQ((Notes{L"begin 1,1 r1c1", L"end 1,1 ", L"end 1,1 2016-05-07"}), TakeNotes());
    EXPECT_TRUE(WaitFor([this] { return CountEditors() == 1; }));
    EXPECT_EQ(L"last", TextOf(Child(kEditId)));
}

TEST_F(EditableListOwner, MayDestroyTheListWhenItsButtonSpeaks)
{
    AnswerWithButton();
    for (const bool atEnd : {true, false})
    {
        Create();
        ClickCell(1, 1);
        TakeNotes();
        const Action destroy = [this] { List().DestroyWindow(); };
        m_owner.onEnd = [&](int, int) {
            if (atEnd)
                destroy();
        };
        m_owner.onMessage = destroy;
        ::SendMessageW(Child(kButtonId), BM_CLICK, 0, 0);
        EXPECT_EQ(atEnd ? (Notes{L"end 1,1 r1c1"}) : (Notes{L"end 1,1 r1c1", L"message 1,1"}), TakeNotes());
        m_owner.onEnd = nullptr;
        m_owner.onMessage = nullptr;
    }
}

TEST_F(EditableListOwner, MayDestroyTheListInAnyNotificationOfTheFocusAndTheRows)
{
    for (const UINT code : {static_cast<UINT>(NM_SETFOCUS), static_cast<UINT>(NM_KILLFOCUS),
                            static_cast<UINT>(LVN_ITEMCHANGING), static_cast<UINT>(LVN_ITEMCHANGED)})
    {
        const Action ways[] = {[this] { ClickCell(2, 2); },
                               [this] { List().EndEdit(); },
                               [this] { Press(VK_DOWN); },
                               [this] { List().ShowInPlaceEdit(3, 1, L""); },
                               [this] { List().UpItem(2); },
                               [this] { List().TopItem(2); },
                               [this] { List().InsItem(2); },
                               [this] { List().DelItem(2); },
                               [this] { List().SelectItem(2, true); }};
        for (const Action& way : ways)
        {
            Create();
            AnswerWithEdit();
            ClickCell(1, 1);
            TakeNotes();
            m_owner.onAny = [&](NMHDR& header) {
                if (header.code == code)
                    ::DestroyWindow(List().m_hWnd);
            };
            way();
            m_owner.onAny = nullptr;
            EXPECT_GE(1u, CountEnds(1, 1));
        }
    }
}

TEST_F(EditableListOwner, MayDestroyTheListBeforeRowsAreDeleted)
{
    m_owner.onDelete = [this](CArray<int, int>&) { List().DestroyWindow(); };
    EXPECT_EQ(-1, List().DelItem(1));
}

TEST_F(EditableListOwner, MayDeleteRowsItselfBeforeRowsAreDeleted)
{
    m_owner.onDelete = [this](CArray<int, int>&) { List().DeleteAllItems(); };
    EXPECT_EQ(-1, List().DelItem(0));
    Create();
    m_owner.onDelete = [](CArray<int, int>& rows) { rows.RemoveAll(); };
    EXPECT_EQ(-1, List().DelItem(1));
    EXPECT_EQ(kRows, List().GetItemCount());
}

TEST_F(EditableListOwner, MayChangeTheRowsWhileACellIsEdited)
{
    for (const Action& answer : Answers())
    {
        Create();
        answer();
        ClickCell(3, 1);
        m_owner.onBegin = nullptr;
        TakeNotes();
        List().DeleteAllItems();
        for (const UINT key : {VK_UP, VK_DOWN, VK_RETURN})
            Press(key);
        EXPECT_EQ(0u, CountEnds(3, 1));
        List().InsertItem(0, L"new");
        List().EndEdit();
        EXPECT_EQ(1u, CountEnds(3, 1)); // the row that the edit began with
    }
}

TEST_F(EditableListOwner, MayDeleteTheColumnsWhileACellIsEdited)
{
    for (const Action& answer : Answers())
    {
        Create();
        answer();
        ClickCell(1, 1);
        m_owner.onBegin = nullptr;
        TakeNotes();
        while (List().DeleteColumn(0))
            continue;
        {
            const HeldKey ctrl(VK_CONTROL);
            Press(VK_RIGHT);
            Press(VK_LEFT);
        }
        List().EndEdit();
        EXPECT_EQ(1u, CountEnds(1, 1));
    }
}

TEST_F(EditableListOwner, EditEndsBeforeAClickOnAHeadingMovesItsRow)
{
    List().EnableSort(1);
    AnswerWithEdit();
    m_owner.onEnd = [this](int row, int column) { List().SetItemText(row, column, L"stored"); };
    for (const bool byClick : {true, false})
    {
        List().SetItemText(0, 1, L"r0c1");
        ClickCell(0, 1);
        const DWORD_PTR edited = List().GetItemData(0);
        TakeNotes();
        if (byClick)
            ClickHeading(0);
        else
            List().SortColumn(0, 0, -1);
        EXPECT_EQ((Notes{L"end 0,1 r0c1"}), TakeNotes());
        EXPECT_EQ(0, CountEditors());
        ASSERT_EQ(edited, List().GetItemData(kRows - 1)); // it went to the other end
        EXPECT_EQ(L"stored", CellText(kRows - 1, 1));
    }
}

TEST_F(EditableListOwner, ClickOnAHeadingThatSortsNothingKeepsTheEditOpen)
{
    AnswerWithEdit();
    ClickCell(0, 1);
    TakeNotes();
    ClickHeading(0);
    EXPECT_EQ(Notes(), TakeNotes());
    EXPECT_EQ(1, CountEditors());
}

TEST_F(EditableListOwner, MayDestroyTheListWhenASortEndsAnEdit)
{
    const Action evils[] = {[this] { List().DestroyWindow(); }, [this] { ::DestroyWindow(List().m_hWnd); },
                            [this] { DeleteList(); }};
    for (const Action& evil : evils)
    {
        for (const bool byClick : {false, true})
        {
            Create();
            List().EnableSort(1);
            AnswerWithEdit();
            ClickCell(0, 1);
            TakeNotes();
            const HWND list = List().m_hWnd;
            m_owner.onEnd = [&](int, int) { evil(); };
            if (byClick)
                ClickHeading(0);
            else
                List().SortColumn(0, 0, 1);
            EXPECT_FALSE(::IsWindow(list));
            EXPECT_EQ(1u, CountEnds(0, 1));
            m_owner.onEnd = nullptr;
        }
    }
}

TEST_F(EditableListOwner, MayDestroyAnEditorItself)
{
    for (const Action& answer : Answers())
    {
        Create();
        answer();
        ClickCell(1, 1);
        const HWND editor = ::GetFocus();
        const HWND window = ::GetParent(editor) == List().m_hWnd ? editor : ::GetParent(editor);
        ::DestroyWindow(window);
        EXPECT_GE(1u, CountEnds(1, 1));
        EXPECT_TRUE(WaitFor([this] { return CountEditors() == 0; }));
        TakeNotes();
        ClickCell(2, 1); // the list goes on
        EXPECT_EQ((Notes{L"begin 2,1 r2c1"}), TakeNotes());
    }
}

TEST_F(EditableListOwner, ScrollingDraggingFocusAndDestructionAtOnceEndTheEditOnce)
{
    for (const Action& answer : Answers())
    {
        Create();
        answer();
        ClickCell(1, 1);
        m_owner.onBegin = nullptr;
        m_owner.onEnd = [this](int, int) {
            List().SendMessage(WM_VSCROLL, SB_LINEDOWN);
            NMHEADERW drag = {};
            drag.hdr.hwndFrom = List().GetHeaderCtrl()->m_hWnd;
            drag.hdr.code = HDN_BEGINTRACKW;
            List().SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&drag));
            m_other.SetFocus();
            List().EndEdit();
            List().DestroyWindow();
        };
        List().SendMessage(WM_HSCROLL, SB_LINERIGHT);
        EXPECT_EQ(1u, CountEnds(1, 1));
        m_owner.onEnd = nullptr;
        TakeNotes();
    }
}

TEST_F(EditableListOwner, ParentThatGoesDownHearsOfTheEndAtMostOnce)
{
    for (const Action& answer : Answers())
    {
        EditOwner parent;
        CZNListCtrl list;
        list.Create(LVS_REPORT | WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &parent, kListId);
        list.InsertColumn(0, L"column", LVCFMT_LEFT, 100);
        list.InsertItem(0, L"text");
        ASSERT_NE(nullptr, list.ShowInPlaceEdit(0, 0, L"edited"));
        parent.DestroyWindow();
        EXPECT_GE(1u, parent.notes.size());
        EXPECT_EQ(nullptr, list.m_hWnd);
        answer();
    }
}

TEST_F(EditableListOwner, ListThatGoesDownInAnyWayLeavesNothingBehind)
{
    const Action ends[] = {[this] { List().DestroyWindow(); }, [this] { ::DestroyWindow(List().m_hWnd); },
                           [this] { DeleteList(); },
                           [this] {
                               m_other.SetFocus();
                               DeleteList();
                           },
                           [this] {
                               List().EndEdit();
                               List().DestroyWindow();
                           }};
    for (const unsigned long style : {9ul, 9ul | ZNLCS_KEEPEDITONKILLFOCUS})
    {
        for (const Action& end : ends)
        {
            int windows = 0;
            size_t objects = 0;
            for (int round = 0; round < 3; ++round) // the first round may load what stays
            {
                for (const Action& answer : Answers())
                {
                    Create();
                    List().SetZNListCtrlStyle(style);
                    answer();
                    ClickCell(1, 1);
                    EXPECT_LT(0, CountEditors());
                    end();
                    DeleteList();
                }
                PumpOnce();
                if (round == 1)
                {
                    windows = CountWindows();
                    objects = CountGdiObjects();
                }
            }
            EXPECT_EQ(windows, CountWindows());
            EXPECT_EQ(objects, CountGdiObjects());
            Create();
        }
    }
}

TEST_F(EditableListOwner, ManyEditsLeaveNoWindowAndNoDrawingObjectBehind)
{
    int windows = 0;
    size_t objects = 0;
    for (int round = 0; round < 10; ++round)
    {
        for (const Action& answer : Answers())
        {
            answer();
            for (int column = 0; column < kColumns; ++column)
                ClickCell(1, column);
            Press(VK_DOWN);
            m_other.SetFocus();
            PumpOnce();
        }
        if (round == 1)
        {
            windows = CountWindows();
            objects = CountGdiObjects();
        }
    }
    EXPECT_EQ(0, CountEditors());
    EXPECT_EQ(windows, CountWindows());
    EXPECT_EQ(objects, CountGdiObjects());
}

TEST_F(EditableListOwner, ObjectsOfTheEditorsEndWithTheirWindows)
{
    const size_t sizes[] = {sizeof(CSuperEdit), sizeof(CEdit), sizeof(CButton), sizeof(CComboBox),
                            sizeof(CDateTimeCtrl)};
    const Action answers[] = {[this] { AnswerWithEdit(); }, [this] { AnswerWithButton(); },
                              [this] { AnswerWithButton(); }, [this] { AnswerWithCombo(); },
                              [this] { AnswerWithPicker(); }};
    for (size_t i = 0; i < 5; ++i)
    {
        for (const bool listFirst : {false, true})
        {
            Create();
            answers[i]();
            const size_t made = ObjectCounter::Made();
            const ObjectCounter counter(sizes[i]);
            ClickCell(1, 1);
            EXPECT_LT(made, ObjectCounter::Made());
            EXPECT_LT(0u, counter.Alive());
            if (listFirst)
                List().DestroyWindow();
            else
                m_other.SetFocus();
            PumpOnce();
            m_owner.notes.clear();
            EXPECT_EQ(0u, counter.Alive()) << i;
        }
    }
}
