// The trees beside bare tree views that do the same work: checking many items, one leaf among many, painting icons.
#include <afxwin.h>

#include <afxcmn.h>

#include "Bench.h"

#include <AddedIconTreeCtrl.h>
#include <StateTreeCtrl.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace bench
{

namespace
{

constexpr int kBranches = 99;
constexpr int kLeaves = 1009; // a branch; prime, so that nothing falls on a round number
constexpr int kSiblings = 1000;
constexpr int kLeafRounds = 20; // one alone is too short to be measured well
constexpr int kPaintedItems = 40;
constexpr int kPaints = 20;
constexpr int kRuns = 5;
constexpr int kRootRuns = 3; // each takes seconds
constexpr double kMilliseconds = 1e3;
constexpr double kMicroseconds = 1e6;
constexpr UINT kChecked = INDEXTOSTATEIMAGEMASK(2);
constexpr UINT kUnchecked = INDEXTOSTATEIMAGEMASK(1);
const CRect kPlace(0, 0, 400, 800);

class Owner : public CWnd
{
public:
    Owner()
    {
        if (!CreateEx(0, AfxRegisterWndClass(0), L"bench", WS_POPUP | WS_VISIBLE, kPlace, NULL, 0))
            throw std::runtime_error("the window of the trees could not be made");
    }

    ~Owner() override { DestroyWindow(); }
};

// A tree view that nothing of the framework stands before.
class BareTree
{
public:
    BareTree(CWnd& owner, DWORD style)
        : m_wnd(::CreateWindowW(WC_TREEVIEWW, L"", style | WS_CHILD | WS_VISIBLE, 0, 0, kPlace.Width(), kPlace.Height(),
                                owner.m_hWnd, NULL, NULL, NULL))
    {
        if (m_wnd == NULL)
            throw std::runtime_error("the bare tree could not be made");
    }

    ~BareTree() { ::DestroyWindow(m_wnd); }

    BareTree(const BareTree&) = delete;
    BareTree& operator=(const BareTree&) = delete;

    HWND Wnd() const { return m_wnd; }

    HTREEITEM Next(HTREEITEM item, WPARAM which) const
    {
        return reinterpret_cast<HTREEITEM>(
            ::SendMessageW(m_wnd, TVM_GETNEXTITEM, which, reinterpret_cast<LPARAM>(item)));
    }

    UINT State(HTREEITEM item) const
    {
        return static_cast<UINT>(
            ::SendMessageW(m_wnd, TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(item), TVIS_STATEIMAGEMASK));
    }

    void SetState(HTREEITEM item, UINT state) const
    {
        TVITEMW change = {};
        change.mask = TVIF_HANDLE | TVIF_STATE;
        change.hItem = item;
        change.state = state;
        change.stateMask = TVIS_STATEIMAGEMASK;
        ::SendMessageW(m_wnd, TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&change));
    }

    // The messages that set an item and all below it: each item has to be found and set.
    void SetSubtree(HTREEITEM item, UINT state) const
    {
        SetState(item, state);
        for (HTREEITEM child = Next(item, TVGN_CHILD); child != NULL; child = Next(child, TVGN_NEXT))
            SetSubtree(child, state);
    }

private:
    HWND m_wnd;
};

HTREEITEM Insert(HWND tree, HTREEITEM parent, int number)
{
    std::wstring text = L"图元 " + std::to_wstring(number);
    TVINSERTSTRUCTW insert = {};
    insert.hParent = parent;
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    insert.item.pszText = &text[0];
    return reinterpret_cast<HTREEITEM>(::SendMessageW(tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
}

HTREEITEM FillLarge(HWND tree)
{
    ::SendMessageW(tree, WM_SETREDRAW, FALSE, 0);
    const HTREEITEM root = Insert(tree, TVI_ROOT, 0);
    for (int branch = 0; branch < kBranches; ++branch)
    {
        const HTREEITEM parent = Insert(tree, root, branch);
        for (int leaf = 0; leaf < kLeaves; ++leaf)
            Insert(tree, parent, leaf);
    }
    ::SendMessageW(tree, WM_SETREDRAW, TRUE, 0);
    return root;
}

// Answers the last of the siblings.
HTREEITEM FillSiblings(HWND tree, HTREEITEM& root)
{
    root = Insert(tree, TVI_ROOT, 0);
    HTREEITEM last = NULL;
    for (int i = 0; i < kSiblings; ++i)
        last = Insert(tree, root, i);
    return last;
}

void MeasureRoot(Report& report, Owner& owner)
{
    CStateTreeCtrl ours;
    ours.Create(WS_CHILD | WS_VISIBLE, kPlace, &owner, 1);
    const BareTree bare(owner, TVS_CHECKBOXES);
    const HTREEITEM ourRoot = FillLarge(ours.m_hWnd);
    const HTREEITEM bareRoot = FillLarge(bare.Wnd());
    int check = 0; // every run changes all of them
    UINT state = kUnchecked;
    const Work work = {[&] { check = !check; }, [&] { ours.SetCheck(ourRoot, check); }, nullptr};
    const Work bareWork = {[&] { state = state == kChecked ? kUnchecked : kChecked; },
                           [&] { bare.SetSubtree(bareRoot, state); }, nullptr};
    const Pair pair = MedianSeconds(kRootRuns, work, bareWork);
    report.Add({"check tree: checking the root of 100,000 items", "ms", pair.ours * kMilliseconds,
                pair.bare * kMilliseconds, 1.3, "bare tree view, the messages that find and set them"});
}

// `others`: the state of all siblings but the one that is unchecked.
void MeasureLeaf(Report& report, Owner& owner, const char* name, UINT others)
{
    CStateTreeCtrl ours;
    ours.Create(WS_CHILD | WS_VISIBLE, kPlace, &owner, 1);
    const BareTree bare(owner, TVS_CHECKBOXES);
    HTREEITEM ourRoot = NULL;
    HTREEITEM bareRoot = NULL;
    const HTREEITEM leaf = FillSiblings(ours.m_hWnd, ourRoot);
    FillSiblings(bare.Wnd(), bareRoot);
    for (HTREEITEM child = ours.GetChildItem(ourRoot); child != NULL; child = ours.GetNextSiblingItem(child))
        ours.SetItemState(child, others, TVIS_STATEIMAGEMASK);
    UINT checked = 0;
    const auto uncheckOften = [&] {
        for (int i = 0; i < kLeafRounds; ++i)
        {
            ours.SetItemState(leaf, kChecked, TVIS_STATEIMAGEMASK);
            ours.SetCheck(leaf, 0);
        }
    };
    const auto walkOften = [&] {
        for (int i = 0; i < kLeafRounds; ++i)
        {
            for (HTREEITEM child = bare.Next(bareRoot, TVGN_CHILD); child != NULL; child = bare.Next(child, TVGN_NEXT))
                checked += bare.State(child) == kChecked;
        }
    };
    const Pair pair = MedianSeconds(kRuns, Work{nullptr, uncheckOften, nullptr}, Work{nullptr, walkOften, nullptr});
    report.Add({name, "us", pair.ours * kMicroseconds / kLeafRounds, pair.bare * kMicroseconds / kLeafRounds, 1.5,
                "bare tree view, one walk over the siblings"});
}

void FillImages(CImageList& images)
{
    images.Create(16, 16, ILC_COLOR24 | ILC_MASK, 4, 4);
    for (LPCWSTR icon : {IDI_APPLICATION, IDI_WARNING, IDI_ERROR})
        images.Add(::LoadIconW(NULL, icon));
}

void PaintOften(HWND tree)
{
    for (int i = 0; i < kPaints; ++i)
        ::RedrawWindow(tree, NULL, NULL, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

// Only the tree that is being measured is visible, so that the other one has nothing to paint.
void ShowOnly(HWND shown, HWND hidden)
{
    ::ShowWindow(hidden, SW_HIDE);
    ::ShowWindow(shown, SW_SHOW);
    ::UpdateWindow(shown);
}

CTreeItemImages FromList()
{
    CTreeItemImages icons;
    icons.AddImage(1, CTreeItemImages::IMG_ADDEDLIST);
    icons.AddImage(2, CTreeItemImages::IMG_ADDEDLIST);
    return icons;
}

CTreeItemImages FromHandles(const CImageList& images, HICON& icon)
{
    icon = ::ImageList_GetIcon(images.GetSafeHandle(), 1, ILD_NORMAL);
    CTreeItemImages icons;
    icons.AddIcon(icon);
    icons.AddIcon(icon);
    return icons;
}

void MeasurePaint(Report& report, Owner& owner, const char* name, CImageList& images, const CTreeItemImages& icons)
{
    CAddedIconTreeCtrl ours;
    ours.Create(WS_CHILD | WS_VISIBLE | TVS_HASLINES | TVS_LINESATROOT | TVS_HASBUTTONS, kPlace, &owner, 1);
    const BareTree bare(owner, TVS_HASLINES | TVS_LINESATROOT | TVS_HASBUTTONS);
    const LPARAM list = reinterpret_cast<LPARAM>(images.GetSafeHandle());
    ::SendMessageW(ours.m_hWnd, TVM_SETIMAGELIST, TVSIL_NORMAL, list);
    ::SendMessageW(bare.Wnd(), TVM_SETIMAGELIST, TVSIL_NORMAL, list);
    ours.SetAddedImageList(&images);
    for (int i = 0; i < kPaintedItems; ++i)
    {
        const HTREEITEM item = Insert(ours.m_hWnd, TVI_ROOT, i);
        Insert(bare.Wnd(), TVI_ROOT, i);
        if (icons.GetCount() > 0)
            ours.SetAddedIcons(item, icons);
    }
    const Work work = {[&] { ShowOnly(ours.m_hWnd, bare.Wnd()); }, [&] { PaintOften(ours.m_hWnd); }, nullptr};
    const Work bareWork = {[&] { ShowOnly(bare.Wnd(), ours.m_hWnd); }, [&] { PaintOften(bare.Wnd()); }, nullptr};
    const Pair pair = MedianSeconds(kRuns, work, bareWork);
    report.Add({name, "ms", pair.ours * kMilliseconds / kPaints, pair.bare * kMilliseconds / kPaints, 2,
                "bare tree view, its own painting"});
}

} // namespace

void MeasureTrees(Report& report)
{
    Owner owner;
    MeasureRoot(report, owner);
    MeasureLeaf(report, owner, "check tree: unchecking a leaf of 1,000 checked siblings", kChecked);
    MeasureLeaf(report, owner, "check tree: unchecking the only checked leaf of 1,000", kUnchecked);
    CImageList images;
    FillImages(images);
    HICON icon = NULL;
    MeasurePaint(report, owner, "icon tree: painting 40 items with two images each", images, FromList());
    MeasurePaint(report, owner, "icon tree: painting 40 items with two icons each", images, FromHandles(images, icon));
    MeasurePaint(report, owner, "icon tree: painting 40 items without icons", images, CTreeItemImages());
    ::DestroyIcon(icon);
}

} // namespace bench
