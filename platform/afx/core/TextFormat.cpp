#include "afx/core/TextFormat.h"

#include "afx/core/String.h"

#include <string>
#include <string.h>
#include <wchar.h>

namespace
{

const int kWidest = 32767;

enum Size
{
    SizeDefault,
    SizeShort,
    SizeLong,
    Size64
};

// Width or precision: not given, given in the text, or as an argument.
struct Number
{
    bool given = false;
    bool fromArgument = false;
    int value = 0;
};

struct Directive
{
    std::wstring flags;
    Number width;
    Number precision;
    Size size = SizeDefault;
    wchar_t type = 0; // 0: none that is known
    const wchar_t* end = nullptr;
};

struct SizeName
{
    const wchar_t* name;
    Size size;
};

// The longer name first where one begins with another. A pointer-sized number (I) has 64 bits here.
const SizeName kSizes[] = {{L"I64", Size64}, {L"I32", SizeLong}, {L"I", Size64},    {L"ll", Size64},
                           {L"l", SizeLong}, {L"w", SizeLong},   {L"h", SizeShort}, {L"L", SizeDefault}};

bool IsOneOf(wchar_t character, const wchar_t* set)
{
    return character != 0 && wcschr(set, character) != nullptr;
}

// Reads the pieces of a directive behind its per cent sign.
class DirectiveReader
{
public:
    explicit DirectiveReader(const wchar_t* behindSign) : m_at(behindSign) {}

    Directive Read()
    {
        Directive directive;
        while (IsOneOf(*m_at, L"-+ #0"))
            directive.flags += *m_at++;
        bool good = ReadNumber(directive.width);
        if (*m_at == L'.')
        {
            ++m_at;
            good = ReadNumber(directive.precision) && good;
            directive.precision.given = true;
        }
        directive.size = ReadSize();
        if (good && IsOneOf(*m_at, L"diouxXeEfgGaAcCsSpn"))
            directive.type = *m_at++;
        directive.end = m_at;
        return directive;
    }

private:
    bool ReadNumber(Number& number)
    {
        if (*m_at == L'*')
        {
            ++m_at;
            number.given = number.fromArgument = true;
            return true;
        }
        for (; IsOneOf(*m_at, L"0123456789"); ++m_at)
        {
            number.given = true;
            if (number.value <= kWidest)
                number.value = number.value * 10 + (*m_at - L'0');
        }
        return number.value <= kWidest;
    }

    Size ReadSize()
    {
        for (const SizeName& candidate : kSizes)
        {
            const size_t length = wcslen(candidate.name);
            if (wcsncmp(m_at, candidate.name, length) != 0)
                continue;
            m_at += length;
            return candidate.size;
        }
        return SizeDefault;
    }

    const wchar_t* m_at;
};

unsigned long long Narrowed(unsigned long long value, Size size)
{
    if (size == Size64)
        return value;
    return size == SizeShort ? static_cast<unsigned short>(value) : static_cast<unsigned int>(value);
}

long long NarrowedSigned(long long value, Size size)
{
    if (size == Size64)
        return value;
    return size == SizeShort ? static_cast<short>(value) : static_cast<int>(value);
}

class Formatter
{
public:
    Formatter(CString& text, afx::FormatArguments arguments)
        : m_text(text), m_next(arguments.begin()), m_end(arguments.end())
    {
    }

    void Run(const wchar_t* format)
    {
        while (const wchar_t* sign = wcschr(format, L'%'))
        {
            m_text.Append(format, static_cast<int>(sign - format));
            format = AppendDirective(sign);
        }
        m_text.Append(format);
    }

private:
    // Answers where the text goes on.
    const wchar_t* AppendDirective(const wchar_t* sign)
    {
        const bool doubled = sign[1] == L'%';
        Directive directive = DirectiveReader(sign + 1).Read();
        if (doubled || directive.type == 0)
        {
            m_text.AppendChar(L'%');
            return sign + (doubled ? 2 : 1);
        }
        const bool complete = Complete(directive.width) && Complete(directive.precision);
        const afx::FormatArgument* argument = complete ? Take() : nullptr;
        if (argument == nullptr || !Append(directive, *argument))
            m_text.Append(sign, static_cast<int>(directive.end - sign));
        return directive.end;
    }

    const afx::FormatArgument* Take() { return m_next == m_end ? nullptr : m_next++; }

    // Fetches a number that is given as an argument. A negative one stays negative: a width then aligns to the left,
    // a precision is none.
    bool Complete(Number& number)
    {
        if (!number.fromArgument)
            return true;
        const afx::FormatArgument* argument = Take();
        if (argument == nullptr || argument->GetKind() != afx::FormatArgument::Integer)
            return false;
        const long long value = argument->GetInteger();
        number.value = static_cast<int>(value > kWidest ? kWidest : value < -kWidest ? -kWidest : value);
        return true;
    }

    bool Append(const Directive& directive, const afx::FormatArgument& argument)
    {
        if (IsOneOf(directive.type, L"diouxX"))
            return AppendInteger(directive, argument);
        if (IsOneOf(directive.type, L"eEfgGaA"))
            return AppendReal(directive, argument);
        if (IsOneOf(directive.type, L"cC"))
            return AppendCharacter(directive, argument);
        if (IsOneOf(directive.type, L"sS"))
            return AppendText(directive, argument);
        return directive.type == L'p' && AppendPointer(directive, argument);
    }

    bool AppendInteger(const Directive& directive, const afx::FormatArgument& argument)
    {
        if (argument.GetKind() == afx::FormatArgument::Real)
            return false;
        const long long value = argument.GetKind() == afx::FormatArgument::Integer
                                    ? argument.GetInteger()
                                    : reinterpret_cast<INT_PTR>(argument.GetPointer());
        const CString rebuilt = Rebuild(directive, L"I64", directive.type);
        if (IsOneOf(directive.type, L"di"))
            m_text.AppendFormat(rebuilt, NarrowedSigned(value, directive.size));
        else
            m_text.AppendFormat(rebuilt, Narrowed(static_cast<unsigned long long>(value), directive.size));
        return true;
    }

    bool AppendReal(const Directive& directive, const afx::FormatArgument& argument)
    {
        if (argument.GetKind() != afx::FormatArgument::Real)
            return false;
        m_text.AppendFormat(Rebuild(directive, L"", directive.type), argument.GetReal());
        return true;
    }

    bool AppendCharacter(const Directive& directive, const afx::FormatArgument& argument)
    {
        if (argument.GetKind() != afx::FormatArgument::Integer)
            return false;
        const char narrow[] = {static_cast<char>(argument.GetInteger()), '\0'};
        const wchar_t wide[] = {static_cast<wchar_t>(argument.GetInteger()), L'\0'};
        const CString character = IsNarrow(directive) ? CString(narrow) : CString(wide);
        Directive asText = directive;
        asText.precision = Number();
        m_text.AppendFormat(Rebuild(asText, L"l", L's'), character.GetString());
        return true;
    }

    bool AppendText(const Directive& directive, const afx::FormatArgument& argument)
    {
        const bool narrow = IsNarrow(directive);
        const afx::FormatArgument::Kind wanted =
            narrow ? afx::FormatArgument::NarrowText : afx::FormatArgument::WideText;
        const bool isNull = argument.GetKind() == afx::FormatArgument::Integer ? argument.GetInteger() == 0
                                                                               : argument.GetPointer() == nullptr;
        if (argument.GetKind() != wanted && (argument.GetKind() == afx::FormatArgument::Real || !isNull))
            return false;
        if (isNull)
            m_text.AppendFormat(Rebuild(directive, L"l", L's'), L"(null)");
        else if (narrow)
            AppendNarrow(directive, static_cast<const char*>(argument.GetPointer()));
        else
            m_text.AppendFormat(Rebuild(directive, L"l", L's'), static_cast<const wchar_t*>(argument.GetPointer()));
        return true;
    }

    // Converted aside: the runtime gives up on bytes that its code page does not have. A text with a precision need
    // not be terminated.
    void AppendNarrow(const Directive& directive, const char* narrow)
    {
        const bool bounded = directive.precision.given && directive.precision.value >= 0;
        const size_t length =
            bounded ? strnlen(narrow, static_cast<size_t>(directive.precision.value)) : strlen(narrow);
        const CString wide(narrow, static_cast<int>(length));
        m_text.AppendFormat(Rebuild(directive, L"l", L's'), wide.GetString());
    }

    bool AppendPointer(const Directive& directive, const afx::FormatArgument& argument)
    {
        if (argument.GetKind() == afx::FormatArgument::Real)
            return false;
        const void* pointer = argument.GetKind() == afx::FormatArgument::Integer
                                  ? reinterpret_cast<const void*>(argument.GetInteger())
                                  : argument.GetPointer();
        m_text.AppendFormat(Rebuild(directive, L"", L'p'), pointer);
        return true;
    }

    static bool IsNarrow(const Directive& directive)
    {
        const bool capital = directive.type == L'C' || directive.type == L'S';
        return directive.size == SizeShort || (capital && directive.size != SizeLong);
    }

    // The directive for one value, with its numbers written out.
    static CString Rebuild(const Directive& directive, const wchar_t* size, wchar_t type)
    {
        std::wstring text = L"%" + directive.flags;
        if (directive.width.given)
            text += std::to_wstring(directive.width.value); // a negative one brings the flag for the left side
        if (directive.precision.given && directive.precision.value >= 0)
            text += L"." + std::to_wstring(directive.precision.value);
        return CString((text + size + type).c_str());
    }

    CString& m_text;
    const afx::FormatArgument* m_next;
    const afx::FormatArgument* m_end;
};

} // namespace

namespace afx
{

void FormatText(CString& text, const wchar_t* format, FormatArguments arguments)
{
    CString result; // aside: an argument may point into `text`
    if (format != nullptr)
        Formatter(result, arguments).Run(format);
    text = result;
}

} // namespace afx
