#include "button/MyMenu.h"

#include "base/Gradient.h"
#include "base/SavedDC.h"
#include "button/ItemDrawing.h"
#include "button/MenuEntryLayout.h"

IMPLEMENT_DYNAMIC(CMyMenu, CMenu)

namespace
{

const UINT kHashTableSize = 17;
const COLORREF kColumnLeft = RGB(240, 240, 240);
const COLORREF kColumnRight = RGB(200, 200, 200);
const COLORREF kHighlight = RGB(0, 0, 255);
const COLORREF kHighlightedText = RGB(255, 255, 255);
const COLORREF kText = RGB(0, 0, 0);
const int kMarkStroke = 3; // pixels

// The context that an entry is drawn in may hold another font than the one it was measured with, so that both select
// this one.
void CreateMenuFont(CFont& font)
{
    NONCLIENTMETRICS metrics;
    // Systems before the last member was added refuse the whole size.
    metrics.cbSize = CCSIZEOF_STRUCT(NONCLIENTMETRICS, lfMessageFont);
    if (::SystemParametersInfo(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0))
        font.CreateFontIndirect(&metrics.lfMenuFont);
    else
        font.CreateStockObject(DEFAULT_GUI_FONT);
}

void PaintEntry(CDC& dc, const CRect& entry, const MenuEntryLayout& layout, const MenuEntryLook& look)
{
    const COLORREF background = ::GetSysColor(COLOR_MENU);
    if (look.fillsEntry)
        dc.FillSolidRect(&entry, background);
    FillGradient(dc, layout.imageColumn, kColumnLeft, kColumnRight, GRADIENT_RIGHT);
    if (look.highlighted)
        dc.FillSolidRect(&layout.textArea, kHighlight);
    else if (look.fillsTextArea)
        dc.FillSolidRect(&layout.textArea, background);
}

void DrawMark(CDC& dc, const MenuEntryLayout& layout, COLORREF color)
{
    CPen pen(PS_SOLID, 1, color);
    const CSavedDC saved(dc);
    dc.SelectObject(&pen);
    for (int i = 0; i < MENU_MARK_STROKES; ++i)
    {
        const CPoint& top = layout.mark[i];
        dc.MoveTo(top.x, top.y);
        dc.LineTo(top.x, top.y + kMarkStroke);
    }
}

void DrawEntry(CDC& dc, const CRect& entry, const MyMenuItemData& data, const MenuEntryLook& look)
{
    const MenuEntryLayout layout = LayOutMenuEntry(entry, data.sizeImage, data.sizeText);
    const COLORREF color = look.highlighted ? kHighlightedText : kText;
    const ItemImage image = {data.hIcon, data.hBitmap, data.sizeImage};
    PaintEntry(dc, entry, layout, look);
    DrawItemImage(dc, layout.image, image, look.disabled);
    if (data.bDefault)
        DrawMark(dc, layout, color);
    dc.SetTextColor(color);
    DrawItemText(dc, layout.text, data.sizeText, data.strText, look.disabled);
}

} // namespace

MyMenuItemData::MyMenuItemData()
    : nID(0), chMnemonic(0), bDefault(FALSE), hIcon(NULL), hBitmap(NULL), sizeImage(0, 0), sizeText(0, 0)
{
}

CMyMenu::CMyMenu()
{
    m_mapItemData.InitHashTable(kHashTableSize);
    CreateMenuFont(m_font);
}

CMyMenu::~CMyMenu() {}

void CMyMenu::AddIconEntry(CWnd* pOwner, UINT nID, const wchar_t* text, HICON hIcon, BOOL bDefault)
{
    MyMenuItemData data;
    data.nID = nID;
    data.hIcon = hIcon;
    data.bDefault = bDefault;
    Record(pOwner, data, text);
}

void CMyMenu::AddBitmapEntry(CWnd* pOwner, UINT nID, const wchar_t* text, HBITMAP hBitmap, BOOL bDefault)
{
    MyMenuItemData data;
    data.nID = nID;
    data.hBitmap = hBitmap;
    data.bDefault = bDefault;
    Record(pOwner, data, text);
}

void CMyMenu::Record(CWnd* pOwner, MyMenuItemData& data, const wchar_t* text)
{
    data.strText = text;
    data.chMnemonic = MnemonicOf(text);
    data.sizeImage = MenuImageSize(FindItemImage(data.hIcon, data.hBitmap).size);
    data.sizeText = MeasureItemText(MeasuringContext(pOwner), data.strText);
    m_mapItemData.SetAt(data.nID, data);
}

// Compatible with the owner's, made once: to get the owner's own and put the font into it costs more than all the rest
// of an entry.
CDC& CMyMenu::MeasuringContext(CWnd* pOwner)
{
    if (m_measuringContext.GetSafeHdc() == NULL)
    {
        CClientDC owner(pOwner);
        m_measuringContext.CreateCompatibleDC(&owner);
        m_measuringContext.SelectObject(&m_font);
    }
    return m_measuringContext;
}

void CMyMenu::MeasureItem(LPMEASUREITEMSTRUCT measureItem)
{
    MyMenuItemData data;
    if (!m_mapItemData.Lookup(measureItem->itemID, data))
        return;
    const CSize size = MeasureMenuEntry(data.sizeImage, data.sizeText);
    measureItem->itemWidth = size.cx;
    measureItem->itemHeight = size.cy;
}

void CMyMenu::DrawItem(LPDRAWITEMSTRUCT drawItem)
{
    MyMenuItemData data;
    m_mapItemData.Lookup(drawItem->itemID, data);
    CDC& dc = *CDC::FromHandle(drawItem->hDC);
    const CSavedDC saved(dc);
    dc.SelectObject(&m_font);
    DrawEntry(dc, CRect(drawItem->rcItem), data, LookOfMenuEntry(drawItem->itemAction, drawItem->itemState));
}

LRESULT CMyMenu::HandleMenuChar(CWnd* pOwner, UINT nChar, UINT)
{
    UINT id = 0;
    if (pOwner == NULL || !FindMnemonic(MenuKeyOf(nChar), id))
        return 0;
    pOwner->SendMessage(WM_COMMAND, id, 0);
    return MAKELRESULT(0, MNC_CLOSE);
}

bool CMyMenu::FindMnemonic(UINT key, UINT& id) const
{
    MyMenuItemData data;
    for (POSITION position = m_mapItemData.GetStartPosition(); position != NULL;)
    {
        m_mapItemData.GetNextAssoc(position, id, data);
        if (data.chMnemonic == key)
            return true;
    }
    return false;
}
