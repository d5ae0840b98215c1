#include "rxdict.h"
#include "rxdlinkr.h"
#include "accmd.h"

#include <gtest/gtest.h>

namespace
{

class Value : public AcRxObject
{
public:
    explicit Value(int* destroyed) : m_destroyed(destroyed) {}
    ~Value() override { ++*m_destroyed; }

private:
    int* m_destroyed;
};

TEST(Dictionary, FindsWhatWasPut)
{
    int destroyed = 0;
    Value value(&destroyed);
    AcRxDictionary dictionary;
    EXPECT_EQ(dictionary.at(L"key"), nullptr);
    EXPECT_EQ(dictionary.atPut(L"key", &value), nullptr);
    EXPECT_EQ(dictionary.at(L"key"), &value);
    EXPECT_EQ(dictionary.at(L"KEY"), nullptr);
    EXPECT_EQ(dictionary.at(nullptr), nullptr);
    EXPECT_EQ(dictionary.numEntries(), 1u);
}

TEST(Dictionary, PutGivesThePreviousValueBack)
{
    int destroyed = 0;
    Value first(&destroyed);
    Value second(&destroyed);
    AcRxDictionary dictionary;
    dictionary.atPut(L"key", &first);
    EXPECT_EQ(dictionary.atPut(L"key", &second), &first);
    EXPECT_EQ(dictionary.remove(L"key"), &second);
    EXPECT_EQ(dictionary.remove(L"key"), nullptr);
    EXPECT_FALSE(dictionary.has(L"key"));
}

TEST(Dictionary, OwnerDeletesItsValues)
{
    int destroyed = 0;
    {
        AcRxDictionary dictionary(true);
        dictionary.atPut(L"a", new Value(&destroyed));
        EXPECT_EQ(dictionary.atPut(L"a", new Value(&destroyed)), nullptr);
        EXPECT_EQ(destroyed, 1);
        dictionary.atPut(L"b", new Value(&destroyed));
        EXPECT_TRUE(dictionary.erase(L"b"));
        EXPECT_EQ(destroyed, 2);
        EXPECT_FALSE(dictionary.erase(L"b"));
    }
    EXPECT_EQ(destroyed, 3);
}

TEST(Dictionary, CaseIsPassedOverOnRequest)
{
    int destroyed = 0;
    Value value(&destroyed);
    AcRxDictionary dictionary(false, true);
    dictionary.atPut(L"Key", &value);
    EXPECT_EQ(dictionary.at(L"kEY"), &value);
}

TEST(SystemRegistry, HoldsTheServices)
{
    EXPECT_NE(acrxDynamicLinker, nullptr);
    EXPECT_EQ(AcEdCommandStack::cast(acrxSysRegistry()->at(ACED_COMMAND_STACK)), acedRegCmds);
    EXPECT_EQ(AcRxDynamicLinker::cast(acrxSysRegistry()->at(ACED_COMMAND_STACK)), nullptr);
}

TEST(RunTimeType, FollowsTheInheritance)
{
    EXPECT_TRUE(AcRxDynamicLinker::desc()->isDerivedFrom(AcRxObject::desc()));
    EXPECT_FALSE(AcRxObject::desc()->isDerivedFrom(AcRxDynamicLinker::desc()));
    EXPECT_STREQ(acrxDynamicLinker->isA()->name(), L"AcRxDynamicLinker");
    EXPECT_EQ(AcRxDynamicLinker::cast(nullptr), nullptr);
}

TEST(ErrorStatus, HasATextForEveryCode)
{
    EXPECT_STREQ(acadErrorStatusText(Acad::eOk), L"eOk");
    for (int code = Acad::eOk; code <= Acad::eNotThatKindOfClass; ++code)
    {
        EXPECT_STRNE(acadErrorStatusText(static_cast<Acad::ErrorStatus>(code)), L"eUnknown") << code;
    }
    EXPECT_STREQ(acadErrorStatusText(static_cast<Acad::ErrorStatus>(-1)), L"eUnknown");
}

} // namespace
