// CSuperEdit: a single-line edit that takes only certain characters, validates its text after every change, and shows
// the verdict as the colour of its background.
//
// In a dialog, as a member that takes the place of a plain edit:
//
//     CSuperEdit m_width;
//     DDX_Control(exchange, IDC_WIDTH, m_width);
//     m_width.SetInputFloat(2.5, 0.0, 100.0, FALSE, TRUE, NULL);     // default, limits, with a tip of the range
//     ...
//     if (m_width.IsValid())
//         width = m_width.GetWindowValue();
//
// Colours (SetBrushColour): red for wrong input, yellow for unfinished input and for what does not fit, the window's
// colour for valid and for empty text.
//
// The parent gets EN_CHANGE as from any edit; WM_VVE_VALIDITY when the text becomes valid or invalid; with
// SetCustomValidation WM_VVE_VALIDATE, to judge the text itself (SuperEditTypes.h).
//
// The parent may destroy the window in any of these, and delete the object with it.
//
// A menu of the owner may send it the commands 32773 undo, 32774 cut, 32775 copy, 32776 paste, 32777 clear and 32778
// select all (WM_COMMAND).
//
// The text is validated while it is painted: a control that is hidden, disabled or read-only keeps its last verdict
// until DoValidation(0).
//
// Flags are 0 or 1. Texts are copied; a null text is the empty one unless a function says otherwise.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>

#include "base/ZnktApi.h"
#include "edit/SuperEditTypes.h"

struct EditAnswer;
struct EditRules;
struct EditVerdict;
struct ValueRules;
class CEditValidation;

class ZNKT_API CSuperEdit : public CEdit
{
    DECLARE_DYNAMIC(CSuperEdit)

public:
    CSuperEdit();
    virtual ~CSuperEdit();

    // Numeric input in one call: characters, limits, default. `emptyValid`: an empty text is allowed. `tip`: the text
    // of the hover tip; null shows the limits. The value that stands in the control stays when it lies within the
    // limits. The short forms take 0..1e30, -100000..100000 and 0..100000.
    void SetInputFloat(double def, double min, double max, int emptyValid, int enableTip, const wchar_t* tip);
    void SetInputSInt(int def, int min, int max, int emptyValid, int enableTip, const wchar_t* tip);
    void SetInputInt(int def, int min, int max, int emptyValid, int enableTip, const wchar_t* tip);
    void SetInputFloatSim(double def, int emptyValid, int enableTip, const wchar_t* tip);
    void SetInputSIntSim(int def, int emptyValid, int enableTip, const wchar_t* tip);
    void SetInputIntSim(int def, int emptyValid, int enableTip, const wchar_t* tip);

    // The characters. SetValidCharSet brings the range check with it; `chars` are those of VVE_CUSTOM. With null it
    // only forgets the characters. SetValidChars leaves set and range check alone, SetValidSet the characters.
    void SetValidCharSet(VVEset set, const wchar_t* chars);
    void SetValidChars(const wchar_t* chars);
    void GetValidChars(CString& chars) const;
    void SetValidSet(VVEset set);
    VVEset GetValidSet() const;

    // Lengths in characters, from 0 to 65535; what lies outside becomes the nearest sensible bound, a minimum above the
    // maximum trades places with it. The maximum limits what can be typed into a window that is there already.
    void SetTextLenMinMax(int min, int max);
    int GetTextMinLen() const;
    int GetTextMaxLen() const;

    // Default and limits of the value. A minimum above the maximum trades places with it, a default outside becomes the
    // minimum. A text outside the limits, and an empty one that is not allowed, is replaced by the default.
    // GetAllValue answers 0, and nothing else, while values are not checked.
    void SetAllValue(double def, double min, double max);
    int GetAllValue(double& def, double& min, double& max) const;
    // How far a value may lie outside its limits.
    void SetPrecValue(double precision);
    double PrecValue() const;

    // The value of the text in the radix of the set: 1 on success, 0 on failure (the value may be written all the
    // same). Negative integers fail while the range is checked. Without an argument: the value, or 0 on failure.
    int GetWindowValue(double& value) const;
    int GetWindowValue(long& value) const;
    int GetWindowValue(unsigned long& value) const;
    double GetWindowValue() const;

    // Writes a value in the radix of the set: 1 when the new text is acceptable, else 0.
    int SetWindowValue(double value);
    int SetWindowValue(long value);
    int SetWindowValue(unsigned long value);

    // What is checked.
    void SetEnableLengthCheck(int enable);
    int GetEnableLengthCheck() const;
    void SetEnableRangeCheck(int enable);
    int GetEnableRangeCheck() const;
    void SetEableValueCheck(int enable);
    int GetEableValueCheck() const;
    void SetEmptyValid(int valid);
    int GetEmptyValid() const;
    // Every key goes in; wrong characters are still shown as wrong.
    void SetAllCharEntry(int enable);
    int GetAllCharEntry() const;
    // No filter, no colours, every text is valid.
    void SetDisableValidation(int disable);
    int GetDisableValidation() const;

    // The parent judges the text (WM_VVE_VALIDATE). `which`: 1 or 2, for VVB_CUSTOM1 and VVB_CUSTOM2: whether this
    // verdict counts as valid. The getter answers 0, and leaves `valid` alone, for any other number.
    void SetCustomValidation(int enable);
    int GetCustomValidation() const;
    void SetCustomErrorIsValid(int which, int valid);
    int GetCustomErrorIsValid(int which, int& valid) const;

    // Several kinds share a brush and change together. VVB_CUSTOM2 can be set, but reads as VVB_CUSTOM1.
    int SetBrushColour(VVEbrush kind, COLORREF colour);
    COLORREF GetBrushColour(VVEbrush kind) const;

    // The hover tip, one for the whole control from its first focus on, shown while it is enabled. Null: a tip of the
    // limits, while values are checked.
    void SetTipText(const wchar_t* text);
    CString GetTipText() const;
    void SetEableTip(int enable);
    int GetEableTip() const;

    // Verdicts of the last validation. What is not checked is valid; so is the length while empty texts are allowed.
    int IsValid() const;
    int IsValidSyntax() const;
    int IsValidLength() const;
    int IsValidValue() const;

    // Validates now: with `redraw` by repainting, else, and without a window, directly.
    void DoValidation(int redraw);

    // Validation by hand. The brush belongs to the control; null when the parent destroyed the window meanwhile.
    CBrush* Validate();
    CBrush* CheckAlphaNum();
    CBrush* CheckDecimal();
    CBrush* CheckAlpha();
    CBrush* CheckHexadecimal();
    CBrush* CheckOctal();
    CBrush* CheckBinary();
    CBrush* CheckFloat();
    // -1 too short, 0 right or not checked, 1 too long.
    int CheckLen() const;
    int CheckLen(const wchar_t* text) const;

    // The range of the set's type: -1 below, 0 inside, 1 above.
    static int CheckRange(VVEset set, const wchar_t* text);
    static int CheckRange(VVEset set, double value);
    int CheckRange(const wchar_t* text) const;
    int CheckRange() const;

    // Sets the focus, selects everything and shows the caret.
    void SelectAll();

    virtual BOOL PreTranslateMessage(MSG* message);

protected:
    // The limits: -1 below, 0 inside or not checked, 2 above. The second keeps the verdict for IsValidValue.
    int CheckValueOutRange(double value) const;
    int CheckValueOutRange();

    // Puts the text of a value into the window. What it throws, SetWindowValue(double) shows to the user.
    virtual void ShowText(const wchar_t* text);

    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);

    afx_msg HBRUSH CtlColor(CDC* dc, UINT kind);
    afx_msg BOOL OnChange();
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSetFocus(CWnd* oldWindow);
    afx_msg void OnKillFocus(CWnd* newWindow);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    enum
    {
        CUSTOM_VERDICTS = 2,
        CODES = 255
    };

    // Validation.
    CString Text() const;
    EditRules Rules() const;
    EditAnswer AskParent(const CString& text) const;
    VVENotice Notice() const;
    CBrush* Finish(CEditValidation& validation);
    void SetValid(int valid);
    CBrush* BrushOf(int brush);

    // Values.
    ValueRules ReadingRules() const;
    bool SetUpNumber(VVEset set, double def, double min, double max, int emptyValid);
    void ShowFloat(const CString& text);
    void ReportFailure(const wchar_t* text);

    // Tip.
    void ShowLimitsInTip();
    void MakeTip();
    void ShowTipWithFocus();
    void ShowTip();
    void AddTip();
    void RemoveTip();
    void ForgetTip();

    CBrush m_emptyBrush;
    CBrush m_validBrush;
    CBrush m_errorBrush;
    CBrush m_warningBrush;
    CBrush m_customBrush1;
    CBrush m_customBrush2;
    int m_valid;
    int m_syntaxValid;
    int m_lengthValid;
    int m_valueValid;
    int m_customAnswered;
    int m_status; // VVEbrush of the last validation
    int m_allowedChars[CODES];
    int m_anyChar;
    int m_minLength;
    int m_maxLength;
    VVEset m_validSet;
    int m_customValidation;
    int m_disableValidation;
    int m_lengthCheck;
    int m_emptyValid;
    int m_allCharEntry;
    int m_customErrorIsValid[CUSTOM_VERDICTS];
    int m_rangeCheck;
    int m_valueCheck;
    double m_default;
    double m_minimum;
    double m_maximum;
    double m_precision;
    CString m_tipText;
    int m_tipEnabled;
    int m_tipTextSet; // the owner gave a text
    int m_tipMade;
    int m_toolDue; // the focus came before the tip was made
    CToolTipCtrl m_toolTip;
};
