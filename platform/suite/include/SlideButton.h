// Tevrin::CSlideButton: an owner-drawn button that shows a slide file of AutoCAD (.sld).
//
//     Tevrin::CSlideButton m_preview;            // DDX_Control(exchange, IDC_PREVIEW, m_preview); BS_OWNERDRAW
//     m_preview.SetFileName(L"C:\\slides\\plan.sld");
//
// The slide fills the client area as far as its aspect ratio allows; the background shows around it. An empty name
// shows the background alone. A file that can't be read shows a sentence that tells why (a crossed-out area where that
// finds no room); GetError tells the same to the program.
#pragma once

#include <afxwin.h>

#include "ZnQFCBaseU.h"

namespace Tevrin
{
class Slide;

class ZNQFC_API CSlideButton : public CButton
{
    DECLARE_DYNCREATE(CSlideButton)

public:
    CSlideButton();
    virtual ~CSlideButton();

    // Reads the file at once and shows it. Null counts as empty. The window need not exist yet.
    void SetFileName(const wchar_t* name);
    CString GetFileName() const { return m_fileName; }
    // What is wrong with the file, for the user; empty when nothing is.
    CString GetError() const { return m_error; }

    // Black at first. The setter does not repaint.
    void SetBkColor(COLORREF color) { m_background = color; }
    COLORREF GetBkColor() const { return m_background; }

    virtual void DrawItem(LPDRAWITEMSTRUCT item);

private:
    CSlideButton(const CSlideButton&);
    CSlideButton& operator=(const CSlideButton&);

    CString m_fileName;
    CString m_error;
    COLORREF m_background;
    Slide* m_slide; // owned
};
} // namespace Tevrin
