// The picture preview: a slide, an image, nothing, and a file that is damaged.
#pragma once

#include "../GalleryPage.h"

#include <SlideCtrl.h>

class CSlidePage : public CGalleryPage
{
public:
    static const wchar_t Description[];
    static const wchar_t Code[];

    CSlidePage();

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

private:
    CSlideCtrl m_slide;
    CSlideCtrl m_image;
    CSlideCtrl m_empty;
    CSlideCtrl m_damaged;
};
