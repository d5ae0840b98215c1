// A control whose object ends with its window, whoever destroys the window: the list that shows it, a message that is
// posted to it, or the end of the list itself. Made with new; after a failed Create it is gone already.
#pragma once

#include <afxwin.h>

// Identifiers of the list's children.
enum
{
    ID_BUTTON = 1000,
    ID_EDIT = 1001,
    ID_COMBO_BOX = 1002,
    ID_DATE_TIME = 1003
};

template<class CONTROL>
class CInPlaceControl : public CONTROL
{
protected:
    virtual void PostNcDestroy() { delete this; }
};
