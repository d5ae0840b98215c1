// The callback of a long operation: registration, the wait dialog's lines, the operations of the palette.
#include "TestCallback.h"
#include "ViewerFixture.h"
#include "Wait.h"

#include <memory>

namespace
{

class MsgCallbackImp : public ViewerFixture
{
protected:
    // No dialog survives its callback, whatever a test does.
    ~MsgCallbackImp() override { EXPECT_FALSE(WaitDialog::IsShown()); }

    static bool Shows(const std::wstring& lines) { return WaitDialog::WaitForLines(lines); }

    static bool PressCancel()
    {
        if (!WaitFor([] { return WaitDialog::CancelButton() != NULL; }))
            return false;
        ::SendMessageW(WaitDialog::CancelButton(), BM_CLICK, 0, 0);
        return true;
    }

    RecordingManager m_manager;
};

class NeverCancel : public TestCallback
{
public:
    explicit NeverCancel(CMsgCallbackManager* manager) : TestCallback(manager) {}
    bool EnableCancel() const override { return false; }
};

} // namespace

TEST_F(MsgCallbackImp, ConstructionMakesItTheCurrentCallback)
{
    TestCallback callback(&m_manager);
    ASSERT_EQ(1u, m_manager.calls.size());
    EXPECT_EQ(&callback, m_manager.calls[0].callback);
    EXPECT_EQ(&callback, m_manager.GetCurrent());
    EXPECT_FALSE(WaitDialog::IsShown());
    EXPECT_FALSE(callback.EnableCancel());
}

TEST_F(MsgCallbackImp, DestroyingTwoInReverseOrderLeavesTheManagerAsItWas)
{
    TestCallback first(&m_manager);
    {
        TestCallback a(&m_manager);
        {
            TestCallback b(&m_manager);
            EXPECT_EQ(&b, m_manager.GetCurrent());
        }
        EXPECT_EQ(&a, m_manager.GetCurrent());
    }
    EXPECT_EQ(&first, m_manager.GetCurrent());
    ASSERT_EQ(5u, m_manager.calls.size());
    EXPECT_EQ(&first, m_manager.calls[4].callback);
}

TEST_F(MsgCallbackImp, DestroyingTheOnlyOneLeavesNone)
{
    {
        const TestCallback callback(&m_manager);
    }
    ASSERT_EQ(2u, m_manager.calls.size());
    EXPECT_EQ(nullptr, m_manager.calls[1].callback);
    EXPECT_EQ(nullptr, m_manager.GetCurrent());
}

TEST_F(MsgCallbackImp, DestroyingTheOuterOneFirstRegistersWhatWasBeforeIt)
{
    std::unique_ptr<TestCallback> outer(new TestCallback(&m_manager));
    TestCallback* const outerAddress = outer.get();
    std::unique_ptr<TestCallback> inner(new TestCallback(&m_manager));
    outer.reset();
    EXPECT_EQ(nullptr, m_manager.GetCurrent());
    inner.reset();
    EXPECT_EQ(outerAddress, m_manager.GetCurrent()) << "the manager keeps no stack";
}

TEST_F(MsgCallbackImp, TheFormerCallbackIsBackBeforeTheDialogGoes)
{
    {
        TestCallback callback(&m_manager);
        callback.CreateWaitDlg(false);
        ASSERT_TRUE(WaitDialog::WaitUntilShown());
    }
    ASSERT_EQ(2u, m_manager.calls.size());
    EXPECT_TRUE(m_manager.calls[1].dialogShown);
    EXPECT_FALSE(WaitDialog::IsShown());
}

TEST_F(MsgCallbackImp, WorksWithoutAManager)
{
    TestCallback callback(NULL);
    callback.CreateWaitDlg(true);
    callback.WaitDlgPushMsg(L"alone");
    EXPECT_TRUE(Shows(L"alone"));
}

TEST_F(MsgCallbackImp, WithoutADialogEveryOperationOnItDoesNothing)
{
    TestCallback callback(&m_manager);
    callback.WaitDlgPushMsg(L"unseen");
    callback.WaitDlgModiLastMsg(L"unseen");
    EXPECT_STREQ(L"", callback.WaitDlgPopMsg());
    EXPECT_STREQ(L"", callback.WaitDlgGetLastMsg());
    EXPECT_FALSE(callback.IsCanceled());
    callback.CloseWaitDlg();
    EXPECT_FALSE(WaitDialog::IsShown());
    callback.CreateWaitDlg(false);
    EXPECT_STREQ(L"", callback.WaitDlgGetLastMsg()) << "lines pushed without a dialog are not kept";
}

TEST_F(MsgCallbackImp, CreateOpensADialogOverTheHostsMainFrame)
{
    TestCallback callback(&m_manager);
    callback.CreateWaitDlg(true);
    ASSERT_TRUE(WaitDialog::WaitUntilShown());
    EXPECT_EQ(L"", WaitDialog::Lines());
    const RECT frame = ScreenRectOf(m_frame.Wnd());
    const auto isCentred = [&frame] {
        const RECT rect = WaitDialog::Rect();
        return std::abs(rect.left + rect.right - frame.left - frame.right) <= 2 &&
               std::abs(rect.top + rect.bottom - frame.top - frame.bottom) <= 2;
    };
    EXPECT_TRUE(WaitFor(isCentred));
}

TEST_F(MsgCallbackImp, LinesArePushedModifiedAndPopped)
{
    TestCallback callback(&m_manager);
    callback.CreateWaitDlg(false);
    callback.WaitDlgPushMsg(L"A");
    EXPECT_TRUE(Shows(L"A"));
    callback.WaitDlgPushMsg(L"B");
    EXPECT_TRUE(Shows(L"A\nB"));
    EXPECT_STREQ(L"B", callback.WaitDlgGetLastMsg());
    callback.WaitDlgModiLastMsg(L"C");
    EXPECT_TRUE(Shows(L"A\nC"));
    EXPECT_STREQ(L"C", callback.WaitDlgPopMsg());
    EXPECT_TRUE(Shows(L"A"));
    EXPECT_STREQ(L"A", callback.WaitDlgGetLastMsg());
    EXPECT_STREQ(L"A", callback.WaitDlgPopMsg());
    EXPECT_TRUE(Shows(L"")) << "cleared, not hidden";
    EXPECT_STREQ(L"", callback.WaitDlgGetLastMsg());
}

TEST_F(MsgCallbackImp, PopOfAnEmptyStackReturnsNothingAndLeavesTheTextAlone)
{
    TestCallback callback(&m_manager);
    callback.CreateWaitDlg(false);
    EXPECT_STREQ(L"", callback.WaitDlgPopMsg());
    EXPECT_STREQ(L"", callback.WaitDlgPopMsg());
    callback.WaitDlgPushMsg(L"A");
    EXPECT_TRUE(Shows(L"A"));
}

TEST_F(MsgCallbackImp, ModifyingWithoutALineIsNoPush)
{
    TestCallback callback(&m_manager);
    callback.CreateWaitDlg(false);
    callback.WaitDlgModiLastMsg(L"X");
    EXPECT_STREQ(L"", callback.WaitDlgGetLastMsg());
    EXPECT_STREQ(L"", callback.WaitDlgPopMsg());
    callback.WaitDlgPushMsg(L"A");
    EXPECT_TRUE(Shows(L"A"));
}

TEST_F(MsgCallbackImp, NullTextsAreEmptyLines)
{
    TestCallback callback(&m_manager);
    callback.CreateWaitDlg(false);
    callback.WaitDlgPushMsg(L"A");
    callback.WaitDlgPushMsg(NULL);
    EXPECT_TRUE(Shows(L"A\n"));
    callback.WaitDlgModiLastMsg(L"B");
    callback.WaitDlgModiLastMsg(NULL);
    callback.WaitDlgPushMsg(L"C");
    EXPECT_TRUE(Shows(L"A\n\nC"));
    EXPECT_STREQ(L"C", callback.WaitDlgPopMsg());
    EXPECT_STREQ(L"", callback.WaitDlgPopMsg());
    EXPECT_STREQ(L"A", callback.WaitDlgPopMsg());
}

TEST_F(MsgCallbackImp, ALineMayBeModifiedWithItself)
{
    TestCallback callback(&m_manager);
    callback.CreateWaitDlg(false);
    callback.WaitDlgPushMsg(L"A");
    callback.WaitDlgPushMsg(L"B");
    callback.WaitDlgModiLastMsg(callback.WaitDlgGetLastMsg());
    EXPECT_TRUE(Shows(L"A\nB"));
}

TEST_F(MsgCallbackImp, ALineWithALineFeedStaysOneEntry)
{
    TestCallback callback(&m_manager);
    callback.CreateWaitDlg(false);
    callback.WaitDlgPushMsg(L"A");
    callback.WaitDlgPushMsg(L"B\nC");
    EXPECT_TRUE(Shows(L"A\nB\nC"));
    EXPECT_STREQ(L"B\nC", callback.WaitDlgPopMsg());
    EXPECT_TRUE(Shows(L"A"));
}

TEST_F(MsgCallbackImp, PerCentSignsInLinesAreText)
{
    TestCallback callback(&m_manager);
    callback.CreateWaitDlg(false);
    for (const wchar_t* text : {L"%n", L"%s", L"%%", L"%", L"50%"})
        callback.WaitDlgPushMsg(text);
    EXPECT_TRUE(Shows(L"%n\n%s\n%%\n%\n50%"));
}

TEST_F(MsgCallbackImp, HoldsTenThousandLines)
{
    const int many = 10000;
    TestCallback callback(&m_manager);
    callback.CreateWaitDlg(false);
    for (int i = 1; i <= many; ++i)
        callback.WaitDlgPushMsg(std::to_wstring(i).c_str());
    EXPECT_TRUE(Shows(L"9991\n9992\n9993\n9994\n9995\n9996\n9997\n9998\n9999\n10000"));
    for (int i = many; i > 1; --i)
        ASSERT_EQ(std::to_wstring(i), callback.WaitDlgPopMsg().GetString());
    EXPECT_TRUE(Shows(L"1"));
}

TEST_F(MsgCallbackImp, CreatingTwiceKeepsTheFirstDialogAndItsButton)
{
    TestCallback callback(&m_manager);
    callback.CreateWaitDlg(true);
    callback.WaitDlgPushMsg(L"kept");
    ASSERT_TRUE(Shows(L"kept"));
    const HWND first = WaitDialog::Find();
    callback.CreateWaitDlg(true);
    EXPECT_TRUE(callback.EnableCancel());
    callback.CreateWaitDlg(false);
    EXPECT_FALSE(callback.EnableCancel());
    EXPECT_EQ(first, WaitDialog::Find());
    EXPECT_STREQ(L"kept", callback.WaitDlgGetLastMsg());
    callback.WaitDlgPushMsg(L"more");
    ASSERT_TRUE(Shows(L"kept\nmore"));
    EXPECT_NE(nullptr, WaitDialog::CancelButton()) << "the button of a running dialog is not switched";
}

TEST_F(MsgCallbackImp, TheButtonFollowsWhatASubclassAnswers)
{
    NeverCancel callback(&m_manager);
    callback.CreateWaitDlg(true);
    callback.WaitDlgPushMsg(L"A");
    ASSERT_TRUE(Shows(L"A"));
    EXPECT_EQ(nullptr, WaitDialog::CancelButton());
}

TEST_F(MsgCallbackImp, ThereIsNoButtonWithoutCancel)
{
    TestCallback callback(&m_manager);
    callback.CreateWaitDlg(false);
    callback.WaitDlgPushMsg(L"A");
    ASSERT_TRUE(Shows(L"A"));
    EXPECT_EQ(nullptr, WaitDialog::CancelButton());
}

TEST_F(MsgCallbackImp, CancelIsSeenAndForgottenWithTheDialog)
{
    TestCallback callback(&m_manager);
    EXPECT_FALSE(callback.IsCanceled());
    callback.CreateWaitDlg(true);
    EXPECT_FALSE(callback.IsCanceled());
    ASSERT_TRUE(PressCancel());
    EXPECT_TRUE(callback.IsCanceled());
    callback.CloseWaitDlg();
    EXPECT_FALSE(callback.IsCanceled());
}

TEST_F(MsgCallbackImp, CancelPressedTwiceIsCancelledOnce)
{
    TestCallback callback(&m_manager);
    callback.CreateWaitDlg(true);
    ASSERT_TRUE(PressCancel());
    ::SendMessageW(WaitDialog::CancelButton(), BM_CLICK, 0, 0);
    EXPECT_TRUE(callback.IsCanceled());
    EXPECT_TRUE(WaitDialog::IsShown());
}

TEST_F(MsgCallbackImp, CloseDestroysTheDialogAndALaterOneIsNew)
{
    TestCallback callback(&m_manager);
    callback.CreateWaitDlg(true);
    callback.WaitDlgPushMsg(L"old");
    ASSERT_TRUE(Shows(L"old"));
    callback.CloseWaitDlg();
    EXPECT_FALSE(WaitDialog::IsShown());
    callback.CloseWaitDlg();
    callback.CreateWaitDlg(true);
    EXPECT_TRUE(Shows(L""));
    EXPECT_STREQ(L"", callback.WaitDlgGetLastMsg());
}

TEST_F(MsgCallbackImp, NestedCallbacksEachHaveTheirOwnDialog)
{
    TestCallback outer(&m_manager);
    outer.CreateWaitDlg(false);
    outer.WaitDlgPushMsg(L"outer");
    ASSERT_TRUE(Shows(L"outer"));
    {
        TestCallback inner(&m_manager);
        EXPECT_STREQ(L"", inner.WaitDlgGetLastMsg());
        inner.CreateWaitDlg(false);
        inner.WaitDlgPushMsg(L"inner");
        EXPECT_TRUE(Shows(L"inner"));
    }
    EXPECT_TRUE(Shows(L"outer"));
}

TEST_F(MsgCallbackImp, SurvivesTheEndOfTheMainFrameWhileItsDialogIsOpen)
{
    std::unique_ptr<HostFrame> frame(new HostFrame);
    TestCallback callback(&m_manager);
    callback.CreateWaitDlg(true);
    ASSERT_TRUE(WaitDialog::WaitUntilShown());
    frame.reset();
    callback.WaitDlgPushMsg(L"still here");
    EXPECT_TRUE(Shows(L"still here"));
    ASSERT_TRUE(PressCancel());
    EXPECT_TRUE(callback.IsCanceled());
    arxhost::SetMainFrame(&m_frame.Wnd());
}

TEST_F(MsgCallbackImp, WorksWithoutAMainFrame)
{
    arxhost::SetMainFrame(NULL);
    {
        TestCallback callback(&m_manager);
        callback.CreateWaitDlg(true);
        callback.WaitDlgPushMsg(L"A");
        EXPECT_TRUE(Shows(L"A"));
    }
    arxhost::SetMainFrame(&m_frame.Wnd());
}

TEST_F(MsgCallbackImp, ACopySharesTheDialogAndDoesNotRegister)
{
    TestCallback callback(&m_manager);
    callback.CreateWaitDlg(true);
    callback.WaitDlgPushMsg(L"A");
    {
        TestCallback copy(callback);
        EXPECT_EQ(1u, m_manager.calls.size());
        EXPECT_TRUE(copy.EnableCancel());
        copy.WaitDlgPushMsg(L"B");
        EXPECT_STREQ(L"B", callback.WaitDlgGetLastMsg());
        EXPECT_TRUE(Shows(L"A\nB"));
        ASSERT_TRUE(PressCancel());
        EXPECT_TRUE(copy.IsCanceled());
        EXPECT_TRUE(callback.IsCanceled());
        // The dialog may be closed through one of the two only: here the copy's pointer is made harmless by assigning
        // from a callback without a dialog.
        const TestCallback without(NULL);
        static_cast<CMsgCallbackImp&>(copy) = without;
        EXPECT_STREQ(L"", copy.WaitDlgGetLastMsg());
        EXPECT_FALSE(copy.EnableCancel());
    }
    EXPECT_EQ(1u, m_manager.calls.size()) << "assignment took the other's manager, which is none";
    EXPECT_STREQ(L"B", callback.WaitDlgGetLastMsg());
}

TEST_F(MsgCallbackImp, ACopyRegistersThePreviousCallbackWhenItIsDestroyed)
{
    TestCallback outer(&m_manager);
    TestCallback callback(&m_manager);
    {
        const TestCallback copy(callback);
    }
    ASSERT_EQ(3u, m_manager.calls.size());
    EXPECT_EQ(&outer, m_manager.calls[2].callback);
    m_manager.Register(&callback);
}

TEST_F(MsgCallbackImp, AssignmentSharesTheDialogOfTheOther)
{
    TestCallback source(NULL);
    source.CreateWaitDlg(true);
    source.WaitDlgPushMsg(L"shared");
    {
        TestCallback target(NULL);
        EXPECT_EQ(&target, &(target = source));
        EXPECT_STREQ(L"shared", target.WaitDlgGetLastMsg());
        EXPECT_TRUE(target.EnableCancel());
        const TestCallback without(NULL);
        source = without; // the target is the one that closes it
    }
    EXPECT_FALSE(WaitDialog::IsShown());
    EXPECT_STREQ(L"", source.WaitDlgGetLastMsg());
}

TEST_F(MsgCallbackImp, AssignmentTakesTheManagerAndTheFormerCallbackOfTheOther)
{
    TestCallback outer(&m_manager);
    TestCallback source(&m_manager);
    {
        TestCallback target(NULL);
        target = source;
        EXPECT_EQ(2u, m_manager.calls.size()) << "it does not register";
    }
    ASSERT_EQ(3u, m_manager.calls.size());
    EXPECT_EQ(&outer, m_manager.calls[2].callback);
    m_manager.Register(&source);
}

TEST_F(MsgCallbackImp, TheOperationsOfThePaletteAreThoseOfTheMessageService)
{
    arxhost::NewDocument();
    TestCallback callback(&m_manager);
    AcArray<AcDbObjectId> ids;
    ids.append(AcDbObjectId());
    const AcDbExtents extents(AcGePoint3d(1, 2, 0), AcGePoint3d(3, 4, 0));
    callback.MsgWndAddMsg(CMsgCallback::eWarning, L"Check", L"bound", true, &ids, &extents);
    const CZNMsgData data = Last();
    EXPECT_EQ(KTMsgWnd::eWarning, data.type);
    EXPECT_STREQ(L"Check", data.group);
    EXPECT_STREQ(L"bound", data.text);
    EXPECT_EQ(CZNMsgManager::CurrentDocument(), data.document);
    EXPECT_EQ(1, data.objectIds.length());
    EXPECT_TRUE(data.hasExtents);
    EXPECT_EQ(3, data.extents.maxPoint().x);

    callback.MsgWndAddMsg(CMsgCallback::eError, L"CHECK", L"free", false, NULL, NULL);
    EXPECT_EQ(2, callback.GetMsgCount(L"check"));
    EXPECT_EQ(0, callback.GetMsgCount(NULL));
    EXPECT_TRUE(callback.RemoveMsg(L"check", false));
    EXPECT_EQ((Texts{L"free"}), VisibleTexts());
    EXPECT_FALSE(callback.RemoveMsg(L"check", false));
    EXPECT_TRUE(callback.RemoveMsg(L"check", true));
    callback.MsgWndAddMsg(CMsgCallback::eInfo, L"g", L"last", false, NULL, NULL);
    callback.RemoveAllMsg();
    EXPECT_EQ(0, Store().GetCount());
}

TEST_F(MsgCallbackImp, NullTextsAddNoMessage)
{
    TestCallback callback(&m_manager);
    callback.MsgWndAddMsg(CMsgCallback::eInfo, L"g", NULL, false, NULL, NULL);
    callback.MsgWndAddMsg(CMsgCallback::eInfo, L"g", L"", false, NULL, NULL);
    EXPECT_EQ(0, Store().GetCount());
    EXPECT_FALSE(callback.RemoveMsg(NULL, true));
}

TEST_F(MsgCallbackImp, ShowsHidesAndUpdatesThePalette)
{
    TestCallback callback(&m_manager);
    EXPECT_FALSE(callback.MsgWndShow(false));
    callback.MsgWndUpdate();
    EXPECT_EQ(nullptr, CMsgViewWnd::Instance(false)) << "updating never creates the palette";
    EXPECT_TRUE(callback.MsgWndShow(true));
    callback.MsgWndAddMsg(CMsgCallback::eInfo, L"g", L"new", false, NULL, NULL);
    EXPECT_EQ(0, Rows());
    callback.MsgWndUpdate();
    EXPECT_EQ(1, Rows());
    EXPECT_TRUE(callback.MsgWndShow(false));
    EXPECT_FALSE(CMsgViewWnd::Instance(false)->IsShown());
}

TEST_F(MsgCallbackImp, IsReachedThroughTheManagerOfTheSuite)
{
    CMsgCallbackManager* const manager = CMsgCallbackManager::GetInstance();
    {
        TestCallback callback(manager);
        CMsgCallback* const current = manager->GetCurrent();
        ASSERT_EQ(&callback, current);
        current->CreateWaitDlg(true);
        current->WaitDlgPushMsg(L"from elsewhere");
        EXPECT_TRUE(current->EnableCancel());
        EXPECT_TRUE(Shows(L"from elsewhere"));
    }
    EXPECT_EQ(nullptr, manager->GetCurrent());
}
