// The picture preview: a slide, an image, nothing, and a file that is
// damaged.
#pragma once

#include "../GalleryPage.h"

// [show]
#include <SlideCtrl.h>
// [end]

class CSlidePage : public CGalleryPage
{
public:
    static const wchar_t Description[];

    CSlidePage();

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

private:
    // [show]
    CSlideCtrl m_slide;
    CSlideCtrl m_image;
    CSlideCtrl m_empty;
    CSlideCtrl m_damaged;
    // [end]
};
