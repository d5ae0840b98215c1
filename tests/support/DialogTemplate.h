// A dialog template in memory, for tests that need a dialog without a resource script.
//
//   DialogTemplate form(L"Title", 120, 60);
//   form.Edit(IDC_NAME, 10, 10, 60, 12).DefaultButton(IDOK, L"OK", 10, 30);
//   CDialog dialog;
//   dialog.InitModalIndirect(form.Get());
//
// All sizes are dialog units. Controls are named by their window class, so that any registered class can be used.
#pragma once

#include <windows.h>

#include <cstring>
#include <string>
#include <vector>

class DialogTemplate
{
public:
    static const DWORD ModalStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_SETFONT;

    DialogTemplate(const wchar_t* title, int width, int height, DWORD style = ModalStyle)
        : m_title(title), m_width(width), m_height(height), m_style(style)
    {
    }

    DialogTemplate& Font(const wchar_t* face, int points)
    {
        m_face = face;
        m_points = points;
        return *this;
    }

    DialogTemplate& At(int x, int y)
    {
        m_x = x;
        m_y = y;
        return *this;
    }

    DialogTemplate& Control(const wchar_t* className, const wchar_t* text, int id, DWORD style, int x, int y, int width,
                            int height)
    {
        m_items.push_back({className, text, style | WS_CHILD | WS_VISIBLE, x, y, width, height, id});
        return *this;
    }

    DialogTemplate& Edit(int id, int x, int y, int width = 60, int height = 12, DWORD style = ES_AUTOHSCROLL)
    {
        return Control(L"EDIT", L"", id, style | WS_BORDER | WS_TABSTOP, x, y, width, height);
    }

    DialogTemplate& Label(int id, const wchar_t* text, int x, int y, int width = 60, int height = 10)
    {
        return Control(L"STATIC", text, id, SS_LEFT, x, y, width, height);
    }

    DialogTemplate& Button(int id, const wchar_t* text, int x, int y, DWORD style = BS_PUSHBUTTON)
    {
        return Control(L"BUTTON", text, id, style | WS_TABSTOP, x, y, m_buttonWidth, m_buttonHeight);
    }

    DialogTemplate& DefaultButton(int id, const wchar_t* text, int x, int y)
    {
        return Button(id, text, x, y, BS_DEFPUSHBUTTON);
    }

    // Valid until the next call of Get or the end of this object.
    LPCDLGTEMPLATE Get()
    {
        m_words.clear();
        AddHeader();
        for (const Item& item : m_items)
            AddItem(item);
        m_aligned.assign((m_words.size() + 1) / 2, 0);
        std::memcpy(m_aligned.data(), m_words.data(), m_words.size() * sizeof(WORD));
        return reinterpret_cast<LPCDLGTEMPLATE>(m_aligned.data());
    }

    // The same in movable memory; the caller frees it with GlobalFree.
    HGLOBAL GetGlobal()
    {
        Get();
        const size_t bytes = m_aligned.size() * sizeof(DWORD);
        const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, bytes);
        std::memcpy(::GlobalLock(memory), m_aligned.data(), bytes);
        ::GlobalUnlock(memory);
        return memory;
    }

private:
    struct Item
    {
        std::wstring className;
        std::wstring text;
        DWORD style;
        int x, y, width, height;
        int id;
    };

    void AddHeader()
    {
        AddDword(m_style);
        AddDword(0);
        AddWord(static_cast<int>(m_items.size()));
        AddPlace(m_x, m_y, m_width, m_height);
        AddWord(0); // no menu
        AddWord(0); // the standard dialog class
        AddText(m_title);
        if (!(m_style & DS_SETFONT))
            return;
        AddWord(m_points);
        AddText(m_face);
    }

    void AddItem(const Item& item)
    {
        if (m_words.size() % 2 != 0) // every item starts at a DWORD
            AddWord(0);
        AddDword(item.style);
        AddDword(0);
        AddPlace(item.x, item.y, item.width, item.height);
        AddWord(item.id);
        AddText(item.className);
        AddText(item.text);
        AddWord(0); // no creation data
    }

    void AddPlace(int x, int y, int width, int height)
    {
        AddWord(x);
        AddWord(y);
        AddWord(width);
        AddWord(height);
    }

    void AddWord(int value) { m_words.push_back(static_cast<WORD>(value)); }

    void AddDword(DWORD value)
    {
        m_words.push_back(LOWORD(value));
        m_words.push_back(HIWORD(value));
    }

    void AddText(const std::wstring& text)
    {
        m_words.insert(m_words.end(), text.c_str(), text.c_str() + text.size() + 1);
    }

    static const int m_buttonWidth = 40;
    static const int m_buttonHeight = 14;

    const std::wstring m_title;
    const int m_width;
    const int m_height;
    const DWORD m_style;
    int m_x = 0;
    int m_y = 0;
    std::wstring m_face = L"Tahoma";
    int m_points = 9;
    std::vector<Item> m_items;
    std::vector<WORD> m_words;
    std::vector<DWORD> m_aligned; // a template must lie at a DWORD boundary
};
