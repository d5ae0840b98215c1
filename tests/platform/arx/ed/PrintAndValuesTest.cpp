#include "HostFixture.h"

#include "adslib.h"
#include "rxmfcapi.h"

#include <afxwin.h>

#include <thread>

namespace
{

class Printing : public HostTest
{
};

TEST_F(Printing, FormatsWideText)
{
    EXPECT_EQ(acutPrintf(L"%s %d %.2f", L"图层", 7, 1.5), RTNORM);
    EXPECT_EQ(Take(), L"图层 7 1.50");
}

TEST_F(Printing, PerCentSignsInDataAreText)
{
    acutPrintf(L"%s", L"100%s %n %d");
    EXPECT_EQ(Take(), L"100%s %n %d");
    EXPECT_EQ(acedPrompt(L"%s%n"), RTNORM);
    EXPECT_EQ(Take(), L"%s%n");
}

TEST_F(Printing, TextsThatAreNoFormatsComeOutAsTheyStand)
{
    for (const wchar_t* text : {L"50%", L"%s", L"%n", L"%d and %s", L"%", L"100% done", L"%*.*f"})
    {
        EXPECT_EQ(acutPrintf(text), RTNORM);
        EXPECT_EQ(Take(), text);
    }
    EXPECT_EQ(acutPrintf(L"100%%"), RTNORM);
    EXPECT_EQ(Take(), L"100%");
}

TEST_F(Printing, DirectivesWithoutAnArgumentComeOutAsTheyStand)
{
    EXPECT_EQ(acutPrintf(L"%d %s", 1), RTNORM);
    EXPECT_EQ(Take(), L"1 %s");
    int written = 7;
    EXPECT_EQ(acutPrintf(L"%n%d", &written, 2), RTNORM);
    EXPECT_EQ(Take(), L"%n2");
    EXPECT_EQ(written, 7);
}

TEST_F(Printing, LongTextIsWhole)
{
    const std::wstring text(5000, L'长');
    EXPECT_EQ(acutPrintf(L"<%s>", text.c_str()), RTNORM);
    EXPECT_TRUE(printed == L"<" + text + L">") << printed.size();
}

TEST_F(Printing, NullIsAnError)
{
    EXPECT_EQ(acutPrintf(nullptr), RTERROR);
    EXPECT_EQ(acedPrompt(nullptr), RTERROR);
    EXPECT_EQ(Take(), L"");
}

TEST_F(Printing, WithoutASinkNothingHappens)
{
    arxhost::SetPrintSink(nullptr);
    EXPECT_EQ(acutPrintf(L"unheard"), RTNORM);
    EXPECT_EQ(printed, L"");
}

TEST(Strings, AreCopiedAndFreed)
{
    ACHAR* copy = nullptr;
    ASSERT_EQ(acutNewString(L"text", copy), RTNORM);
    EXPECT_STREQ(copy, L"text");
    acutDelString(copy);
    EXPECT_EQ(copy, nullptr);
    acutDelString(copy);
    EXPECT_EQ(acutNewString(nullptr, copy), RTERROR);
}

TEST(ResultBuffers, HoldValuesByType)
{
    const ads_point point = {1, 2, 3};
    resbuf* list = acutBuildList(RTSTR, L"text", RTREAL, 2.5, RTSHORT, 3, RTLONG, 70000, RTPOINT, point, RTLB, RTNIL,
                                 RTLE, RTNONE);
    ASSERT_NE(list, nullptr);
    EXPECT_STREQ(list->resval.rstring, L"text");
    EXPECT_EQ(list->rbnext->resval.rreal, 2.5);
    EXPECT_EQ(list->rbnext->rbnext->resval.rint, 3);
    EXPECT_EQ(list->rbnext->rbnext->rbnext->resval.rlong, 70000);
    const resbuf* at = list->rbnext->rbnext->rbnext->rbnext;
    EXPECT_EQ(at->resval.rpoint[2], 3);
    EXPECT_EQ(at->rbnext->restype, RTLB);
    EXPECT_EQ(at->rbnext->rbnext->rbnext->restype, RTLE);
    EXPECT_EQ(at->rbnext->rbnext->rbnext->rbnext, nullptr);
    EXPECT_EQ(acutRelRb(list), RTNORM);
}

TEST(ResultBuffers, ZeroIsARecordNameAtTheBeginningAndTheEndBehind)
{
    resbuf* list = acutBuildList(0, L"LINE", 8, L"Walls", 0);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->restype, 0);
    EXPECT_STREQ(list->resval.rstring, L"LINE");
    EXPECT_STREQ(list->rbnext->resval.rstring, L"Walls");
    EXPECT_EQ(list->rbnext->rbnext, nullptr);
    acutRelRb(list);
}

TEST(ResultBuffers, UnknownTypesAreRefused)
{
    EXPECT_EQ(acutNewRb(4999), nullptr);
    EXPECT_EQ(acutBuildList(RTSTR, L"kept until then", 4999, 1, 0), nullptr);
    EXPECT_EQ(acutBuildList(RTNONE), nullptr);
    EXPECT_EQ(acutRelRb(nullptr), RTERROR);
}

TEST(Frame, IsNullWithoutOne)
{
    arxhost::Reset();
    EXPECT_EQ(acedGetAcadFrame(), nullptr);
    EXPECT_EQ(adsw_acadMainWnd(), nullptr);
    EXPECT_EQ(acedGetAcadResourceInstance(), GetModuleHandleW(L"arx.dll"));
}

TEST(ResourceHandles, ArePushedAndPopped)
{
    arxhost::Reset();
    const HINSTANCE before = AfxGetResourceHandle();
    const HINSTANCE first = GetModuleHandleW(L"arx.dll");
    const HINSTANCE second = GetModuleHandleW(L"user32.dll");
    acDocManager->pushResourceHandle(first);
    EXPECT_EQ(AfxGetResourceHandle(), first);
    acDocManager->pushResourceHandle(second);
    EXPECT_EQ(AfxGetResourceHandle(), second);
    acDocManager->popResourceHandle();
    EXPECT_EQ(AfxGetResourceHandle(), first);
    acDocManager->popResourceHandle();
    EXPECT_EQ(AfxGetResourceHandle(), before);
    acDocManager->popResourceHandle();
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

TEST(ResourceHandles, OfAThreadAreItsOwn)
{
    arxhost::Reset();
    const HINSTANCE before = AfxGetResourceHandle();
    const HINSTANCE own = GetModuleHandleW(L"arx.dll");
    const HINSTANCE others = GetModuleHandleW(L"user32.dll");
    acDocManager->pushResourceHandle(own);
    HINSTANCE atFirst = NULL;
    HINSTANCE pushed = NULL;
    HINSTANCE atLast = NULL;
    std::thread([&] {
        atFirst = AfxGetResourceHandle();
        acDocManager->pushResourceHandle(others);
        pushed = AfxGetResourceHandle();
        acDocManager->popResourceHandle();
        acDocManager->popResourceHandle();
        atLast = AfxGetResourceHandle();
    }).join();
    EXPECT_EQ(before, atFirst);
    EXPECT_EQ(others, pushed);
    EXPECT_EQ(before, atLast);
    EXPECT_EQ(own, AfxGetResourceHandle());
    acDocManager->popResourceHandle();
    EXPECT_EQ(before, AfxGetResourceHandle());
}

TEST(ResourceHandles, SettingOneWhileAnotherIsPushedLastsUntilThePop)
{
    arxhost::Reset();
    const HINSTANCE before = AfxGetResourceHandle();
    const HINSTANCE set = GetModuleHandleW(L"user32.dll");
    acDocManager->pushResourceHandle(GetModuleHandleW(L"arx.dll"));
    AfxSetResourceHandle(set);
    EXPECT_EQ(set, AfxGetResourceHandle());
    acDocManager->popResourceHandle();
    EXPECT_EQ(before, AfxGetResourceHandle());
}

} // namespace
