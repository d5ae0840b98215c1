// A control whose object ends with its window, whoever destroys the window: the list that shows it, a message that is
// posted to it, or the end of the list itself. Made with new; after a failed Create it is gone already.
#pragma once

#include <afxwin.h>

template<class CONTROL>
class CInPlaceControl : public CONTROL
{
protected:
    virtual void PostNcDestroy() { delete this; }
};
