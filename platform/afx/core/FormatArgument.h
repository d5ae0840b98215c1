// An argument of a printf-like call with its kind, and the list of them: what afx/core/TextFormat.h formats. Needs no
// other header of the framework, so that headers for every kind of module can take it in.
#pragma once

#include <initializer_list>
#include <type_traits>

namespace afx
{

// One value for a directive. A text is borrowed.
class FormatArgument
{
public:
    enum Kind
    {
        Integer,
        Real,
        WideText,
        NarrowText,
        Pointer
    };

    template<class VALUE>
    FormatArgument(const VALUE& value)
    {
        typedef typename std::decay<VALUE>::type Type;
        if constexpr (std::is_integral<Type>::value || std::is_enum<Type>::value)
            SetInteger(static_cast<long long>(value));
        else if constexpr (std::is_floating_point<Type>::value)
            SetReal(static_cast<double>(value));
        else if constexpr (std::is_null_pointer<Type>::value)
            SetPointer(Pointer, nullptr);
        else if constexpr (std::is_convertible<Type, const wchar_t*>::value)
            SetPointer(WideText, static_cast<const wchar_t*>(value));
        else if constexpr (std::is_convertible<Type, const char*>::value)
            SetPointer(NarrowText, static_cast<const char*>(value));
        else
            SetPointer(Pointer, (const void*)value);
    }

    Kind GetKind() const { return m_kind; }
    long long GetInteger() const { return m_integer; }
    double GetReal() const { return m_real; }
    const void* GetPointer() const { return m_pointer; }

private:
    void SetInteger(long long value)
    {
        m_kind = Integer;
        m_integer = value;
    }

    void SetReal(double value)
    {
        m_kind = Real;
        m_real = value;
    }

    void SetPointer(Kind kind, const void* pointer)
    {
        m_kind = kind;
        m_pointer = pointer;
    }

    Kind m_kind;
    union {
        long long m_integer;
        double m_real;
        const void* m_pointer;
    };
};

// The arguments of one call, none included.
typedef std::initializer_list<FormatArgument> FormatArguments;

} // namespace afx
