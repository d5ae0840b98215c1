// A list view of plain Win32 that shows the same rows as the viewer's list: what the viewer is measured against.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <array>
#include <string>
#include <vector>

namespace bench
{

class BareMessageList
{
public:
    // Copies the first `rows` rows of `model`, its place, its size and its style.
    BareMessageList(HWND model, int rows);
    ~BareMessageList();
    BareMessageList(const BareMessageList&) = delete;
    BareMessageList& operator=(const BareMessageList&) = delete;

    // Deletes all rows, inserts them again with redraw off and shows the last one.
    void Fill();

    // Sorts by the text of a column, which is fetched once before.
    void Sort(int column);

private:
    static constexpr int kColumns = 4;

    struct Row
    {
        int image = 0;
        std::array<std::wstring, kColumns> texts;
    };

    void CopyColumns(HWND model);
    void CopyRow(HWND model, int row);
    void InsertRow(int row);

    HWND m_list;
    std::vector<Row> m_rows;
};

} // namespace bench
