#include "base/ImageSize.h"

namespace
{

// Guard: the two bitmaps that are made for whoever asks what an icon consists of.
class CIconParts
{
public:
    explicit CIconParts(HICON icon) : m_found(icon != NULL && ::GetIconInfo(icon, &m_info)) {}

    ~CIconParts()
    {
        if (!m_found)
            return;
        if (m_info.hbmColor != NULL)
            ::DeleteObject(m_info.hbmColor);
        ::DeleteObject(m_info.hbmMask);
    }

    bool GetSize(CSize& size) const
    {
        if (!m_found)
            return false;
        if (m_info.hbmColor != NULL)
            return GetBitmapSize(m_info.hbmColor, size);
        // An icon without colours has its two masks in one bitmap, one below the other.
        if (!GetBitmapSize(m_info.hbmMask, size))
            return false;
        size.cy /= 2;
        return true;
    }

private:
    CIconParts(const CIconParts&);
    CIconParts& operator=(const CIconParts&);

    ICONINFO m_info;
    bool m_found;
};

} // namespace

bool GetIconSize(HICON icon, CSize& size)
{
    return CIconParts(icon).GetSize(size);
}

bool GetBitmapSize(HBITMAP bitmap, CSize& size)
{
    BITMAP info;
    if (bitmap == NULL || ::GetObjectType(bitmap) != OBJ_BITMAP || ::GetObject(bitmap, sizeof(info), &info) == 0)
        return false;
    size = CSize(info.bmWidth, info.bmHeight);
    return true;
}
