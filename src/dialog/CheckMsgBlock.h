// The texts of the check window as one block of memory, which travels to the window's thread in a message.
//
// A block holds the texts one after another, each with its closing NUL, and one more NUL at the end. An empty text
// therefore ends the list: it reads as that last NUL.
#pragma once

#include <afxwin.h>

// Owns a block until it is released.
class CCheckMsgBlock
{
public:
    // Packs the texts.
    explicit CCheckMsgBlock(const CStringArray& texts);

    // Takes the block over; null is an owner of nothing.
    explicit CCheckMsgBlock(wchar_t* block) : m_block(block) {}

    ~CCheckMsgBlock() { delete[] m_block; }

    const wchar_t* Get() const { return m_block; }

    // Hands the block over to the caller.
    wchar_t* Release();

    // The texts of the block; none of an owner of nothing.
    void Unpack(CStringArray& texts) const;

private:
    CCheckMsgBlock(const CCheckMsgBlock&);
    CCheckMsgBlock& operator=(const CCheckMsgBlock&);

    wchar_t* m_block;
};
