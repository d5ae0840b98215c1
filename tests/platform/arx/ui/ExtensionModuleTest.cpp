// What a module writes down once for itself as an extension DLL of the framework.
#include <afxwin.h>
#include <afxdllx.h>

#include <AcExtensionModule.h>
#include <acdocman.h>

#include <gtest/gtest.h>

AC_IMPLEMENT_EXTENSION_MODULE(SampleDLL);

namespace
{

// Attached to a module with resources of its own, as in DllMain.
class ExtensionModule : public testing::Test
{
protected:
    ExtensionModule() : m_before(AfxGetResourceHandle()), m_module(::GetModuleHandle(L"comctl32.dll"))
    {
        EXPECT_TRUE(SampleDLL.AttachInstance(m_module));
    }
    ~ExtensionModule() override { SampleDLL.DetachInstance(); }

    const HINSTANCE m_before;
    const HINSTANCE m_module;
};

} // namespace

TEST_F(ExtensionModule, KnowsItsOwnAndTheFormerResources)
{
    EXPECT_EQ(m_module, SampleDLL.ModuleResourceInstance());
    EXPECT_EQ(m_before, SampleDLL.DefaultResourceInstance());
    EXPECT_EQ(m_before, AfxGetResourceHandle());
}

TEST_F(ExtensionModule, IsAttachedOnce)
{
    EXPECT_FALSE(SampleDLL.AttachInstance(m_module));
    SampleDLL.DetachInstance();
    EXPECT_TRUE(SampleDLL.AttachInstance(m_module));
}

TEST_F(ExtensionModule, AnOverrideLastsAsLongAsItsObject)
{
    {
        const CAcModuleResourceOverride own;
        EXPECT_EQ(m_module, AfxGetResourceHandle());
        {
            const CAcModuleResourceOverride named(m_before);
            EXPECT_EQ(m_before, AfxGetResourceHandle());
        }
        EXPECT_EQ(m_module, AfxGetResourceHandle());
    }
    EXPECT_EQ(m_before, AfxGetResourceHandle());
}
