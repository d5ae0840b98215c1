// Run-time class information.
#include <afx.h>
#include <afxcoll.h>

#include <gtest/gtest.h>

namespace
{
class CShape : public CObject
{
    DECLARE_DYNAMIC(CShape)
};

class CCircle : public CShape
{
    DECLARE_DYNCREATE(CCircle)

public:
    CCircle() : radius(1) {}

    int radius;
};

class CSquare : public CShape
{
    DECLARE_DYNAMIC(CSquare)
};

IMPLEMENT_DYNAMIC(CShape, CObject)
IMPLEMENT_DYNCREATE(CCircle, CShape)
IMPLEMENT_DYNAMIC(CSquare, CShape)
} // namespace

TEST(Object, KnowsItsClassAndTheClassesAbove)
{
    const CCircle circle;
    EXPECT_EQ(RUNTIME_CLASS(CCircle), circle.GetRuntimeClass());
    EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CCircle)));
    EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CShape)));
    EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(circle.IsKindOf(RUNTIME_CLASS(CSquare)));
    EXPECT_STREQ("CCircle", circle.GetRuntimeClass()->m_lpszClassName);
}

TEST(Object, IsCreatedByItsRuntimeClass)
{
    CObject* object = RUNTIME_CLASS(CCircle)->CreateObject();
    ASSERT_NE(nullptr, object);
    EXPECT_EQ(1, STATIC_DOWNCAST(CCircle, object)->radius);
    delete object;
}

TEST(Object, WithoutDyncreateIsNotCreated)
{
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CShape)->CreateObject());
}

TEST(Object, DynamicDowncastChecksTheClass)
{
    CCircle circle;
    CObject* object = &circle;
    EXPECT_EQ(&circle, DYNAMIC_DOWNCAST(CShape, object));
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CSquare, object));
    CSquare square;
    object = &square;
    EXPECT_EQ(&square, DYNAMIC_DOWNCAST(CSquare, object));
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CSquare, static_cast<CObject*>(NULL)));
}

TEST(Object, ClassesOfTheFrameworkAreOneAcrossModules)
{
    const CStringArray array;
    EXPECT_EQ(RUNTIME_CLASS(CStringArray), array.GetRuntimeClass());
    EXPECT_TRUE(array.IsKindOf(RUNTIME_CLASS(CObject)));
}

TEST(Debug, ChecksAddresses)
{
    int value = 0;
    EXPECT_TRUE(AfxIsValidAddress(&value, sizeof(value)));
    EXPECT_FALSE(AfxIsValidAddress(NULL, 1));
    static const int constant = 5;
    EXPECT_TRUE(AfxIsValidAddress(&constant, sizeof(constant), FALSE));
    EXPECT_FALSE(AfxIsValidAddress(&constant, sizeof(constant), TRUE));
    EXPECT_TRUE(AfxIsValidString(L"text"));
    EXPECT_FALSE(AfxIsValidString(static_cast<LPCWSTR>(NULL)));
}
