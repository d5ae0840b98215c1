// The wait dialog of a callback under a real mouse, while the operation keeps the main thread busy.
#include "StoreFixture.h"
#include "TestCallback.h"
#include "HostFrame.h"
#include "Wait.h"

#include <thread>

namespace
{

class MsgCallbackInput : public StoreFixture
{
protected:
    HostFrame m_frame;
    CMsgCallbackManager m_manager;
};

} // namespace

TEST_F(MsgCallbackInput, CancelEndsAnOperationThatPollsItWhileTheMainThreadIsBusy)
{
    TestCallback callback(&m_manager);
    callback.CreateWaitDlg(true);
    callback.WaitDlgPushMsg(L"busy");
    callback.WaitDlgPushMsg(L"");
    ASSERT_TRUE(WaitFor([] { return WaitDialog::CancelButton() != NULL; }));
    std::thread user([&callback] { WaitDialog::ClickCancelUntil([&callback] { return callback.IsCanceled(); }); });

    // From here on nothing dispatches a message of this thread.
    const ULONGLONG start = ::GetTickCount64();
    const ULONGLONG patience = 20000;
    int step = 0;
    while (!callback.IsCanceled() && ::GetTickCount64() - start < patience)
        callback.WaitDlgModiLastMsg(std::to_wstring(++step).c_str());
    EXPECT_TRUE(callback.IsCanceled());
    user.join();
    EXPECT_EQ(std::to_wstring(step), callback.WaitDlgPopMsg().GetString());
    EXPECT_TRUE(WaitDialog::WaitForLines(L"busy"));
}
