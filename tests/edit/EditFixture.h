// A validating edit on a parent that remembers what it is told and can judge texts.
#pragma once

#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "edit/SuperEdit.h"

// Shows what the control keeps for itself.
class TestedEdit : public CSuperEdit
{
public:
    using CSuperEdit::CheckValueOutRange;
};

class EditParent : public CWnd
{
public:
    static constexpr int kEditId = 42;

    struct Told
    {
        HWND window;
        int controlId;
        int status;
        LPARAM valid;
    };

    int changes = 0;
    std::vector<Told> validity;
    std::vector<int> askedStatus;
    std::wstring askedText;
    LRESULT answer = 0;

protected:
    afx_msg void OnEditChange() { ++changes; }

    afx_msg LRESULT OnValidate(WPARAM wParam, LPARAM lParam)
    {
        askedStatus.push_back(reinterpret_cast<const VVENotice*>(wParam)->status);
        askedText = reinterpret_cast<const wchar_t*>(lParam);
        return answer;
    }

    afx_msg LRESULT OnValidity(WPARAM wParam, LPARAM valid)
    {
        const VVENotice& notice = *reinterpret_cast<const VVENotice*>(wParam);
        validity.push_back({notice.window, notice.controlId, notice.status, valid});
        return 0;
    }

    DECLARE_MESSAGE_MAP()
};

class EditFixture : public testing::Test
{
protected:
    EditFixture();
    ~EditFixture() override { m_parent.DestroyWindow(); }

    // Types by messages, as the keyboard does after translation.
    void Type(const std::wstring& keys)
    {
        for (const wchar_t key : keys)
            m_edit.SendMessage(WM_CHAR, key, 1);
    }

    std::wstring Text() const
    {
        CString text;
        m_edit.GetWindowText(text);
        return text.GetString();
    }

    // Sets a text and answers the colour that it is painted with.
    COLORREF ColourOf(const wchar_t* text)
    {
        m_edit.SetWindowText(text);
        return Colour();
    }

    // Asks for the background brush the way painting does; 0xFFFFFFFF: the control leaves it to the system.
    COLORREF Colour();

    // The status code of the last validation, which only the parent is told.
    int Status();

    // Moves the focus away and back.
    void Leave() { m_other.SetFocus(); }
    void Enter() { m_edit.SetFocus(); }

    EditParent m_parent;
    TestedEdit m_edit;
    CEdit m_other;
};
