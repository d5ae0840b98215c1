// Finding, deleting, laying out, and the named icons.
#include <afxwin.h>

#include <gtest/gtest.h>

#include "GdiCount.h"
#include "IconModule.h"
#include "tree/MFCUtils.h"

namespace
{

using MFCUtils::DeleteTreeChildItems;
using MFCUtils::FindTreeItem;
using MFCUtils::LoadIcons;
using MFCUtils::SendSizeMessageManual;

class Parent : public CWnd
{
public:
    Parent() { CreateEx(0, AfxRegisterWndClass(0), L"parent", WS_POPUP, CRect(0, 0, 300, 200), NULL, 0); }
    ~Parent() override { DestroyWindow(); }
};

// Answers its sizes.
class Sized : public CWnd
{
public:
    WPARAM kind = 99;
    LPARAM size = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != WM_SIZE)
            return CWnd::WindowProc(message, wParam, lParam);
        kind = wParam;
        size = lParam;
        return 77;
    }
};

//  Alpha(1)
//    Beta(2)
//      Gamma(3)
//    beta(4)
//  Delta(5)
//    Gamma(3)
class TreeTools : public testing::Test
{
protected:
    TreeTools()
    {
        m_tree.Create(WS_CHILD, CRect(0, 0, 200, 200), &m_parent, 1);
        m_alpha = Add(L"Alpha", 1, TVI_ROOT);
        m_beta = Add(L"Beta", 2, m_alpha);
        m_gamma = Add(L"Gamma", 3, m_beta);
        m_secondBeta = Add(L"beta", 4, m_alpha);
        m_delta = Add(L"Delta", 5, TVI_ROOT);
        m_secondGamma = Add(L"Gamma", 3, m_delta);
    }

    HTREEITEM Add(const wchar_t* text, DWORD_PTR data, HTREEITEM parent)
    {
        const HTREEITEM item = m_tree.InsertItem(text, parent);
        m_tree.SetItemData(item, data);
        return item;
    }

    HTREEITEM ByData(DWORD_PTR data, HTREEITEM parent) { return FindTreeItem(&m_tree, data, parent); }
    HTREEITEM ByText(const wchar_t* text, HTREEITEM item) { return FindTreeItem(&m_tree, text, item); }
    HTREEITEM ByPath(const std::vector<int>& path, HTREEITEM item) { return FindTreeItem(&m_tree, path, item); }

    Parent m_parent;
    CTreeCtrl m_tree;
    HTREEITEM m_alpha;
    HTREEITEM m_beta;
    HTREEITEM m_gamma;
    HTREEITEM m_secondBeta;
    HTREEITEM m_delta;
    HTREEITEM m_secondGamma;
};

} // namespace

TEST_F(TreeTools, DeletesTheChildrenWithTheirSubtreesAndCountsThem)
{
    EXPECT_EQ(2, DeleteTreeChildItems(&m_tree, m_alpha));
    EXPECT_EQ(3u, m_tree.GetCount());
    EXPECT_EQ(m_alpha, m_tree.GetRootItem()) << "the item itself stays";
    EXPECT_FALSE(m_tree.ItemHasChildren(m_alpha));
}

TEST_F(TreeTools, DeletingOnALeafAnswersZero)
{
    EXPECT_EQ(0, DeleteTreeChildItems(&m_tree, m_gamma));
    EXPECT_EQ(6u, m_tree.GetCount());
}

TEST_F(TreeTools, DeletingBelowTheRootDeletesAllAndBelowNullNothing)
{
    EXPECT_EQ(0, DeleteTreeChildItems(&m_tree, NULL));
    EXPECT_EQ(6u, m_tree.GetCount());
    EXPECT_EQ(2, DeleteTreeChildItems(&m_tree, TVI_ROOT));
    EXPECT_EQ(0u, m_tree.GetCount());
}

TEST_F(TreeTools, FindsDataBelowAnItemInPreOrder)
{
    EXPECT_EQ(m_gamma, ByData(3, m_alpha));
    EXPECT_EQ(m_secondGamma, ByData(3, m_delta));
    EXPECT_EQ(m_secondBeta, ByData(4, m_alpha));
}

TEST_F(TreeTools, FindsDataInTheWholeTreeFromNull)
{
    EXPECT_EQ(m_alpha, ByData(1, NULL));
    EXPECT_EQ(m_gamma, ByData(3, NULL)) << "the first one";
    EXPECT_EQ(m_delta, ByData(5, NULL));
}

TEST_F(TreeTools, ByDataTheItemItselfAndItsSiblingsAreNotTested)
{
    EXPECT_EQ(nullptr, ByData(1, m_alpha));
    EXPECT_EQ(nullptr, ByData(5, m_alpha));
    EXPECT_EQ(nullptr, ByData(4, m_beta));
    EXPECT_EQ(nullptr, ByData(3, m_gamma));
}

TEST_F(TreeTools, DataOfAllBitsIsFound)
{
    const DWORD_PTR large = static_cast<DWORD_PTR>(0x8000000000000001ULL);
    m_tree.SetItemData(m_gamma, large);
    EXPECT_EQ(m_gamma, ByData(large, NULL));
    EXPECT_EQ(nullptr, ByData(99, NULL));
}

TEST_F(TreeTools, FindsTextFromTheItemItselfOnWhateverItsCase)
{
    EXPECT_EQ(m_alpha, ByText(L"ALPHA", m_alpha)) << "the item itself is tested";
    EXPECT_EQ(m_beta, ByText(L"beta", m_alpha)) << "the first one, letter case ignored";
    EXPECT_EQ(m_gamma, ByText(L"gamma", m_alpha));
    EXPECT_EQ(m_secondGamma, ByText(L"gamma", m_delta));
    EXPECT_EQ(nullptr, ByText(L"delta", m_alpha)) << "a sibling";
    EXPECT_EQ(nullptr, ByText(L"alph", m_alpha)) << "the whole text counts";
}

TEST_F(TreeTools, FindsTextInTheWholeTreeFromNull)
{
    EXPECT_EQ(m_alpha, ByText(L"alpha", NULL));
    EXPECT_EQ(m_gamma, ByText(L"GAMMA", NULL));
    EXPECT_EQ(m_delta, ByText(L"Delta", NULL));
    EXPECT_EQ(nullptr, ByText(L"omega", NULL));
}

TEST_F(TreeTools, AnEmptyTextFromNullIsTheTextOfTheNullItem)
{
    const HTREEITEM unnamed = Add(L"", 6, m_alpha);
    EXPECT_EQ(nullptr, ByText(L"", NULL));
    EXPECT_EQ(unnamed, ByText(L"", m_alpha));
}

TEST_F(TreeTools, ANullTextFindsNothing)
{
    EXPECT_EQ(nullptr, ByText(NULL, m_alpha));
    EXPECT_EQ(nullptr, ByText(NULL, NULL));
}

TEST_F(TreeTools, AChainOfTenThousandItemsIsSearchedFollowedAndDeleted)
{
    const int depth = 10000;
    m_tree.SetRedraw(FALSE);
    HTREEITEM last = m_delta;
    for (int i = 0; i < depth; ++i)
        last = Add(L"x", 100 + i, last);
    m_tree.SetItemText(last, L"bottom");
    EXPECT_EQ(last, FindTreeItem(&m_tree, DWORD_PTR(100 + depth - 1), NULL));
    EXPECT_EQ(last, FindTreeItem(&m_tree, L"Bottom", NULL));
    std::vector<int> path(depth, 0);
    path[0] = 1; // the first child was there before
    EXPECT_EQ(last, FindTreeItem(&m_tree, path, m_delta));
    EXPECT_EQ(2, DeleteTreeChildItems(&m_tree, m_delta));
}

TEST_F(TreeTools, FollowsPathsOfPlaces)
{
    struct Row
    {
        const char* name;
        std::vector<int> path;
        HTREEITEM from;
        HTREEITEM found;
    };
    const Row rows[] = {
        {"empty path", {}, m_beta, m_beta},
        {"empty path from null", {}, NULL, NULL},
        {"first root", {0}, NULL, m_alpha},
        {"second root", {1}, NULL, m_delta},
        {"past the last root", {2}, NULL, NULL},
        {"down to a grandchild", {0, 0, 0}, NULL, m_gamma},
        {"second child", {1}, m_alpha, m_secondBeta},
        {"past the last sibling", {2}, m_alpha, NULL},
        {"far past the last sibling", {1000000000}, m_alpha, NULL},
        {"past the last sibling and down again", {5, 0}, NULL, NULL},
        {"below a leaf", {0}, m_gamma, NULL},
        {"below a leaf and down again", {0, 0, 0, 0, 0}, NULL, NULL},
        {"negative counts as the first", {-1}, m_alpha, m_beta},
        {"most negative", {-2147483647 - 1, -3}, NULL, m_beta},
    };
    for (const Row& row : rows)
        EXPECT_EQ(row.found, ByPath(row.path, row.from)) << row.name;
}

TEST_F(TreeTools, TreesThatDoNotExistAreAccepted)
{
    CTreeCtrl unborn;
    for (CTreeCtrl* tree : {static_cast<CTreeCtrl*>(NULL), &unborn})
    {
        EXPECT_EQ(0, DeleteTreeChildItems(tree, m_alpha));
        EXPECT_EQ(nullptr, FindTreeItem(tree, DWORD_PTR(1), NULL));
        EXPECT_EQ(nullptr, FindTreeItem(tree, L"Alpha", m_alpha));
        EXPECT_EQ(nullptr, FindTreeItem(tree, std::vector<int>(1, 0), m_alpha));
    }
}

TEST(SendSizeMessage, SendsTheClientSizeAsRestoredAndAnswersTheResult)
{
    Sized window;
    ASSERT_TRUE(
        window.CreateEx(0, AfxRegisterWndClass(0), L"sized", WS_POPUP | WS_BORDER, CRect(0, 0, 210, 120), NULL, 0));
    CRect client;
    window.GetClientRect(&client);
    window.kind = 99;
    EXPECT_EQ(77, SendSizeMessageManual(&window));
    EXPECT_EQ(WPARAM(SIZE_RESTORED), window.kind);
    EXPECT_EQ(MAKELPARAM(client.Width(), client.Height()), window.size);
    window.DestroyWindow();
}

TEST(SendSizeMessage, WindowsThatDoNotExistAreAccepted)
{
    CWnd unborn;
    EXPECT_EQ(0, SendSizeMessageManual(NULL));
    EXPECT_EQ(0, SendSizeMessageManual(&unborn));
}

namespace
{

const wchar_t* const kIconNames[] = {L"IDI_ICON_NEW", L"IDI_ICON_COPYFROM", L"IDI_ICON_EDIT",   L"IDI_ICON_RENAME",
                                     L"IDI_ICON_DEL", L"IDI_ICON_DOCK",     L"IDI_ICON_UNDOCK", L"IDI_ICON_CLOSE_C"};
constexpr int kIconCount = 8;

bool IsModuleLoaded()
{
    return ::GetModuleHandleW(L"ZNKTRes.dll") != NULL;
}

} // namespace

TEST(SuiteIcons, AllOfThemLoadInAllTheirSizes)
{
    CStringArray names;
    for (const wchar_t* name : kIconNames)
        names.Add(name);
    for (int size : {16, 24, 32})
    {
        HICON icons[kIconCount] = {};
        EXPECT_EQ(kIconCount, LoadIcons(names, icons, size, size));
        for (int i = 0; i < kIconCount; ++i)
        {
            EXPECT_EQ(size, IconWidth(icons[i])) << i;
            ::DestroyIcon(icons[i]);
        }
    }
}

TEST(SuiteIcons, TheModuleIsReleasedAndTheIconsStayValid)
{
    CStringArray names;
    names.Add(L"IDI_ICON_EDIT");
    HICON icon = NULL;
    LoadIcons(names, &icon, 16, 16);
    EXPECT_FALSE(IsModuleLoaded());
    EXPECT_EQ(16, IconWidth(icon));
    EXPECT_TRUE(::DestroyIcon(icon));
}

TEST(SuiteIcons, AMissingIconLeavesNullInItsPlace)
{
    CStringArray names;
    names.Add(L"IDI_ICON_NEW");
    names.Add(L"IDI_ICON_NOT_THERE");
    names.Add(L"");
    names.Add(L"IDI_ICON_DEL");
    const HICON untouched = reinterpret_cast<HICON>(static_cast<ULONG_PTR>(1));
    HICON icons[] = {untouched, untouched, untouched, untouched, untouched};
    EXPECT_EQ(4, LoadIcons(names, icons, 16, 16));
    EXPECT_EQ(16, IconWidth(icons[0]));
    EXPECT_EQ(nullptr, icons[1]);
    EXPECT_EQ(nullptr, icons[2]);
    EXPECT_EQ(16, IconWidth(icons[3]));
    EXPECT_EQ(untouched, icons[4]);
    ::DestroyIcon(icons[0]);
    ::DestroyIcon(icons[3]);
}

TEST(SuiteIcons, AMissingModuleAnswersTheCountAndNullEverywhere)
{
    const RegisteredSuiteFolder elsewhere(FolderWithoutIcons());
    CStringArray names;
    names.Add(L"IDI_ICON_NEW");
    names.Add(L"IDI_ICON_DEL");
    const HICON untouched = reinterpret_cast<HICON>(static_cast<ULONG_PTR>(1));
    HICON icons[] = {untouched, untouched};
    EXPECT_EQ(2, LoadIcons(names, icons, 16, 16));
    EXPECT_EQ(nullptr, icons[0]);
    EXPECT_EQ(nullptr, icons[1]);
}

TEST(SuiteIcons, NoNamesAndNoRoomAreAccepted)
{
    CStringArray names;
    EXPECT_EQ(0, LoadIcons(names, NULL, 16, 16));
    names.Add(L"IDI_ICON_NEW");
    EXPECT_EQ(1, LoadIcons(names, NULL, 16, 16));
}

TEST(SuiteIcons, DestroyedIconsLeaveNoGdiObject)
{
    CStringArray names;
    names.Add(L"IDI_ICON_NEW");
    names.Add(L"IDI_ICON_NOT_THERE");
    const auto loadAndDestroy = [&names] {
        HICON icons[2] = {};
        LoadIcons(names, icons, 16, 16);
        ::DestroyIcon(icons[0]);
    };
    loadAndDestroy();
    const size_t before = CountGdiObjects();
    for (int i = 0; i < 20; ++i)
        loadAndDestroy();
    EXPECT_EQ(before, CountGdiObjects());
}
