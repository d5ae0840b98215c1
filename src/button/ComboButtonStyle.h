// The looks of a combo button: flags of CComboButton::SetComboButtonStyle.
#pragma once

enum ComboButtonStyle
{
    CBTS_FLAT = 0x01,           // the border is drawn only while the button is pressed, hot or its menu is open
    CBTS_ROUND = 0x02,          // a rounded border of one pixel instead of the raised one
    CBTS_SEPARATORONHOT = 0x04, // the line before the drop zone is drawn only while hot or while the menu is open
    CBTS_GRADIENT = 0x08,       // backgrounds that go over from light to dark; flat colours without it
    CBTS_IMAGEANDTEXT = 0x10,   // with CBTS_SHOWIMAGE: the caption as well; an image takes its place without it
    CBTS_SHOWIMAGE = 0x20,      // the default item's icon or bitmap on the face
    CBTS_IMAGEABOVE = 0x40,     // with CBTS_IMAGEANDTEXT: the image above the caption; at its left without it
    CBTS_HOTFRAME = 0x80,       // a coloured frame of two pixels while the mouse is over the button

    CBTS_DEFAULT = CBTS_HOTFRAME | CBTS_SHOWIMAGE | CBTS_GRADIENT | CBTS_ROUND
};
