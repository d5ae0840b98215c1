// PALETTE PRESS SELECTROW OPENROW SELECTNODE: commands on the palette, so that a script can do what a user does there.
#include "host/DialogSearch.h"
#include "host/HostCommands.h"
#include "host/MainFrame.h"
#include "host/PaletteDriver.h"

namespace arxhost
{
namespace
{

const wchar_t paletteUsage[] = L"PALETTE（面板） DOCK LEFT|RIGHT|TOP|BOTTOM [尺寸] | FLOAT x y 宽 高 | SIZE 宽 [高] | "
                               L"SHOW | HIDE | ROLLUP | ROLLDOWN：布置面板";
const wchar_t pressUsage[] = L"PRESS（按下） 编号 [对话框标题]：按下面板或对话框中的控件";
const wchar_t rowUsage[] = L"SELECTROW（选行） 行号 [ADD]：选择面板列表中的一行";
const wchar_t openRowUsage[] = L"OPENROW（双击行） 行号：双击面板列表中的一行";
const wchar_t nodeUsage[] = L"SELECTNODE（选节点） 文字：选择面板树中的一项";

struct SideName
{
    const wchar_t* names;
    UINT dockBar;
};

const SideName sideNames[] = {
    {L"LEFT,左", AFX_IDW_DOCKBAR_LEFT},
    {L"RIGHT,右", AFX_IDW_DOCKBAR_RIGHT},
    {L"TOP,上", AFX_IDW_DOCKBAR_TOP},
    {L"BOTTOM,下", AFX_IDW_DOCKBAR_BOTTOM},
};

CAdUiPaletteSet& NeedPaletteSet()
{
    CAdUiPaletteSet* set = CurrentPaletteSet();
    if (set == NULL)
        throw CommandFailure{L"没有面板。先运行会显示面板的模块命令。"};
    return *set;
}

UINT NeedSide(const std::wstring& word)
{
    for (const SideName& side : sideNames)
    {
        if (HasName(side.names, word))
            return side.dockBar;
    }
    throw CommandFailure{L"“" + word + L"”不是停靠边。用法：" + paletteUsage};
}

void Fail(const std::wstring& error)
{
    if (!error.empty())
        throw CommandFailure{error};
}

void Dock(CAdUiPaletteSet& set, const Words& words)
{
    if (!set.DockControlBar(NeedSide(NeedWord(words, 1, paletteUsage))))
        throw CommandFailure{L"面板不能停靠在那一边。"};
    if (words.size() > 2)
        set.SetDockedSize(NeedNumber(words[2]));
}

// Coordinates count from the upper left corner of the frame, so that a script suits every screen.
void Float(MainFrame& frame, CAdUiPaletteSet& set, const Words& words)
{
    NeedWord(words, 4, paletteUsage);
    CRect corner;
    frame.GetWindowRect(&corner);
    const CPoint origin(corner.left + NeedNumber(words[1]), corner.top + NeedNumber(words[2]));
    set.FloatControlBar(CRect(origin, CSize(NeedNumber(words[3]), NeedNumber(words[4]))));
}

void Size(CAdUiPaletteSet& set, const Words& words)
{
    const int width = NeedNumber(NeedWord(words, 1, paletteUsage));
    if (!set.IsFloating())
    {
        set.SetDockedSize(width);
        return;
    }
    CRect rect;
    set.GetFloatingRect(rect);
    rect.right = rect.left + width;
    if (words.size() > 2)
        rect.bottom = rect.top + NeedNumber(words[2]);
    set.FloatControlBar(rect);
}

void Palette(MainFrame& frame, const Words& words)
{
    CAdUiPaletteSet& set = NeedPaletteSet();
    const std::wstring& what = NeedWord(words, 0, paletteUsage);
    if (HasName(L"DOCK,固定", what))
        Dock(set, words);
    else if (HasName(L"FLOAT,浮动", what))
        Float(frame, set, words);
    else if (HasName(L"SIZE,大小", what))
        Size(set, words);
    else if (HasName(L"SHOW,显示", what))
        frame.ShowControlBar(&set, TRUE, FALSE);
    else if (HasName(L"HIDE,隐藏", what))
        frame.ShowControlBar(&set, FALSE, FALSE);
    else if (HasName(L"ROLLUP,卷起", what))
        set.RollUp();
    else if (HasName(L"ROLLDOWN,展开", what))
        set.RollDown();
    else
        throw CommandFailure{L"“" + what + L"”不是面板操作。用法：" + paletteUsage};
    set.SaveLayout();
}

HWND NeedDialog(MainFrame& frame, const std::wstring& title)
{
    const HWND dialog = FindDialog(frame.m_hWnd, title);
    if (dialog == NULL)
        throw CommandFailure{L"没有打开标题为“" + title + L"”的对话框。"};
    return dialog;
}

void Press(MainFrame& frame, const Words& words)
{
    const int id = NeedNumber(NeedWord(words, 0, pressUsage));
    Fail(PressControl(words.size() > 1 ? NeedDialog(frame, words[1]) : NeedPaletteSet().m_hWnd, id));
}

void SelectRow(MainFrame& /*frame*/, const Words& words)
{
    const bool add = words.size() > 1 && HasName(L"ADD,添加", words[1]);
    Fail(SelectListRow(NeedPaletteSet().m_hWnd, NeedNumber(NeedWord(words, 0, rowUsage)), add));
}

void OpenRow(MainFrame& /*frame*/, const Words& words)
{
    Fail(DoubleClickListRow(NeedPaletteSet().m_hWnd, NeedNumber(NeedWord(words, 0, openRowUsage))));
}

void SelectNode(MainFrame& /*frame*/, const Words& words)
{
    Fail(SelectTreeItem(NeedPaletteSet().m_hWnd, NeedWord(words, 0, nodeUsage)));
}

} // namespace

std::vector<HostCommand> PaletteCommands()
{
    return {
        {L"PALETTE,面板", paletteUsage, &Palette},      {L"PRESS,按下", pressUsage, &Press},
        {L"SELECTROW,选行", rowUsage, &SelectRow},      {L"OPENROW,双击行", openRowUsage, &OpenRow},
        {L"SELECTNODE,选节点", nodeUsage, &SelectNode},
    };
}

} // namespace arxhost
