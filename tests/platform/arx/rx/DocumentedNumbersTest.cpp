// Numbers, sizes and signatures that modules have in their own code, or that other languages use without our headers.
#include "acdocman.h"
#include "acedads.h"
#include "dbmain.h"
#include "rxdefs.h"
#include "rxdlinkr.h"
#include "rxregsvc.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace
{

struct Row
{
    const char* name;
    int number;
    int documented;
};

} // namespace

TEST(DocumentedNumbers, MessagesToAModule)
{
    const Row rows[] = {
        {"kNullMsg", AcRx::kNullMsg, 0},
        {"kInitAppMsg", AcRx::kInitAppMsg, 1},
        {"kUnloadAppMsg", AcRx::kUnloadAppMsg, 2},
        {"kLoadDwgMsg", AcRx::kLoadDwgMsg, 3},
        {"kUnloadDwgMsg", AcRx::kUnloadDwgMsg, 4},
        {"kInvkSubrMsg", AcRx::kInvkSubrMsg, 5},
        {"kCfgMsg", AcRx::kCfgMsg, 6},
        {"kEndMsg", AcRx::kEndMsg, 7},
        {"kQuitMsg", AcRx::kQuitMsg, 8},
        {"kSaveMsg", AcRx::kSaveMsg, 9},
        {"kDependencyMsg", AcRx::kDependencyMsg, 10},
        {"kNoDependencyMsg", AcRx::kNoDependencyMsg, 11},
        {"kOleUnloadAppMsg", AcRx::kOleUnloadAppMsg, 12},
        {"kPreQuitMsg", AcRx::kPreQuitMsg, 13},
        {"kInitDialogMsg", AcRx::kInitDialogMsg, 14},
        {"kEndDialogMsg", AcRx::kEndDialogMsg, 15},
        {"kSuspendMsg", AcRx::kSuspendMsg, 16},
        {"kInitTabGroupMsg", AcRx::kInitTabGroupMsg, 17},
        {"kEndTabGroupMsg", AcRx::kEndTabGroupMsg, 18},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(row.number, row.documented) << row.name;
    }
}

TEST(DocumentedNumbers, ResultsAndTypesOfTheCInterface)
{
    const Row rows[] = {
        {"kRetOK", AcRx::kRetOK, 0}, {"kRetError", AcRx::kRetError, 3},
        {"eOk", Acad::eOk, 0},       {"RTNORM", RTNORM, 5100},
        {"RTNONE", RTNONE, 5000},    {"RTERROR", RTERROR, -5001},
        {"RTCAN", RTCAN, -5002},     {"RTREJ", RTREJ, -5003},
        {"RTFAIL", RTFAIL, -5004},   {"RTKWORD", RTKWORD, -5005},
        {"RTREAL", RTREAL, 5001},    {"RTPOINT", RTPOINT, 5002},
        {"RTSHORT", RTSHORT, 5003},  {"RTANG", RTANG, 5004},
        {"RTSTR", RTSTR, 5005},      {"RTENAME", RTENAME, 5006},
        {"RTPICKS", RTPICKS, 5007},  {"RT3DPOINT", RT3DPOINT, 5009},
        {"RTLONG", RTLONG, 5010},    {"RTDXF0", RTDXF0, 5020},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(row.number, row.documented) << row.name;
    }
}

// A name travels as two words of a pointer's size and an identifier as one: a long would cut them.
TEST(DocumentedNumbers, NamesAndIdentifiersHaveAPointersSize)
{
    EXPECT_EQ(sizeof(ads_name), 2 * sizeof(void*));
    EXPECT_EQ(sizeof(AcDbObjectId), sizeof(void*));
    EXPECT_TRUE(std::is_trivially_copyable<AcDbObjectId>::value);
    EXPECT_EQ(sizeof(ads_point), 3 * sizeof(double));
}

TEST(DocumentedNumbers, FunctionsOfTheLoaderHaveTheirSignatures)
{
    EXPECT_TRUE((std::is_same<decltype(&acrxLoadModule), bool (*)(const ACHAR*, bool, bool)>::value));
    EXPECT_TRUE((std::is_same<decltype(&acrxUnloadModule), bool (*)(const ACHAR*, bool)>::value));
    EXPECT_TRUE((std::is_same<decltype(&AcRxDynamicLinker::unlockApplication),
                              bool (AcRxDynamicLinker::*)(void*) const>::value));
    EXPECT_TRUE((std::is_same<decltype(&AcRxDynamicLinker::registerAppMDIAware),
                              bool (AcRxDynamicLinker::*)(void*) const>::value));
    EXPECT_TRUE(
        (std::is_same<decltype(&AcApDocManager::curDocument), AcApDocument* (AcApDocManager::*)() const>::value));
    EXPECT_TRUE((std::is_same<AcRxAppEntryPoint, AcRx::AppRetCode (*)(AcRx::AppMsgCode, void*)>::value));
}
