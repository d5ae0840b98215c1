#include "tree/IconPainter.h"

#include "base/ImageSize.h"

// A picture in a context of its own: to select one picture after the other would take longer than to copy them.
class CIconPicture
{
public:
    CIconPicture(CDC& like, CSize size) : m_size(size), m_before(NULL)
    {
        m_dc.CreateCompatibleDC(&like);
        m_bitmap.CreateCompatibleBitmap(&like, size.cx, size.cy);
        m_before = ::SelectObject(m_dc.GetSafeHdc(), m_bitmap.GetSafeHandle());
    }

    ~CIconPicture()
    {
        if (m_before != NULL)
            ::SelectObject(m_dc.GetSafeHdc(), m_before);
    }

    CDC& GetDC() { return m_dc; }

    // Answers the width that was drawn over.
    int CopyTo(CDC& dc, CPoint place)
    {
        if (m_before == NULL)
            return 0;
        dc.BitBlt(place.x, place.y, m_size.cx, m_size.cy, &m_dc, 0, 0, SRCCOPY);
        return m_size.cx;
    }

private:
    CIconPicture(const CIconPicture&);
    CIconPicture& operator=(const CIconPicture&);

    CSize m_size;
    CDC m_dc;
    CBitmap m_bitmap;
    HGDIOBJ m_before; // what m_dc had before the bitmap; null when one of them could not be made
};

namespace
{

const COLORREF kGround = 0xFFFFFF;

// 0 by 0 where the handle is no icon.
CSize SizeOfIcon(HICON icon)
{
    CSize size(0, 0);
    GetIconSize(icon, size);
    return size;
}

CSize SizeOfImage(HIMAGELIST list, int index)
{
    int width = 0;
    int height = 0;
    if (index >= 0 && index < ::ImageList_GetImageCount(list))
        ::ImageList_GetIconSize(list, &width, &height);
    return CSize(width, height);
}

// The image of a list looks as the icon that ImageList_GetIcon makes of it (ILD_NORMAL), which need not be made for
// that.
void DrawInto(CDC& dc, CSize size, HIMAGELIST list, ULONG_PTR image)
{
    CBrush ground(kGround);
    const CRect area(CPoint(0, 0), size);
    dc.FillRect(&area, &ground);
    if (list == NULL)
        dc.DrawState(CPoint(0, 0), size, reinterpret_cast<HICON>(image), DST_ICON, static_cast<HBRUSH>(NULL));
    else
        ::ImageList_DrawEx(list, static_cast<int>(image), dc.GetSafeHdc(), 0, 0, 0, 0, CLR_NONE, CLR_NONE,
                           ILD_TRANSPARENT);
}

} // namespace

CIconPainter::CIconPainter(CDC& dc) : m_dc(dc) {}

CIconPainter::~CIconPainter()
{
    for (Pictures::iterator it = m_pictures.begin(); it != m_pictures.end(); ++it)
        delete it->second;
}

int CIconPainter::PaintIcon(HICON icon, CPoint place)
{
    return icon == NULL ? 0 : Paint(Key(static_cast<HIMAGELIST>(NULL), reinterpret_cast<ULONG_PTR>(icon)), place);
}

int CIconPainter::PaintImage(HIMAGELIST list, int index, CPoint place)
{
    return list == NULL ? 0 : Paint(Key(list, static_cast<ULONG_PTR>(index)), place);
}

CIconPicture* CIconPainter::MakePicture(const Key& key) const
{
    const CSize size = key.first == NULL ? SizeOfIcon(reinterpret_cast<HICON>(key.second))
                                         : SizeOfImage(key.first, static_cast<int>(key.second));
    if (size.cx <= 0 || size.cy <= 0)
        return NULL;
    CIconPicture* const picture = new CIconPicture(m_dc, size);
    DrawInto(picture->GetDC(), size, key.first, key.second);
    return picture;
}

int CIconPainter::Paint(const Key& key, CPoint place)
{
    Pictures::iterator found = m_pictures.find(key);
    if (found == m_pictures.end())
        found = m_pictures.insert(std::make_pair(key, MakePicture(key))).first;
    return found->second == NULL ? 0 : found->second->CopyTo(m_dc, place);
}
