// The palette set that shows the messages of the store, shared by all documents: at most one in the module.
#pragma once

#include <afxwin.h>
#include <adui.h>
#include <acui.h>
#include <aduiPaletteSet.h>

class CMsgPalette;

class CMsgViewWnd : public CAdUiPaletteSet
{
    DECLARE_DYNAMIC(CMsgViewWnd)

public:
    // The palette set. With `create` it is made when there is none, and shown in any case; without it null may come.
    static CMsgViewWnd* Instance(bool create);

    // Destroys window and object, if there are any.
    static void DestroyInstance();

    CMsgViewWnd();
    virtual ~CMsgViewWnd();

    void Show(bool show);
    bool IsShown() const;

    // Lets the viewer show what the store holds now, with the tree of groups rebuilt.
    void Refresh();

    CMsgPalette& GetPalette();

    virtual void GetMinimumSize(CSize& size);

    // The host asks before it takes the focus: it may, when the cursor is outside the set.
    virtual bool CanFrameworkTakeFocus();

protected:
    DECLARE_MESSAGE_MAP()

private:
    void Build();
    void LayOutOnce();

    static CMsgViewWnd* s_instance;

    CMsgPalette* m_palette; // owned
};
