// The current callback: one pointer, and whoever replaces it gets the former one.
#include <ZNKTPub.h>

#include <gtest/gtest.h>

namespace
{

class NoCallback : public CMsgCallback
{
public:
    void CreateWaitDlg(bool) override {}
    void CloseWaitDlg() override {}
    void WaitDlgPushMsg(const wchar_t*) override {}
    CString WaitDlgPopMsg() override { return CString(); }
    CString WaitDlgGetLastMsg() const override { return CString(); }
    void WaitDlgModiLastMsg(const wchar_t*) override {}
    bool IsCanceled() const override { return false; }
    bool MsgWndShow(bool) override { return false; }
    void MsgWndAddMsg(EMsgType, const wchar_t*, const wchar_t*, bool, const AcArray<AcDbObjectId>*,
                      const AcDbExtents*) override
    {
    }
    bool RemoveMsg(const wchar_t*, bool) override { return false; }
    void RemoveAllMsg() override {}
    void MsgWndUpdate() override {}
    int GetMsgCount(const wchar_t*) override { return 0; }
    bool EnableCancel() const override { return false; }
};

} // namespace

TEST(MsgCallbackManager, HasNoCallbackAtFirst)
{
    const CMsgCallbackManager manager;
    EXPECT_EQ(nullptr, manager.GetCurrent());
}

TEST(MsgCallbackManager, RegisterReturnsTheFormerCallback)
{
    CMsgCallbackManager manager;
    NoCallback first;
    NoCallback second;
    EXPECT_EQ(nullptr, manager.Register(&first));
    EXPECT_EQ(&first, manager.Register(&second));
    EXPECT_EQ(&second, manager.GetCurrent());
}

TEST(MsgCallbackManager, RegisteringTheSameTwiceReturnsIt)
{
    CMsgCallbackManager manager;
    NoCallback callback;
    manager.Register(&callback);
    EXPECT_EQ(&callback, manager.Register(&callback));
}

TEST(MsgCallbackManager, NullMeansNone)
{
    CMsgCallbackManager manager;
    NoCallback callback;
    manager.Register(&callback);
    EXPECT_EQ(&callback, manager.Register(nullptr));
    EXPECT_EQ(nullptr, manager.GetCurrent());
}

TEST(MsgCallbackManager, KeepsNoStack)
{
    CMsgCallbackManager manager;
    NoCallback first;
    NoCallback second;
    manager.Register(&first);
    manager.Register(&second);
    manager.Register(nullptr);
    EXPECT_EQ(nullptr, manager.GetCurrent()) << "the first one does not come back by itself";
}

TEST(MsgCallbackManager, ThereIsOneForTheSuite)
{
    EXPECT_NE(nullptr, CMsgCallbackManager::GetInstance());
    EXPECT_EQ(CMsgCallbackManager::GetInstance(), CMsgCallbackManager::GetInstance());
}

TEST(MsgCallback, CopiesAndAssigns)
{
    NoCallback source;
    NoCallback copy(source);
    copy = source;
    EXPECT_NE(&source, &copy);
}

TEST(MsgCallback, HasTheValuesOfTheMessageTypes)
{
    EXPECT_EQ(0, CMsgCallback::eInfo);
    EXPECT_EQ(1, CMsgCallback::eWarning);
    EXPECT_EQ(2, CMsgCallback::eError);
}
