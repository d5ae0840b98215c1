// A palette set with palettes that record what they are told.
#pragma once

#include "HostFixture.h"

#include <adui.h>
#include <aduiPaletteSet.h>

class SamplePalette : public CAdUiPalette
{
public:
    BOOL Load(IUnknown* pUnk) override
    {
        ++loads;
        return CAdUiPalette::Load(pUnk);
    }
    BOOL Save(IUnknown* pUnk) override
    {
        ++saves;
        return CAdUiPalette::Save(pUnk);
    }
    void OnSetActive() override { ++activations; }
    bool CanFrameworkTakeFocus() override { return letsGo; }

    int loads = 0;
    int saves = 0;
    int activations = 0;
    bool letsGo = true;
};

class SampleSet : public CAdUiPaletteSet
{
public:
    void GetMinimumSize(CSize& size) override { size = CSize(300, 120); }
    BOOL OnClosing() override { return mayClose; }
    bool mayClose = true;
};

// {2B3D6F41-55C1-4B0B-9E5C-7C8A27E9D011}
static CLSID g_sampleTool = {0x2B3D6F41, 0x55C1, 0x4B0B, {0x9E, 0x5C, 0x7C, 0x8A, 0x27, 0xE9, 0xD0, 0x11}};

class PaletteFixture : public HostFixture
{
protected:
    ~PaletteFixture() override { m_set.reset(); }

    // A new set with one palette, floating and hidden.
    SampleSet& MakeSet(DWORD style = PSS_EDIT_NAME | PSS_PROPERTIES_MENU | PSS_AUTO_ROLLUP | PSS_CLOSE_BUTTON)
    {
        m_set.reset();
        m_palette.reset(new SamplePalette);
        m_set.reset(new SampleSet);
        m_set->Create(L"消息查看", WS_DLGFRAME, CRect(200, 200, 840, 390), &Frame(), style);
        m_palette->Create(WS_CHILD | WS_VISIBLE, L"消息查看", m_set.get());
        m_set->AddPalette(m_palette.get());
        m_set->SetToolID(&g_sampleTool);
        m_set->EnableDocking(CBRS_ALIGN_ANY);
        return *m_set;
    }
    // Destroys the set as a module does at its end.
    void EndSet()
    {
        m_set->DestroyWindow();
        m_set.reset();
        m_palette.reset();
    }

    SampleSet& Set() { return *m_set; }
    SamplePalette& Palette() { return *m_palette; }
    void Show(bool show = true) { Frame().ShowControlBar(m_set.get(), show, FALSE); }
    CRect SetRect() const { return ScreenRectOf(*m_set); }

    std::unique_ptr<SamplePalette> m_palette;
    std::unique_ptr<SampleSet> m_set; // ends before its palette
};
