#include "IconTreePage.h"

#include "../GalleryIds.h"

const wchar_t CIconTreePage::Description[] =
    L"在图像与文字之间显示任意多个附加图标：图标句柄、树自身图像列表或附加图"
    L"像列表中的图像均可。";

namespace
{

enum Mark
{
    MARK_NEW,
    MARK_COPIED,
    MARK_EDITED,
    MARK_RENAMED,
    MARK_COUNT
};

constexpr int kMarkPixels = 16;

} // namespace

CIconTreePage::CIconTreePage() : CGalleryPage(IDD_ICON_TREE_PAGE) {}

void CIconTreePage::DoDataExchange(CDataExchange* exchange)
{
    CGalleryPage::DoDataExchange(exchange);
    // [show]
    DDX_Control(exchange, IDC_ICON_TREE, m_tree);
    // [end]
}

BOOL CIconTreePage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    LoadMarks();
    m_resize.AddCtrl(IDC_ICON_TREE, 0, 0, 1, 1);
    // [show]
    m_tree.SetAddedImageList(&m_marks);
    // [end]
    const HTREEITEM standard = Add(L"标准件", TVI_ROOT, {});
    Add(L"M12 螺栓", standard, {MARK_NEW});
    Add(L"轴承 6204", standard, {MARK_COPIED, MARK_EDITED});
    const HTREEITEM keys = Add(L"键", standard, {});
    Add(L"平键 8×7×40", keys, {MARK_EDITED, MARK_RENAMED});
    Add(L"半圆键", keys, {});
    const HTREEITEM own = Add(L"自制件", TVI_ROOT, {MARK_EDITED});
    Add(L"箱体", own, {MARK_NEW, MARK_EDITED, MARK_RENAMED});
    Add(L"端盖", own, {MARK_COPIED});
    for (HTREEITEM item : {standard, keys, own})
        m_tree.Expand(item, TVE_EXPAND);
    m_tree.SelectItem(own);
    return TRUE;
}

HTREEITEM CIconTreePage::Add(const wchar_t* name, HTREEITEM parent,
                             std::initializer_list<int> marks)
{
    const HTREEITEM item = m_tree.InsertItem(name, parent);
    // [show]
    CTreeItemImages icons; // 从左到右
    for (int mark : marks)
        icons.AddImage(mark, CTreeItemImages::IMG_ADDEDLIST);
    m_tree.SetAddedIcons(item, icons);
    // [end]
    return item;
}

void CIconTreePage::LoadMarks()
{
    CStringArray names;
    for (const wchar_t* name : {L"IDI_ICON_NEW", L"IDI_ICON_COPYFROM",
                                L"IDI_ICON_EDIT", L"IDI_ICON_RENAME"})
        names.Add(name);
    // [show]
    HICON icons[MARK_COUNT] = {}; // 图标归调用者
    MFCUtils::LoadIcons(names, icons, kMarkPixels, kMarkPixels);
    // [end]
    m_marks.Create(kMarkPixels, kMarkPixels, ILC_COLOR32 | ILC_MASK,
                   MARK_COUNT, 0);
    for (HICON icon : icons)
    {
        m_marks.Add(icon);
        ::DestroyIcon(icon);
    }
}
