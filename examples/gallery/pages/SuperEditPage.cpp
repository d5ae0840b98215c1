#include "SuperEditPage.h"

#include "../GalleryIds.h"

const wchar_t CSuperEditPage::Description[] =
    L"只接受指定字符的编辑框，随输入校验：有效为白色，未完成或超出类型范围为"
    L"黄色，错误为红色。"
    L"有效性改变时通知父窗口。";

namespace
{

const wchar_t kCustomCharacters[] = L"ABC123";

// By row.
const wchar_t* const kTexts[] = {
    L"A1B2", L"轮廓线 (1)", L"Layer 12", L"Layer_1", L"5000000000", L"-",
    L"1FF",  L"789",        L"1010",     L"1.5e-3",  L"250"};

// By status code.
const wchar_t* const kStatusNames[] = {
    L"不能为空",   L"空",         L"有效",     L"字符错误",
    L"未完成",     L"太短",       L"太长",     L"超出类型",
    L"低于最小值", L"高于最大值", L"自定义 1", L"自定义 2"};

const wchar_t* RangeText(const CSuperEdit& edit)
{
    if (!edit.GetEnableRangeCheck())
        return L"不检查";
    const int side = edit.CheckRange();
    return side < 0 ? L"低于" : side > 0 ? L"高于" : L"范围内";
}

} // namespace

BEGIN_MESSAGE_MAP(CSuperEditPage, CGalleryPage)
    ON_CONTROL_RANGE(EN_CHANGE, IDC_SUPER_EDIT_TEXT,
                     IDC_SUPER_EDIT_TEXT + LIMITS,
                     &CSuperEditPage::OnEditChange)
    // [show]
    ON_MESSAGE(WM_VVE_VALIDITY, &CSuperEditPage::OnValidity) // 有效性改变时
    // [end]
END_MESSAGE_MAP()

CSuperEditPage::CSuperEditPage() : CGalleryPage(IDD_SUPER_EDIT_PAGE) {}

void CSuperEditPage::DoDataExchange(CDataExchange* exchange)
{
    CGalleryPage::DoDataExchange(exchange);
    // [show]
    // 取代模板中的编辑框
    for (int row = 0; row < ROWS; ++row)
        DDX_Control(exchange, IDC_SUPER_EDIT_TEXT + row, m_edits[row]);
    // [end]
}

BOOL CSuperEditPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    // [show]
    // 每行一种字符集
    for (int row = 0; row < SETS; ++row)
        m_edits[row].SetValidCharSet(static_cast<VVEset>(row),
                                     kCustomCharacters);
    // 默认值、最小值、最大值；不允许为空，悬停时提示范围
    m_edits[LIMITS].SetInputFloat(2.5, 0, 100, FALSE, TRUE, NULL);
    // [end]
    for (int row = 0; row < ROWS; ++row)
    {
        ShowVerdict(row); // of the empty text
        m_edits[row].SetWindowText(kTexts[row]);
    }
    return TRUE;
}

void CSuperEditPage::OnEditChange(UINT id)
{
    ShowVerdict(id - IDC_SUPER_EDIT_TEXT);
}

// [show]
LRESULT CSuperEditPage::OnValidity(WPARAM wParam, LPARAM isValid)
{
    const VVENotice& notice = *reinterpret_cast<const VVENotice*>(wParam);
    CString text;
    text.Format(L"%d %s", notice.status,
                isValid ? L"有效" : kStatusNames[notice.status]);
    SetDlgItemText(
        notice.controlId - IDC_SUPER_EDIT_TEXT + IDC_SUPER_EDIT_NOTICE, text);
    return 0;
}
// [end]

void CSuperEditPage::ShowVerdict(int row)
{
    m_edits[row].DoValidation(
        0); // what is hidden is not painted, and not validated
    SetDlgItemText(IDC_SUPER_EDIT_VERDICT + row,
                   m_edits[row].IsValid() ? L"有效" : L"无效");
    SetDlgItemText(IDC_SUPER_EDIT_RANGE + row, RangeText(m_edits[row]));
}
