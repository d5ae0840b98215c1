// An owner-drawn button that previews a picture: a slide of the CAD program (.sld) or an image file (BMP, GIF, JPEG,
// PNG, TIFF).
//
//     CSlideCtrl m_preview;                    // DDX_Control(exchange, IDC_PREVIEW, m_preview); BS_OWNERDRAW
//     m_preview.SetBkColor(::GetSysColor(COLOR_3DFACE));
//     m_preview.SetFileName(L"C:\\blocks\\valve.png");
//
// An image is stretched to the whole client area inside a sunken border; a slide keeps its aspect ratio. The button
// sends its parent the notifications of any button.
#pragma once

#include <afxwin.h>
#include <atlimage.h>

#include <ZnQFCBaseU.h>

#include "base/ZnktApi.h"

class ZNKT_API CSlideCtrl : public Tevrin::CSlideButton
{
    DECLARE_DYNCREATE(CSlideCtrl)

public:
    CSlideCtrl();
    virtual ~CSlideCtrl();

    // Loads the file and shows it at once. A name that ends in ".sld", in any letter case, is a slide; every other one,
    // also one without an extension, is an image. An empty or null name shows nothing. The file is closed again.
    // A slide that can't be read shows why; an image that can't shows the background alone.
    void SetFileName(const wchar_t* name);
    // The last name, whether or not the file could be read.
    CString GetFileName();

    // The colour around a slide, behind the transparent parts of an image and inside its border; black at first.
    void SetBkColor(COLORREF color);
    COLORREF GetBkColor();

    void SetEnabled(int enabled);
    int GetEnabled();

    virtual void DrawItem(DRAWITEMSTRUCT* item);
    // Along the edges of the window, whose upper left corner is the origin of `dc`: two sunken lines, and partly over
    // them a band, three pixels wide, in the background colour.
    void DrawBorder(CDC* dc);

private:
    CSlideCtrl(const CSlideCtrl&);
    CSlideCtrl& operator=(const CSlideCtrl&);

    void ShowImage(const CString& name);

    CString m_fileName;
    CImage m_image;
    int m_imageMode;
};
