#include "tree/TreeItemImages.h"

namespace
{

const int kGrowBy = 8;

} // namespace

CTreeItemImages::CTreeItemImages()
{
    m_arrImages.SetSize(0, kGrowBy);
    m_arrSources.SetSize(0, kGrowBy);
}

CTreeItemImages::CTreeItemImages(const CTreeItemImages& source)
{
    m_arrImages.SetSize(0, kGrowBy);
    m_arrSources.SetSize(0, kGrowBy);
    *this = source;
}

CTreeItemImages& CTreeItemImages::operator=(const CTreeItemImages& source)
{
    if (this != &source)
    {
        m_arrImages.Copy(source.m_arrImages);
        m_arrSources.Copy(source.m_arrSources);
    }
    return *this;
}

void CTreeItemImages::AddIcon(HICON icon)
{
    Add(reinterpret_cast<ULONGLONG>(icon), IMG_ICONHANDLE);
}

void CTreeItemImages::AddImage(int index, unsigned int source)
{
    // An index that is called a handle would be drawn as one.
    Add(static_cast<DWORD>(index), source == IMG_ICONHANDLE ? static_cast<unsigned int>(IMG_TREELIST) : source);
}

int CTreeItemImages::GetCount() const
{
    return static_cast<int>(m_arrImages.GetCount());
}

unsigned int CTreeItemImages::GetSource(int entry) const
{
    return m_arrSources[entry];
}

HICON CTreeItemImages::GetIcon(int entry) const
{
    return GetSource(entry) == IMG_ICONHANDLE ? reinterpret_cast<HICON>(m_arrImages[entry]) : NULL;
}

int CTreeItemImages::GetIndex(int entry) const
{
    return static_cast<int>(static_cast<DWORD>(m_arrImages[entry]));
}

void CTreeItemImages::Add(ULONGLONG image, unsigned int source)
{
    m_arrImages.Add(image);
    m_arrSources.Add(source);
}
