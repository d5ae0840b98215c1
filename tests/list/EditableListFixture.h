// An editable list of four rows and three columns, in an owner that writes down everything it is told and may answer
// with an editor or do something evil.
#pragma once

#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "list/ZNListCtrl.h"

#include "edit/SuperEdit.h"

#include "Wait.h"

typedef std::vector<std::wstring> Notes;

class EditOwner : public CWnd
{
public:
    static constexpr UINT kMessage = WM_APP + 50; // what buttons and combo boxes are given to send

    EditOwner();
    ~EditOwner() override;

    // "begin 1,2 text", "end 1,2 text", "message 1,2", "delete 0 2": in the order in which they came.
    Notes notes;

    // Called when the note has been written.
    std::function<void(int row, int column)> onBegin;
    std::function<void(int row, int column)> onEnd;
    std::function<void()> onMessage;
    std::function<void(CArray<int, int>&)> onDelete;
    // Called for every notification, before the list has its share.
    std::function<void(NMHDR&)> onAny;

    void ForgetAll();

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void NoteCell(const wchar_t* what, WPARAM wParam, const NMLVDISPINFOW& info);
};

class EditableListFixture : public testing::Test
{
protected:
    static constexpr int kListId = 7;
    static constexpr int kRows = 4;
    static constexpr int kColumns = 3;
    static constexpr int kColumnWidth = 100;
    static constexpr int kButtonId = 1000;
    static constexpr int kEditId = 1001;
    static constexpr int kComboId = 1002;
    static constexpr int kPickerId = 1003;

    EditableListFixture();
    ~EditableListFixture() override;

    void SetUp() override;

    // A new list, of that window style, with `rows` rows and `columns` columns; the item data of a row is 1000 + its
    // index, its texts are "r0c1".
    void Create(DWORD style = LVS_REPORT, int rows = kRows, int columns = kColumns);

    CZNListCtrl& List() { return *m_list; }
    void DeleteList() { m_list.reset(); }

    // The window of an editor; null when there is none.
    HWND Child(int id) const { return ::GetDlgItem(m_list->m_hWnd, id); }
    // How many editors, buttons counted, the list has.
    int CountEditors() const;
    std::wstring TextOf(HWND window) const;
    std::wstring CellText(int row, int column) { return List().GetItemText(row, column).GetString(); }
    std::vector<std::wstring> Column(int column);
    std::vector<DWORD_PTR> Data();
    std::vector<int> Selected();

    CRect CellRect(int row, int column);
    // Of a child, in the list's client coordinates.
    CRect PlaceOf(HWND child);
    void Click(CPoint point);
    void ClickCell(int row, int column) { Click(CellRect(row, column).CenterPoint()); }

    // Lets the framework translate a key as the message loop does; TRUE: somebody consumed it.
    BOOL Press(UINT key);

    // The owner answers every LVN_BEGINLABELEDITW with this editor.
    void AnswerWithEdit();
    void AnswerWithButton();
    void AnswerWithCombo(DWORD style = CBS_DROPDOWNLIST);
    void AnswerWithPicker();

    Notes TakeNotes();

    EditOwner m_owner;
    CEdit m_other; // a neighbour of the list

private:
    std::unique_ptr<CZNListCtrl> m_list;
};

// A modifier is held down as long as this lives.
class HeldKey
{
public:
    explicit HeldKey(int key) : m_key(key) { Set(0x80); }
    ~HeldKey() { Set(0); }
    HeldKey(const HeldKey&) = delete;
    HeldKey& operator=(const HeldKey&) = delete;

private:
    void Set(BYTE state)
    {
        BYTE keys[256];
        ::GetKeyboardState(keys);
        keys[m_key] = state;
        ::SetKeyboardState(keys);
    }

    int m_key;
};
