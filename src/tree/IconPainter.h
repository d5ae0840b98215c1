// Draws icons in their own size on a white ground, for the time of one painting.
//
// Every icon and image is drawn once into a picture of its own, whose copies then stand wherever it is wanted: a copy
// takes a small part of the time that the drawing of an icon takes. Icons and lists stay the caller's and must not
// change meanwhile.
#pragma once

#include <map>
#include <utility>

#include <afxwin.h>
#include <afxcmn.h>

class CIconPicture;

class CIconPainter
{
public:
    explicit CIconPainter(CDC& dc);
    ~CIconPainter();

    // Both answer the width in pixels that was drawn over; 0 where there is no such icon, and then nothing is drawn.
    int PaintIcon(HICON icon, CPoint place);
    int PaintImage(HIMAGELIST list, int index, CPoint place);

private:
    CIconPainter(const CIconPainter&);
    CIconPainter& operator=(const CIconPainter&);

    // The list, null for a handle, and the index or the handle.
    typedef std::pair<HIMAGELIST, ULONG_PTR> Key;
    typedef std::map<Key, CIconPicture*> Pictures; // owned; null where there is nothing to draw

    CIconPicture* MakePicture(const Key& key) const;
    int Paint(const Key& key, CPoint place);

    CDC& m_dc;
    Pictures m_pictures;
};
