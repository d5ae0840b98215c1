#include "edit/SuperEdit.h"

#include <algorithm>

#include "base/WindowWatch.h"
#include "edit/CharTable.h"
#include "edit/EditBrush.h"
#include "edit/EditValidation.h"
#include "edit/TypeRange.h"

namespace
{

const int kLengthLimit = 65535;
const double kDefaultPrecision = 0.0001;
const UINT kAnswerMilliseconds = 1;

const wchar_t kFailureCaption[] = L"错误";

// Commands of a context menu that an owner may show for the edit.
enum
{
    COMMAND_UNDO = 32773,
    COMMAND_CUT = 32774,
    COMMAND_COPY = 32775,
    COMMAND_PASTE = 32776,
    COMMAND_CLEAR = 32777,
    COMMAND_SELECT_ALL = 32778
};

} // namespace

IMPLEMENT_DYNAMIC(CSuperEdit, CEdit)

BEGIN_MESSAGE_MAP(CSuperEdit, CEdit)
    ON_WM_CTLCOLOR_REFLECT()
    ON_CONTROL_REFLECT_EX(EN_CHANGE, &CSuperEdit::OnChange)
    ON_WM_CHAR()
    ON_WM_KEYDOWN()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_MOUSEMOVE()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

CSuperEdit::CSuperEdit()
    : m_emptyBrush(DefaultColour(BRUSH_EMPTY)), m_validBrush(DefaultColour(BRUSH_VALID)),
      m_errorBrush(DefaultColour(BRUSH_ERROR)), m_warningBrush(DefaultColour(BRUSH_WARNING)),
      m_customBrush1(DefaultColour(BRUSH_CUSTOM1)), m_customBrush2(DefaultColour(BRUSH_CUSTOM2)), m_valid(0),
      m_syntaxValid(0), m_lengthValid(0), m_valueValid(1), m_customAnswered(0), m_status(VVB_EMPTY), m_anyChar(0),
      m_minLength(0), m_maxLength(kLengthLimit), m_validSet(VVE_ALL), m_customValidation(0), m_disableValidation(0),
      m_lengthCheck(0), m_emptyValid(1), m_allCharEntry(0), m_rangeCheck(1), m_valueCheck(0), m_default(0),
      m_minimum(0), m_maximum(0), m_precision(kDefaultPrecision), m_tipEnabled(0), m_tipTextSet(0), m_tipMade(0),
      m_toolDue(0)
{
    m_customErrorIsValid[0] = 0;
    m_customErrorIsValid[1] = 0;
    SetValidCharSet(VVE_ALL, NULL);
}

CSuperEdit::~CSuperEdit() {}

void CSuperEdit::SetValidCharSet(VVEset set, const wchar_t* chars)
{
    const wchar_t* const own = set == VVE_CUSTOM ? chars : CharsOfSet(set);
    SetValidChars(own);
    if (set == VVE_CUSTOM && chars == NULL)
        return;
    m_anyChar = own == NULL;
    m_rangeCheck = IsNumericSet(set);
    m_validSet = set;
}

void CSuperEdit::SetValidChars(const wchar_t* chars)
{
    m_anyChar = 0;
    ClearChars(m_allowedChars);
    MarkChars(m_allowedChars, chars);
}

void CSuperEdit::GetValidChars(CString& chars) const
{
    chars = MarkedChars(m_allowedChars);
}

void CSuperEdit::SetTextLenMinMax(int min, int max)
{
    m_maxLength = max < 0 || max > kLengthLimit ? kLengthLimit : max;
    m_minLength = min < 0 || min > kLengthLimit ? 0 : min;
    if (m_minLength > m_maxLength)
        std::swap(m_minLength, m_maxLength);
    if (GetSafeHwnd() != NULL)
        LimitText(m_maxLength);
}

int CSuperEdit::SetBrushColour(VVEbrush kind, COLORREF colour)
{
    CBrush* const brush = BrushOf(BrushOfKind(kind));
    if (brush != NULL)
    {
        brush->DeleteObject();
        brush->CreateSolidBrush(colour);
    }
    return 0;
}

COLORREF CSuperEdit::GetBrushColour(VVEbrush kind) const
{
    const EditBrush brush = BrushOfKind(kind);
    // The second custom colour has never been readable, and its owners rely on what they read instead.
    const EditBrush read = brush == BRUSH_CUSTOM2 ? BRUSH_CUSTOM1 : brush;
    CBrush* const object = const_cast<CSuperEdit*>(this)->BrushOf(read);
    LOGBRUSH data;
    if (object == NULL || object->GetSafeHandle() == NULL || object->GetLogBrush(&data) == 0)
        return DefaultColour(brush);
    return data.lbColor;
}

int CSuperEdit::IsValid() const
{
    return m_disableValidation ? 1 : m_valid;
}

int CSuperEdit::IsValidSyntax() const
{
    return m_disableValidation ? 1 : m_syntaxValid;
}

int CSuperEdit::IsValidLength() const
{
    return m_disableValidation || m_emptyValid || !m_lengthCheck ? 1 : m_lengthValid;
}

int CSuperEdit::IsValidValue() const
{
    return m_disableValidation || !m_valueCheck ? 1 : m_valueValid;
}

void CSuperEdit::DoValidation(int redraw)
{
    if (GetSafeHwnd() == NULL || !redraw)
    {
        Validate();
        return;
    }
    Invalidate();
    UpdateWindow();
}

CBrush* CSuperEdit::Validate()
{
    if (m_validSet == VVE_FLOAT && !m_customValidation)
        return CheckFloat();
    const EditRules rules = Rules();
    const CString text = Text();
    CEditValidation validation(rules, text, m_status);
    if (m_customValidation && !m_disableValidation)
    {
        const CWindowWatch watch(*this);
        const EditAnswer answer = AskParent(text);
        if (watch.IsGone())
            return NULL;
        m_customAnswered = answer.isAnswered;
        validation.TakeAnswer(answer);
    }
    else
    {
        validation.JudgeCharacters();
    }
    return Finish(validation);
}

CBrush* CSuperEdit::CheckAlphaNum()
{
    return Validate();
}

CBrush* CSuperEdit::CheckDecimal()
{
    return Validate();
}

CBrush* CSuperEdit::CheckAlpha()
{
    return Validate();
}

CBrush* CSuperEdit::CheckHexadecimal()
{
    return Validate();
}

CBrush* CSuperEdit::CheckOctal()
{
    return Validate();
}

CBrush* CSuperEdit::CheckBinary()
{
    return Validate();
}

CBrush* CSuperEdit::CheckFloat()
{
    const EditRules rules = Rules();
    CEditValidation validation(rules, Text(), m_status);
    validation.JudgeFloat();
    return Finish(validation);
}

int CSuperEdit::CheckLen() const
{
    return CheckLength(Rules(), Text().GetLength());
}

int CSuperEdit::CheckLen(const wchar_t* text) const
{
    return CheckLength(Rules(), CString(text).GetLength());
}

int CSuperEdit::CheckRange(VVEset set, const wchar_t* text)
{
    return CheckTypeRange(set, text);
}

int CSuperEdit::CheckRange(VVEset set, double value)
{
    return CheckTypeRange(set, value);
}

int CSuperEdit::CheckRange(const wchar_t* text) const
{
    return CheckTypeRange(m_validSet, text);
}

int CSuperEdit::CheckRange() const
{
    return CheckTypeRange(m_validSet, Text());
}

void CSuperEdit::SelectAll()
{
    if (GetSafeHwnd() == NULL)
        return; // without a window the focus would be taken from every other one
    const CWindowWatch watch(*this);
    SetFocus();
    if (!watch.IsGone())
        SetSel(0, -1);
}

int CSuperEdit::CheckValueOutRange(double value) const
{
    return CheckLimits(Rules(), value);
}

int CSuperEdit::CheckValueOutRange()
{
    const int result = CheckLimits(Rules(), Text());
    m_valueValid = result == 0;
    return result;
}

BOOL CSuperEdit::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const CWindowWatch watch(*this);
    switch (LOWORD(wParam))
    {
    case COMMAND_UNDO:
        Undo();
        break;
    case COMMAND_CUT:
        Cut();
        break;
    case COMMAND_COPY:
        Copy();
        break;
    case COMMAND_PASTE:
        Paste();
        break;
    case COMMAND_CLEAR:
        Clear();
        break;
    case COMMAND_SELECT_ALL:
        SelectAll();
        break;
    }
    return watch.IsGone() ? TRUE : CEdit::OnCommand(wParam, lParam);
}

HBRUSH CSuperEdit::CtlColor(CDC* dc, UINT)
{
    if (m_disableValidation || !IsWindowEnabled() || (GetStyle() & ES_READONLY) != 0)
        return NULL;
    CBrush* const brush = Validate();
    LOGBRUSH data;
    if (brush == NULL)
        return NULL;
    if (brush->GetLogBrush(&data) != 0)
        dc->SetBkColor(data.lbColor);
    return *brush;
}

// FALSE: the parent sees the change too.
BOOL CSuperEdit::OnChange()
{
    DoValidation(TRUE);
    return FALSE;
}

void CSuperEdit::OnChar(UINT character, UINT repeat, UINT flags)
{
    if (!m_disableValidation && !m_anyChar && !m_allCharEntry && !IsKeyTaken(m_allowedChars, character))
    {
        ::MessageBeep(0);
        return;
    }
    CEdit::OnChar(character, repeat, flags);
}

void CSuperEdit::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    CEdit::OnKeyDown(key, repeat, flags);
}

void CSuperEdit::OnSetFocus(CWnd* oldWindow)
{
    const CWindowWatch watch(*this);
    CEdit::OnSetFocus(oldWindow);
    if (watch.IsGone())
        return;
    if ((!m_tipTextSet || m_tipText.IsEmpty()) && m_tipEnabled && m_valueCheck)
        ShowLimitsInTip();
    ShowTipWithFocus();
}

void CSuperEdit::OnKillFocus(CWnd* newWindow)
{
    const CWindowWatch watch(*this);
    CEdit::OnKillFocus(newWindow);
    // A parent that edits in place destroys the edit, and its object with it, when it hears of the lost focus.
    if (watch.IsGone())
        return;
    if (m_valueCheck && !m_disableValidation && !m_valid)
        SetWindowValue(m_default);
}

void CSuperEdit::OnMouseMove(UINT flags, CPoint point)
{
    CEdit::OnMouseMove(flags, point);
}

// The object may get another window later, which gets a tip of its own.
void CSuperEdit::OnDestroy()
{
    ForgetTip();
    CEdit::OnDestroy();
}

// Empty while there is no window.
CString CSuperEdit::Text() const
{
    CString text;
    if (GetSafeHwnd() != NULL)
        GetWindowText(text);
    return text;
}

EditRules CSuperEdit::Rules() const
{
    EditRules rules;
    rules.set = m_validSet;
    rules.allowed = &m_allowedChars;
    rules.anyChar = m_anyChar != 0;
    rules.custom = m_customValidation != 0;
    rules.customAnswered = m_customAnswered != 0;
    for (int i = 0; i < CUSTOM_VERDICTS; ++i)
        rules.customErrorIsValid[i] = m_customErrorIsValid[i] != 0;
    rules.isDisabled = m_disableValidation != 0;
    rules.checkLength = m_lengthCheck != 0;
    rules.minLength = m_minLength;
    rules.maxLength = m_maxLength;
    rules.emptyValid = m_emptyValid != 0;
    rules.checkRange = m_rangeCheck != 0;
    rules.checkValue = m_valueCheck != 0;
    rules.minimum = m_minimum;
    rules.maximum = m_maximum;
    rules.precision = m_precision;
    return rules;
}

EditAnswer CSuperEdit::AskParent(const CString& text) const
{
    VVENotice notice = Notice();
    DWORD_PTR number = 0;
    if (::SendMessageTimeout(::GetParent(GetSafeHwnd()), WM_VVE_VALIDATE, reinterpret_cast<WPARAM>(&notice),
                             reinterpret_cast<LPARAM>(text.GetString()), SMTO_BLOCK, kAnswerMilliseconds, &number) == 0)
        return NoAnswer();
    return AnswerOfParent(static_cast<LRESULT>(number));
}

VVENotice CSuperEdit::Notice() const
{
    VVENotice notice;
    notice.window = GetSafeHwnd();
    notice.controlId = notice.window != NULL ? GetDlgCtrlID() : 0;
    notice.status = m_status;
    return notice;
}

// Null when the parent destroyed the window while it was told.
CBrush* CSuperEdit::Finish(CEditValidation& validation)
{
    const CWindowWatch watch(*this);
    const EditVerdict& verdict = validation.Finish();
    m_status = verdict.status;
    m_syntaxValid = verdict.syntaxValid;
    m_lengthValid = verdict.lengthValid;
    m_valueValid = verdict.valueValid;
    SetValid(verdict.IsValid());
    return watch.IsGone() ? NULL : BrushOf(verdict.brush);
}

void CSuperEdit::SetValid(int valid)
{
    const bool isNews = valid != m_valid;
    m_valid = valid;
    if (!isNews || GetSafeHwnd() == NULL)
        return;
    VVENotice notice = Notice();
    DWORD_PTR unused = 0;
    ::SendMessageTimeout(::GetParent(m_hWnd), WM_VVE_VALIDITY, reinterpret_cast<WPARAM>(&notice), valid, SMTO_BLOCK,
                         kAnswerMilliseconds, &unused);
}

// Null for what is no brush.
CBrush* CSuperEdit::BrushOf(int brush)
{
    switch (brush)
    {
    case BRUSH_EMPTY:
        return &m_emptyBrush;
    case BRUSH_VALID:
        return &m_validBrush;
    case BRUSH_ERROR:
        return &m_errorBrush;
    case BRUSH_WARNING:
        return &m_warningBrush;
    case BRUSH_CUSTOM1:
        return &m_customBrush1;
    case BRUSH_CUSTOM2:
        return &m_customBrush2;
    default:
        return NULL;
    }
}

void CSuperEdit::ReportFailure(const wchar_t* text)
{
    MessageBox(text, kFailureCaption, MB_OK | MB_ICONERROR);
}
