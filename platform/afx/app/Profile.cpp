// The profile of the program: its registry key, or an ini file in the Windows folder where no company was named.
#include <afxcoll.h>
#include <afxwin.h>

namespace
{
class RegistryKey
{
public:
    explicit RegistryKey(HKEY key = nullptr) : m_key(key) {}
    ~RegistryKey()
    {
        if (m_key != nullptr)
            ::RegCloseKey(m_key);
    }
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;

    HKEY Get() const { return m_key; }

private:
    HKEY m_key;
};

HKEY CreateSubkey(HKEY parent, LPCTSTR name)
{
    HKEY key = nullptr;
    if (parent == nullptr ||
        ::RegCreateKeyEx(parent, name, 0, nullptr, 0, KEY_READ | KEY_WRITE, nullptr, &key, nullptr) != ERROR_SUCCESS)
        return nullptr;
    return key;
}

// The bytes of a value of that type; false when it is absent or of another type.
bool ReadValue(HKEY key, LPCTSTR entry, DWORD wantedType, CByteArray& bytes)
{
    DWORD type = 0;
    DWORD size = 0;
    if (key == nullptr || ::RegQueryValueEx(key, entry, nullptr, &type, nullptr, &size) != ERROR_SUCCESS ||
        type != wantedType)
        return false;
    bytes.SetSize(size);
    return ::RegQueryValueEx(key, entry, nullptr, &type, bytes.GetData(), &size) == ERROR_SUCCESS;
}

bool WriteValue(HKEY key, LPCTSTR entry, DWORD type, const void* bytes, DWORD size)
{
    return key != nullptr &&
           ::RegSetValueEx(key, entry, 0, type, static_cast<const BYTE*>(bytes), size) == ERROR_SUCCESS;
}

// Binary entries of an ini file are text: two letters a byte, the low half first.
CString BytesToText(const BYTE* data, UINT count)
{
    CString text;
    for (UINT i = 0; i < count; ++i)
    {
        text += static_cast<wchar_t>(L'A' + (data[i] & 0x0F));
        text += static_cast<wchar_t>(L'A' + (data[i] >> 4));
    }
    return text;
}

void TextToBytes(const CString& text, CByteArray& bytes)
{
    bytes.SetSize(text.GetLength() / 2);
    for (INT_PTR i = 0; i < bytes.GetSize(); ++i)
    {
        const int low = text[static_cast<int>(2 * i)] - L'A';
        const int high = text[static_cast<int>(2 * i + 1)] - L'A';
        bytes[i] = static_cast<BYTE>((high << 4) | low);
    }
}

CString IniString(LPCTSTR file, LPCTSTR section, LPCTSTR entry, LPCTSTR defaultValue)
{
    int size = 256;
    CString value;
    for (;;)
    {
        const int length = static_cast<int>(
            ::GetPrivateProfileString(section, entry, defaultValue, value.GetBufferSetLength(size), size, file));
        value.ReleaseBuffer(length);
        if (length < size - 1)
            return value;
        size *= 2;
    }
}
} // namespace

void CWinApp::SetRegistryKey(LPCTSTR registryKey)
{
    m_registryKey = registryKey;
    m_pszRegistryKey = m_registryKey;
    m_profileName = m_pszAppName == nullptr ? m_appName : CString(m_pszAppName);
    m_pszProfileName = m_profileName;
}

void CWinApp::SetRegistryKey(UINT registryKeyId)
{
    CString name;
    if (!name.LoadString(registryKeyId))
        AfxThrowResourceException();
    SetRegistryKey(name);
}

HKEY CWinApp::GetAppRegistryKey()
{
    const RegistryKey software(CreateSubkey(HKEY_CURRENT_USER, L"Software"));
    const RegistryKey company(CreateSubkey(software.Get(), m_pszRegistryKey));
    return CreateSubkey(company.Get(), m_pszProfileName);
}

HKEY CWinApp::GetSectionKey(LPCTSTR section)
{
    const RegistryKey app(GetAppRegistryKey());
    return CreateSubkey(app.Get(), section);
}

UINT CWinApp::GetProfileInt(LPCTSTR section, LPCTSTR entry, int defaultValue)
{
    if (m_pszRegistryKey == nullptr)
        return ::GetPrivateProfileInt(section, entry, defaultValue, m_pszProfileName);

    const RegistryKey key(GetSectionKey(section));
    CByteArray bytes;
    if (!ReadValue(key.Get(), entry, REG_DWORD, bytes) || bytes.GetSize() != sizeof(DWORD))
        return static_cast<UINT>(defaultValue);
    DWORD value = 0;
    memcpy(&value, bytes.GetData(), sizeof(value));
    return value;
}

BOOL CWinApp::WriteProfileInt(LPCTSTR section, LPCTSTR entry, int value)
{
    if (m_pszRegistryKey == nullptr)
    {
        CString text;
        text.Format(L"%d", value);
        return ::WritePrivateProfileString(section, entry, text, m_pszProfileName);
    }
    const RegistryKey key(GetSectionKey(section));
    const DWORD data = static_cast<DWORD>(value);
    return WriteValue(key.Get(), entry, REG_DWORD, &data, sizeof(data));
}

CString CWinApp::GetProfileString(LPCTSTR section, LPCTSTR entry, LPCTSTR defaultValue)
{
    if (defaultValue == nullptr)
        defaultValue = L"";
    if (m_pszRegistryKey == nullptr)
        return IniString(m_pszProfileName, section, entry, defaultValue);

    const RegistryKey key(GetSectionKey(section));
    CByteArray bytes;
    if (!ReadValue(key.Get(), entry, REG_SZ, bytes))
        return defaultValue;
    const wchar_t* const text = reinterpret_cast<const wchar_t*>(bytes.GetData());
    const int length = static_cast<int>(bytes.GetSize() / sizeof(wchar_t));
    return CString(text, static_cast<int>(wcsnlen(text, static_cast<size_t>(length))));
}

BOOL CWinApp::WriteProfileString(LPCTSTR section, LPCTSTR entry, LPCTSTR value)
{
    if (m_pszRegistryKey == nullptr)
        return ::WritePrivateProfileString(section, entry, value, m_pszProfileName);
    if (entry == nullptr)
    {
        const RegistryKey app(GetAppRegistryKey());
        return app.Get() != nullptr && ::RegDeleteKey(app.Get(), section) == ERROR_SUCCESS;
    }
    const RegistryKey key(GetSectionKey(section));
    if (value == nullptr)
        return key.Get() != nullptr && ::RegDeleteValue(key.Get(), entry) == ERROR_SUCCESS;
    return WriteValue(key.Get(), entry, REG_SZ, value, static_cast<DWORD>((wcslen(value) + 1) * sizeof(wchar_t)));
}

BOOL CWinApp::GetProfileBinary(LPCTSTR section, LPCTSTR entry, LPBYTE* data, UINT* bytes)
{
    *data = nullptr;
    *bytes = 0;
    CByteArray found;
    if (m_pszRegistryKey == nullptr)
    {
        const CString text = IniString(m_pszProfileName, section, entry, L"");
        if (text.IsEmpty())
            return FALSE;
        TextToBytes(text, found);
    }
    else
    {
        const RegistryKey key(GetSectionKey(section));
        if (!ReadValue(key.Get(), entry, REG_BINARY, found))
            return FALSE;
    }
    *bytes = static_cast<UINT>(found.GetSize());
    *data = new BYTE[*bytes];
    memcpy(*data, found.GetData(), *bytes);
    return TRUE;
}

BOOL CWinApp::WriteProfileBinary(LPCTSTR section, LPCTSTR entry, LPBYTE data, UINT bytes)
{
    if (m_pszRegistryKey == nullptr)
        return ::WritePrivateProfileString(section, entry, BytesToText(data, bytes), m_pszProfileName);
    const RegistryKey key(GetSectionKey(section));
    return WriteValue(key.Get(), entry, REG_BINARY, data, bytes);
}
