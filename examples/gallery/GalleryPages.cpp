#include "GalleryPages.h"

#include "GalleryCode.h"
#include "GallerySource.h"

#include "pages/CheckTreePage.h"
#include "pages/CheckWindowPage.h"
#include "pages/ComboButtonPage.h"
#include "pages/EditableListPage.h"
#include "pages/FollowTipPage.h"
#include "pages/HtmlPage.h"
#include "pages/IconTreePage.h"
#include "pages/InputDialogPage.h"
#include "pages/LabelPage.h"
#include "pages/MessageObjectPage.h"
#include "pages/MessagesPage.h"
#include "pages/PropertySheetPage.h"
#include "pages/ResizerPage.h"
#include "pages/RichEditPage.h"
#include "pages/SlidePage.h"
#include "pages/SortListPage.h"
#include "pages/SuperEditPage.h"
#include "pages/TabSheetPage.h"
#include "pages/TipButtonPage.h"
#include "pages/TreeCommandsPage.h"
#include "pages/WaitDialogPage.h"

namespace
{

template<class PAGE>
GalleryEntry Page(const wchar_t* name, const wchar_t* group, const wchar_t* title)
{
    const CString code = ShownLines(SourceOfPage(name));
    return {name, group, title, PAGE::Description, code, []() -> CGalleryPage* { return new PAGE; }};
}

} // namespace

const std::vector<GalleryEntry>& GalleryPages()
{
    static const std::vector<GalleryEntry> pages = {
        Page<CSuperEditPage>(L"super-edit", L"输入", L"校验编辑框"),
        Page<CInputDialogPage>(L"input-dialog", L"输入", L"输入对话框"),
        Page<CRichEditPage>(L"rich-edit", L"输入", L"多格式文本框"),
        Page<CSortListPage>(L"sort-list", L"列表", L"可排序列表"),
        Page<CEditableListPage>(L"editable-list", L"列表", L"可编辑列表"),
        Page<CCheckTreePage>(L"check-tree", L"树", L"勾选树"),
        Page<CIconTreePage>(L"icon-tree", L"树", L"图标树"),
        Page<CTreeCommandsPage>(L"tree-commands", L"树", L"条目树与命令"),
        Page<CComboButtonPage>(L"combo-button", L"按钮", L"组合按钮"),
        Page<CPropertySheetPage>(L"property-sheet", L"对话框", L"属性表"),
        Page<CResizerPage>(L"resizer", L"对话框", L"调整大小与位置"),
        Page<CHtmlPage>(L"html", L"对话框", L"浏览器控件"),
        Page<CFollowTipPage>(L"follow-tip", L"提示与显示", L"随鼠标的提示"),
        Page<CCheckWindowPage>(L"check-window", L"提示与显示", L"检查信息窗口"),
        Page<CTipButtonPage>(L"tip-button", L"提示与显示", L"带提示的按钮"),
        Page<CLabelPage>(L"label", L"提示与显示", L"上下标文字"),
        Page<CSlidePage>(L"slide", L"提示与显示", L"图片预览"),
        Page<CTabSheetPage>(L"tab-sheet", L"提示与显示", L"选项卡"),
        Page<CMessagesPage>(L"messages", L"消息", L"消息服务"),
        Page<CWaitDialogPage>(L"wait-dialog", L"消息", L"等待对话框"),
        Page<CMessageObjectPage>(L"message-object", L"消息", L"消息汇总"),
    };
    return pages;
}

const GalleryEntry* FindGalleryPage(const CString& nameOrTitle)
{
    for (const GalleryEntry& entry : GalleryPages())
    {
        if (nameOrTitle.CompareNoCase(entry.name) == 0 || nameOrTitle.CompareNoCase(entry.title) == 0)
            return &entry;
    }
    return nullptr;
}
