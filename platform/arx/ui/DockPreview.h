// The outline that shows where a dragged bar will dock: a popup window in the shape of a hollow rectangle.
#pragma once

#include <afxwin.h>

namespace arxui
{

class DockPreview
{
public:
    DockPreview() = default;
    ~DockPreview();
    DockPreview(const DockPreview&) = delete;
    DockPreview& operator=(const DockPreview&) = delete;

    // Shows the outline of a rectangle in screen coordinates, above `owner`.
    void Show(HWND owner, const CRect& rect);
    void Hide();

private:
    HWND m_window = nullptr;
};

} // namespace arxui
