#include "edit/FloatScanner.h"

#include <cwchar>

namespace
{

class CFloatScanner
{
public:
    explicit CFloatScanner(int status) : m_state(STATE_START) { Judge(status, BRUSH_EMPTY); }

    FloatSyntax Scan(const wchar_t* text)
    {
        for (; text != NULL && *text != 0 && m_syntax.brush != BRUSH_ERROR; ++text)
            Take(*text);
        return m_syntax;
    }

private:
    enum State
    {
        STATE_START,
        STATE_MANTISSA,
        STATE_FRACTION,
        STATE_AFTER_E,
        STATE_EXPONENT
    };

    void Take(wchar_t character)
    {
        if (character >= L'0' && character <= L'9')
            TakeDigit();
        else if (character == L'+' || character == L'-')
            TakeSign();
        else if (character == L'.')
            TakePoint();
        else if (character == L'E' || character == L'e')
            TakeE();
        else if ((character != L' ' && character != L'\t') || m_state != STATE_START)
            Refuse();
    }

    void TakeDigit()
    {
        if (m_state == STATE_START)
            m_state = STATE_MANTISSA;
        else if (m_state == STATE_AFTER_E)
            m_state = STATE_EXPONENT;
        Judge(VVB_VALID, BRUSH_VALID);
    }

    void TakeSign()
    {
        if (m_state == STATE_START)
            WaitForDigits(STATE_MANTISSA);
        else if (m_state == STATE_AFTER_E)
            WaitForDigits(STATE_EXPONENT);
        else
            Refuse();
    }

    void TakePoint()
    {
        if (m_state == STATE_START)
        {
            WaitForDigits(STATE_FRACTION);
        }
        else if (m_state == STATE_MANTISSA)
        {
            // The status stays: after a lone sign it still says incomplete, although the brush says valid.
            m_state = STATE_FRACTION;
            m_syntax.brush = BRUSH_VALID;
        }
        else
        {
            Refuse();
        }
    }

    void TakeE()
    {
        if (m_state == STATE_AFTER_E || m_state == STATE_EXPONENT)
            Refuse();
        else
            WaitForDigits(STATE_AFTER_E);
    }

    void WaitForDigits(State next)
    {
        m_state = next;
        Judge(VVB_INCOMPLETE, BRUSH_WARNING);
    }

    void Refuse() { Judge(VVB_INVALID, BRUSH_ERROR); }

    void Judge(int status, EditBrush brush)
    {
        m_syntax.status = status;
        m_syntax.brush = brush;
    }

    State m_state;
    FloatSyntax m_syntax;
};

} // namespace

FloatSyntax ScanFloat(const wchar_t* text, int status)
{
    return CFloatScanner(status).Scan(text);
}
