// The five ready-made commands of a combo button.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "GdiCount.h"
#include "IconModule.h"
#include "tree/ComboButtonIMPItem.h"

namespace
{

typedef MFCUtils::CComboButtonIMPItem Item;

struct Sent
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};

class Receiver : public CWnd
{
public:
    Receiver() { CreateEx(0, AfxRegisterWndClass(0), L"receiver", WS_POPUP, CRect(0, 0, 10, 10), NULL, 0); }
    ~Receiver() override { DestroyWindow(); }

    std::vector<Sent> sent;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message < WM_USER || message >= WM_APP)
            return CWnd::WindowProc(message, wParam, lParam);
        sent.push_back({message, wParam, lParam});
        return 1;
    }
};

struct Row
{
    Item::EMode mode;
    int number;
    const wchar_t* name;
    UINT message;
};

const Row kRows[] = {
    {Item::eNew, 1, L"新建", 1365},      {Item::eCopyFrom, 2, L"复制新建", 1366}, {Item::eEdit, 3, L"编辑", 1367},
    {Item::eRename, 4, L"重命名", 1400}, {Item::eDel, 5, L"删除", 1401},
};

// The colours of an icon, to tell whether two icons show the same.
std::vector<DWORD> Picture(HICON icon)
{
    ICONINFO info = {};
    if (icon == NULL || !::GetIconInfo(icon, &info))
        return std::vector<DWORD>();
    BITMAPINFO format = {};
    format.bmiHeader.biSize = sizeof(format.bmiHeader);
    format.bmiHeader.biWidth = 16;
    format.bmiHeader.biHeight = -16;
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    std::vector<DWORD> pixels(16 * 16);
    const HDC screen = ::GetDC(NULL);
    ::GetDIBits(screen, info.hbmColor, 0, 16, pixels.data(), &format, DIB_RGB_COLORS);
    ::ReleaseDC(NULL, screen);
    ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
    return pixels;
}

} // namespace

TEST(TreeCommandItem, EveryModeHasItsNumberNameIconAndMessage)
{
    Receiver receiver;
    std::vector<std::vector<DWORD>> pictures;
    for (const Row& row : kRows)
    {
        EXPECT_EQ(row.number, row.mode);
        Item item(&receiver, row.mode, -12);
        EXPECT_STREQ(row.name, item.GetName());
        EXPECT_EQ(16, IconWidth(item.GetIcon())) << row.number;
        const std::vector<DWORD> picture = Picture(item.GetIcon());
        for (const std::vector<DWORD>& other : pictures)
            EXPECT_NE(other, picture) << row.number;
        pictures.push_back(picture);
        receiver.sent.clear();
        item.Action();
        ASSERT_EQ(1u, receiver.sent.size());
        EXPECT_EQ(row.message, receiver.sent[0].message);
        EXPECT_EQ(0u, receiver.sent[0].wParam);
        EXPECT_EQ(-12, receiver.sent[0].lParam);
    }
}

TEST(TreeCommandItem, TheMessagesHaveTheirNames)
{
    EXPECT_EQ(0x0555, UM_TREE_NEW);
    EXPECT_EQ(0x0556, UM_TREE_COPYFROM);
    EXPECT_EQ(0x0557, UM_TREE_EDIT);
    EXPECT_EQ(0x0578, UM_TREE_RENAME);
    EXPECT_EQ(0x0579, UM_TREE_DEL);
}

TEST(TreeCommandItem, AnyOtherModeHasNothing)
{
    Receiver receiver;
    for (int mode : {0, 6, -1, 1000})
    {
        Item item(&receiver, static_cast<Item::EMode>(mode), 1);
        EXPECT_TRUE(item.GetName().IsEmpty());
        EXPECT_EQ(nullptr, item.GetIcon());
        item.Action();
    }
    EXPECT_TRUE(receiver.sent.empty());
}

TEST(TreeCommandItem, IsEnabledUntilItIsDisabled)
{
    Item item(NULL, Item::eNew, 0);
    EXPECT_TRUE(item.Enabled());
    item.SetEnable(false);
    EXPECT_FALSE(item.Enabled());
    item.SetEnable(true);
    EXPECT_TRUE(item.Enabled());
}

TEST(TreeCommandItem, ADisabledItemStillSendsWhenItIsRun)
{
    Receiver receiver;
    Item item(&receiver, Item::eDel, 3);
    item.SetEnable(false);
    item.Action();
    EXPECT_EQ(1u, receiver.sent.size());
}

TEST(TreeCommandItem, AMissingWindowGetsNothing)
{
    Item none(NULL, Item::eNew, 0);
    none.Action();
    CWnd unborn;
    Item early(&unborn, Item::eNew, 0);
    early.Action();
}

TEST(TreeCommandItem, AMissingModuleLeavesTheNameWithoutAnIcon)
{
    const RegisteredSuiteFolder elsewhere(FolderWithoutIcons());
    Item item(NULL, Item::eEdit, 0);
    EXPECT_STREQ(L"编辑", item.GetName());
    EXPECT_EQ(nullptr, item.GetIcon());
    Item copy(item);
    EXPECT_EQ(nullptr, copy.GetIcon());
}

TEST(TreeCommandItem, IsAnItemOfAComboButton)
{
    Receiver receiver;
    const std::unique_ptr<CComboButtonItem> item(new Item(&receiver, Item::eRename, 9));
    EXPECT_FALSE(item->IsSeparator());
    EXPECT_EQ(nullptr, item->GetBitmap());
    EXPECT_TRUE(item->GetExtraText().IsEmpty());
    EXPECT_STREQ(L"重命名", item->GetName());
    item->Action();
    EXPECT_EQ(1u, receiver.sent.size());
}

TEST(TreeCommandItem, ACopyHasEverythingAndAnIconOfItsOwn)
{
    Receiver receiver;
    std::unique_ptr<Item> original(new Item(&receiver, Item::eCopyFrom, 5));
    original->SetEnable(false);
    const std::vector<DWORD> picture = Picture(original->GetIcon());
    Item copy(*original);
    EXPECT_NE(original->GetIcon(), copy.GetIcon());
    original.reset();
    EXPECT_EQ(picture, Picture(copy.GetIcon()));
    EXPECT_STREQ(L"复制新建", copy.GetName());
    EXPECT_FALSE(copy.Enabled());
    copy.Action();
    ASSERT_EQ(1u, receiver.sent.size());
    EXPECT_EQ(1366u, receiver.sent[0].message);
    EXPECT_EQ(5, receiver.sent[0].lParam);
}

TEST(TreeCommandItem, AnAssignmentReplacesEverything)
{
    Receiver receiver;
    Item target(NULL, Item::eNew, 1);
    {
        Item source(&receiver, Item::eDel, 2);
        source.SetEnable(false);
        target = source;
        EXPECT_EQ(Picture(source.GetIcon()), Picture(target.GetIcon()));
    }
    EXPECT_EQ(16, IconWidth(target.GetIcon()));
    EXPECT_STREQ(L"删除", target.GetName());
    EXPECT_FALSE(target.Enabled());
    target.Action();
    EXPECT_EQ(1u, receiver.sent.size());
    Item& same = target;
    target = same;
    EXPECT_EQ(16, IconWidth(target.GetIcon()));
}

TEST(TreeCommandItem, ItemsAndTheirCopiesLeaveNoGdiObject)
{
    const auto comeAndGo = [] {
        Item item(NULL, Item::eNew, 0);
        Item copy(item);
        Item other(NULL, Item::eEdit, 0);
        other = copy;
    };
    comeAndGo();
    const size_t before = CountGdiObjects();
    for (int i = 0; i < 20; ++i)
        comeAndGo();
    EXPECT_EQ(before, CountGdiObjects());
}
