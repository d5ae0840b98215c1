#include "arx/ui/DockBarParts.h"

namespace arxui
{
namespace
{

const wchar_t profileSection[] = L"Palettes";

CString EntryOf(const CLSID& toolId)
{
    wchar_t text[40] = L"";
    StringFromGUID2(toolId, text, _countof(text));
    return text;
}

} // namespace

void WriteLayout(const CLSID& toolId, const PaletteLayout& layout)
{
    if (CWinApp* app = AfxGetApp())
        app->WriteProfileString(profileSection, EntryOf(toolId), LayoutToText(layout).c_str());
}

bool ReadLayout(const CLSID& toolId, PaletteLayout& layout)
{
    CWinApp* app = AfxGetApp();
    if (app == nullptr)
        return false;
    const CString text = app->GetProfileString(profileSection, EntryOf(toolId));
    return LayoutFromText(text.GetString(), layout);
}

} // namespace arxui
