// Which object stands for a handle.
#include <afx/core/HandleMap.h>

#include <gtest/gtest.h>

namespace
{
struct Wrapper
{
    explicit Wrapper(void* h) : handle(h) { ++alive; }
    ~Wrapper()
    {
        --alive;
        destroyedHandles += handle != nullptr;
    }

    static Wrapper* MakeTemporary(void* handle) { return new Wrapper(handle); }
    static void SetHandle(Wrapper* wrapper, void* handle) { wrapper->handle = handle; }

    void* handle;
    static int alive;
    static int destroyedHandles;
};

int Wrapper::alive = 0;
int Wrapper::destroyedHandles = 0;

typedef CHandleMap<Wrapper, void*> WrapperMap;

int first = 0;
int second = 0;
} // namespace

TEST(HandleMap, ANullHandleHasNoObject)
{
    WrapperMap map(&Wrapper::MakeTemporary, &Wrapper::SetHandle);
    EXPECT_EQ(nullptr, map.FromHandle(nullptr));
    EXPECT_EQ(0u, map.GetTemporaryCount());
}

TEST(HandleMap, MakesOneTemporaryObjectAHandle)
{
    WrapperMap map(&Wrapper::MakeTemporary, &Wrapper::SetHandle);
    Wrapper* object = map.FromHandle(&first);
    EXPECT_EQ(&first, object->handle);
    EXPECT_EQ(object, map.FromHandle(&first));
    EXPECT_NE(object, map.FromHandle(&second));
    EXPECT_EQ(nullptr, map.LookupPermanent(&first));
    EXPECT_EQ(object, map.LookupTemporary(&first));
}

TEST(HandleMap, ATemporaryObjectThatLostItsHandleHasItAgain)
{
    WrapperMap map(&Wrapper::MakeTemporary, &Wrapper::SetHandle);
    map.FromHandle(&first)->handle = nullptr; // as when its system object is deleted
    EXPECT_EQ(&first, map.FromHandle(&first)->handle);
}

TEST(HandleMap, DeletesTemporaryObjectsWithoutTheirHandles)
{
    Wrapper::destroyedHandles = 0;
    WrapperMap map(&Wrapper::MakeTemporary, &Wrapper::SetHandle);
    map.FromHandle(&first);
    map.FromHandle(&second);
    map.DeleteTemp();
    EXPECT_EQ(0u, map.GetTemporaryCount());
    EXPECT_EQ(0, Wrapper::alive);
    EXPECT_EQ(0, Wrapper::destroyedHandles);
}

TEST(HandleMap, PermanentObjectsComeFirstAndStay)
{
    Wrapper permanent(&first);
    WrapperMap map(&Wrapper::MakeTemporary, &Wrapper::SetHandle);
    Wrapper* temporary = map.FromHandle(&first);
    map.SetPermanent(&first, &permanent);
    EXPECT_EQ(&permanent, map.FromHandle(&first));
    EXPECT_EQ(temporary, map.LookupTemporary(&first)) << "a caller may still hold it";
    map.DeleteTemp();
    EXPECT_EQ(&permanent, map.LookupPermanent(&first));
    map.RemoveHandle(&first);
    EXPECT_EQ(nullptr, map.LookupPermanent(&first));
    EXPECT_NE(&permanent, map.FromHandle(&first));
}
