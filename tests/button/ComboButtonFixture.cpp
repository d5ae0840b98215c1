#include "ComboButtonFixture.h"

BEGIN_MESSAGE_MAP(ButtonOwner, CWnd)
    ON_BN_CLICKED(7, &ButtonOwner::OnClicked)
END_MESSAGE_MAP()

const CRect ComboButtonFixture::kPlace(20, 20, 20 + kWidth, 20 + kHeight);

ComboButtonFixture::ComboButtonFixture() : m_owner(new ButtonOwner)
{
    CreateButton();
}

ComboButtonFixture::~ComboButtonFixture()
{
    if (m_button && m_button->m_hWnd != NULL)
        m_button->DestroyWindow();
}

void ComboButtonFixture::CreateButton(DWORD style)
{
    if (m_button && m_button->m_hWnd != NULL)
        m_button->DestroyWindow();
    m_button.reset(new TestComboButton);
    m_button->Create(L"at first", style, kPlace, m_owner.get(), kButtonId);
}

TestItem& ComboButtonFixture::NewItem(const wchar_t* name)
{
    m_items.emplace_back(new TestItem(name));
    return *m_items.back();
}

TestItem& ComboButtonFixture::AddItem(const wchar_t* name)
{
    TestItem& item = NewItem(name);
    m_button->AddItem(&item);
    return item;
}

void ComboButtonFixture::AddItems(int count)
{
    for (int i = 0; i < count; ++i)
        AddItem((L"item " + std::to_wstring(i)).c_str());
}

std::wstring ComboButtonFixture::Text()
{
    CString text;
    m_button->GetWindowText(text);
    return text.GetString();
}

int ComboButtonFixture::DefaultIndex()
{
    int index = -2;
    m_button->GetDefaultItem(index);
    return index;
}

void ComboButtonFixture::Press(CPoint point)
{
    m_button->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
}

void ComboButtonFixture::Release(CPoint point)
{
    m_button->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
}

void ComboButtonFixture::Click(CPoint point)
{
    Press(point);
    Release(point);
}

void ComboButtonFixture::Choose(int index)
{
    m_button->SendMessage(WM_COMMAND, static_cast<WPARAM>(kFirstCommand + index), 0);
}

bool ComboButtonFixture::IsPushed()
{
    return (m_button->GetState() & BST_PUSHED) != 0;
}
