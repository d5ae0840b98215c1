// main() of every test program: starts the framework the way a program does, so that windows, resources and message
// boxes work as in the field.
#include <afxwin.h>
#include <commctrl.h>

#include <gtest/gtest.h>

namespace
{
CWinApp theApp(L"Tests");
}

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);

    INITCOMMONCONTROLSEX controls = {sizeof(controls), ICC_WIN95_CLASSES | ICC_DATE_CLASSES};
    ::InitCommonControlsEx(&controls);
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL))
        return 1;
    const int result = RUN_ALL_TESTS();
    AfxWinTerm();
    return result;
}
