#include "tree/IconPainter.h"

#include "base/ImageSize.h"

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

} // namespace

CIconPainter::CIconPainter(CDC& dc) : m_dc(dc), m_before(NULL), m_selected(NULL)
{
    m_memory.CreateCompatibleDC(&dc);
}

CIconPainter::~CIconPainter()
{
    if (m_before != NULL)
        ::SelectObject(m_memory.m_hDC, m_before);
    for (std::map<Key, Picture>::iterator it = m_pictures.begin(); it != m_pictures.end(); ++it)
    {
        if (it->second.bitmap != NULL)
            ::DeleteObject(it->second.bitmap);
    }
}

int CIconPainter::PaintIcon(HICON icon, CPoint place)
{
    return icon == NULL ? 0 : Paint(Key(static_cast<HIMAGELIST>(NULL), reinterpret_cast<ULONG_PTR>(icon)), place);
}

int CIconPainter::PaintImage(HIMAGELIST list, int index, CPoint place)
{
    return list == NULL ? 0 : Paint(Key(list, static_cast<ULONG_PTR>(index)), place);
}

CIconPainter::Picture CIconPainter::MakePicture(const Key& key)
{
    Picture picture = {NULL, key.first == NULL ? SizeOfIcon(reinterpret_cast<HICON>(key.second))
                                               : SizeOfImage(key.first, static_cast<int>(key.second))};
    if (picture.size.cx <= 0 || picture.size.cy <= 0)
        return picture;
    picture.bitmap = ::CreateCompatibleBitmap(m_dc.m_hDC, picture.size.cx, picture.size.cy);
    if (picture.bitmap == NULL)
        return picture;
    Select(picture.bitmap);
    DrawInto(key, picture.size);
    return picture;
}

// A picture stays selected until another one is wanted: neighbours often show the same.
void CIconPainter::Select(HBITMAP bitmap)
{
    if (bitmap == m_selected)
        return;
    const HGDIOBJ before = ::SelectObject(m_memory.m_hDC, bitmap);
    if (m_selected == NULL)
        m_before = before;
    m_selected = bitmap;
}

// The image of a list looks as the icon that ImageList_GetIcon makes of it (ILD_NORMAL), which need not be made for
// that.
void CIconPainter::DrawInto(const Key& key, CSize size)
{
    CBrush ground(kGround);
    const CRect area(CPoint(0, 0), size);
    m_memory.FillRect(&area, &ground);
    if (key.first == NULL)
        m_memory.DrawState(CPoint(0, 0), size, reinterpret_cast<HICON>(key.second), DST_ICON,
                           static_cast<HBRUSH>(NULL));
    else
        ::ImageList_DrawEx(key.first, static_cast<int>(key.second), m_memory.m_hDC, 0, 0, 0, 0, CLR_NONE, CLR_NONE,
                           ILD_TRANSPARENT);
}

int CIconPainter::Paint(const Key& key, CPoint place)
{
    std::map<Key, Picture>::iterator found = m_pictures.find(key);
    if (found == m_pictures.end())
        found = m_pictures.insert(std::make_pair(key, MakePicture(key))).first;
    const Picture& picture = found->second;
    if (picture.bitmap == NULL)
        return 0;
    Select(picture.bitmap);
    ::BitBlt(m_dc.m_hDC, place.x, place.y, picture.size.cx, picture.size.cy, m_memory.m_hDC, 0, 0, SRCCOPY);
    return picture.size.cx;
}
