// The tree of named entries that the suite's dialogs use: a tree with added icons of a class of its own. Its usual
// companions are the functions of MFCUtils and the five commands of MFCUtils::CComboButtonIMPItem.
#pragma once

#include <afxwin.h>

#include "base/ZnktApi.h"
#include "tree/AddedIconTreeCtrl.h"

class ZNKT_API CMFCCommonTree : public CAddedIconTreeCtrl
{
    DECLARE_DYNAMIC(CMFCCommonTree)

public:
    CMFCCommonTree();
    virtual ~CMFCCommonTree();

protected:
    DECLARE_MESSAGE_MAP()
};
