// The screen's device context for the time of a block.
#pragma once

#include "afx/core/Api.h"

class CScreenDC
{
public:
    CScreenDC() : m_dc(::GetDC(NULL)) {}
    ~CScreenDC() { ::ReleaseDC(NULL, m_dc); }
    CScreenDC(const CScreenDC&) = delete;
    CScreenDC& operator=(const CScreenDC&) = delete;

    HDC Get() const { return m_dc; }

private:
    HDC m_dc;
};
