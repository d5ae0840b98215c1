#include "dialog/CheckMsgBlock.h"

#include <wchar.h>

namespace
{

size_t LengthOfBlock(const CStringArray& texts)
{
    size_t length = 1;
    for (INT_PTR i = 0; i < texts.GetSize(); ++i)
        length += static_cast<size_t>(texts[i].GetLength()) + 1;
    return length;
}

} // namespace

CCheckMsgBlock::CCheckMsgBlock(const CStringArray& texts) : m_block(new wchar_t[LengthOfBlock(texts)])
{
    wchar_t* next = m_block;
    for (INT_PTR i = 0; i < texts.GetSize(); ++i)
    {
        const CString& text = texts[i];
        const size_t length = static_cast<size_t>(text.GetLength()) + 1;
        wmemcpy(next, text, length);
        next += length;
    }
    *next = L'\0';
}

wchar_t* CCheckMsgBlock::Release()
{
    wchar_t* const block = m_block;
    m_block = NULL;
    return block;
}

void CCheckMsgBlock::Unpack(CStringArray& texts) const
{
    texts.RemoveAll();
    for (const wchar_t* text = m_block; text != NULL && *text != L'\0'; text += wcslen(text) + 1)
        texts.Add(text);
}
