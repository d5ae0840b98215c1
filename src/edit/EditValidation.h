// The judgement on a text: how characters, syntax, range, length and limits add up to one verdict.
//
//     CEditValidation validation(rules, text, status);
//     validation.JudgeCharacters();                 // or JudgeFloat(), or TakeAnswer() when the parent judges
//     const EditVerdict& verdict = validation.Finish();
#pragma once

#include <afxwin.h>

#include "edit/CharTable.h"
#include "edit/EditBrush.h"

// What the control is asked to check. Borrowed for the time of a validation.
struct EditRules
{
    VVEset set;
    const CharTable* allowed;
    bool anyChar;
    bool custom;         // the parent judges
    bool customAnswered; // the last time that it was asked
    bool customErrorIsValid[2];
    bool isDisabled;
    bool checkLength;
    int minLength;
    int maxLength;
    bool emptyValid;
    bool checkRange;
    bool checkValue;
    double minimum;
    double maximum;
    double precision;
};

struct EditVerdict
{
    EditBrush brush;
    int status;
    bool syntaxValid;
    bool lengthValid;
    bool valueValid;

    bool IsValid() const { return syntaxValid && lengthValid && valueValid; }
};

// What the parent said.
struct EditAnswer
{
    bool isAnswered;
    int status;
    EditBrush brush;
};

// Gives a number that the parent answered its meaning; numbers that are no verdict are no answer or an empty one.
EditAnswer AnswerOfParent(LRESULT number);

// A parent that did not answer at all.
EditAnswer NoAnswer();

// 0 when the length is right or not checked, -1 too short, 1 too long.
int CheckLength(const EditRules& rules, int length);

// 0 inside the minimum and the maximum or not checked, -1 below, 2 above.
int CheckLimits(const EditRules& rules, double value);

// The same for a text; an empty one is below the minimum unless it is allowed. Asks also when values are not checked.
int CheckLimits(const EditRules& rules, const CString& text);

class CEditValidation
{
public:
    // `status` is the code of the validation before: what nothing in the text changes stays.
    CEditValidation(const EditRules& rules, const CString& text, int status);

    // How the syntax is judged: one of these.
    void TakeAnswer(const EditAnswer& answer);
    void JudgeCharacters();
    void JudgeFloat();

    const EditVerdict& Finish();

private:
    void Judge(int status, EditBrush brush);
    void JudgeSign();
    void JudgeTypeRange();
    void JudgeLength(int length);
    void JudgeEmptyText();
    void JudgeValue();
    bool IsCustomAccepted() const;

    const EditRules& m_rules;
    const CString m_text;
    bool m_isAnswered;
    EditVerdict m_verdict;
};
