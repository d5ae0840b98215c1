#include "EditFixture.h"

namespace
{

const int kOtherId = 43;
const CRect kParentRect(40, 40, 340, 140);
const CRect kEditRect(10, 10, 210, 34);
const CRect kOtherRect(10, 44, 210, 68);

} // namespace

BEGIN_MESSAGE_MAP(EditParent, CWnd)
    ON_EN_CHANGE(EditParent::kEditId, &EditParent::OnEditChange)
    ON_MESSAGE(WM_VVE_VALIDATE, &EditParent::OnValidate)
    ON_MESSAGE(WM_VVE_VALIDITY, &EditParent::OnValidity)
END_MESSAGE_MAP()

EditFixture::EditFixture()
{
    const LPCTSTR name = AfxRegisterWndClass(0, NULL, reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    m_parent.CreateEx(0, name, L"edit", WS_OVERLAPPEDWINDOW | WS_VISIBLE, kParentRect, NULL, 0);
    m_edit.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL, kEditRect, &m_parent, EditParent::kEditId);
    m_other.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, kOtherRect, &m_parent, kOtherId);
    m_parent.UpdateWindow();
}

COLORREF EditFixture::Colour()
{
    CClientDC dc(&m_edit);
    const LRESULT brush = m_parent.SendMessage(WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc.m_hDC),
                                               reinterpret_cast<LPARAM>(m_edit.m_hWnd));
    LOGBRUSH data = {};
    ::GetObjectW(reinterpret_cast<HGDIOBJ>(brush), sizeof(data), &data);
    EXPECT_EQ(data.lbColor, dc.GetBkColor());
    return data.lbColor;
}

int EditFixture::Status()
{
    const LRESULT answer = m_parent.answer;
    const int custom = m_edit.GetCustomValidation();
    m_edit.SetCustomValidation(1);
    m_parent.answer = 0;
    m_edit.DoValidation(0);
    m_parent.answer = answer;
    m_edit.SetCustomValidation(custom);
    return m_parent.askedStatus.back();
}
