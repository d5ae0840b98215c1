// The whole way: the host opens a drawing, a client module checks it, the palette shows what it found.
#include "HostProcess.h"
#include "Wait.h"

#include <commctrl.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>

namespace
{

constexpr DWORD g_patience = 60000; // milliseconds
constexpr int g_list = 103;
constexpr int g_count = 104;
constexpr int g_tree = 105;
constexpr int g_columns = 4;
constexpr int g_sourceColumn = 2;
constexpr int g_textColumn = 3;

std::wstring Wide(const char* path)
{
    return std::wstring(path, path + strlen(path));
}

// A script that leaves the palette open long enough to be looked at; the test ends the program earlier.
std::wstring WriteScript()
{
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    const std::wstring path = std::wstring(folder) + L"drawing_check_test.scr";
    std::ofstream(std::string(path.begin(), path.end())) << "ZOOM E\nCHECKDRAWING\nDELAY 50000\n";
    return path;
}

class DrawingCheck : public testing::Test
{
protected:
    void Run(const std::wstring& drawing)
    {
        const std::wstring arguments =
            L"\"" + drawing + L"\" /ld ZNKTControls.arx /ld drawing_check.arx /b \"" + WriteScript() + L"\"";
        m_host.reset(new HostProcess(arguments));
        ASSERT_TRUE(WaitFor([&] { return IsListed() || !m_host->IsRunning(); }, g_patience));
        ASSERT_TRUE(m_host->IsRunning()) << "the host ended with code " << m_host->WaitForEnd(0);
        m_rows = m_host->RowsOf(List(), g_columns);
    }

    HWND List() const { return m_host->FindControl(WC_LISTVIEWW, g_list); }

    // The check adds its summary as its last message.
    bool IsListed() const
    {
        const HWND list = List();
        if (list == NULL || ListView_GetItemCount(list) == 0)
            return false;
        const std::wstring last = m_host->RowsOf(list, g_columns).back()[g_textColumn];
        return last.find(L"检查完成") == 0;
    }

    std::map<std::wstring, int> CountsBySource() const
    {
        std::map<std::wstring, int> counts;
        for (const auto& row : m_rows)
            ++counts[row[g_sourceColumn]];
        return counts;
    }

    std::wstring CountText() const { return TextOf(m_host->FindControl(WC_STATICW, g_count)); }

    std::unique_ptr<HostProcess> m_host;
    std::vector<std::vector<std::wstring>> m_rows;
};

} // namespace

TEST_F(DrawingCheck, PaletteListsEverySeededFaultOfTheSampleDrawing)
{
    Run(Wide(ZNKT_DRAWINGS_FOLDER) + L"/bracket.dxf");
    const std::map<std::wstring, int> expected = {{L"零长度线", 1},     {L"重复对象", 2},     {L"端点未相接", 1},
                                                  {L"多段线未闭合", 1}, {L"文字高度为零", 1}, {L"超出图幅", 2},
                                                  {L"缺少引用", 2},     {L"检查结果", 1}};
    EXPECT_EQ(expected, CountsBySource());
    EXPECT_EQ(std::to_wstring(m_rows.size()) + L"个消息", CountText());
    const HWND tree = m_host->FindControl(WC_TREEVIEWW, g_tree);
    ASSERT_NE(nullptr, tree);
    EXPECT_EQ(expected.size() + 1, TreeView_GetCount(tree)) << "the root and one item a group";
}

TEST_F(DrawingCheck, PaletteNamesWhatIsMissing)
{
    Run(Wide(ZNKT_DRAWINGS_FOLDER) + L"/bracket.dxf");
    std::vector<std::wstring> missing;
    for (const auto& row : m_rows)
    {
        if (row[g_sourceColumn] == L"缺少引用")
            missing.push_back(row[g_textColumn]);
    }
    std::sort(missing.begin(), missing.end());
    const std::vector<std::wstring> expected = {L"引用的图块“标准件-M8”不存在", L"引用的图层“不存在的图层”不存在"};
    EXPECT_EQ(expected, missing);
}

TEST_F(DrawingCheck, DrawingOfAnotherProgramIsCheckedToo)
{
    Run(L"Z:\\usr\\share\\librecad\\library\\sheets\\A3H.dxf");
    EXPECT_EQ(std::to_wstring(m_rows.size()) + L"个消息", CountText());
    EXPECT_EQ(L"检查结果", m_rows.back()[g_sourceColumn]);
}

TEST(Host, MissingDrawingEndsAScriptRunWithAnError)
{
    HostProcess host(L"no_such_drawing.dxf /b no_such_script.scr");
    EXPECT_EQ(1u, host.WaitForEnd(g_patience));
}
