#include "ZnQFCBaseU.h"

#include "afx/core/TextFormat.h"

#include <mutex>
#include <stdio.h>
#include <string>

namespace
{
class TraceFile
{
public:
    void SetPath(const wchar_t* path)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_path = path == nullptr ? L"" : path;
    }

    void Write(const CString& line)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_path.empty())
            return;
        FILE* file = _wfopen(m_path.c_str(), L"ab");
        if (file == nullptr)
            return;
        SYSTEMTIME now = {};
        GetLocalTime(&now);
        CString stamped;
        stamped.Format(L"%04d-%02d-%02d %02d:%02d:%02d.%03d %s\r\n", now.wYear, now.wMonth, now.wDay, now.wHour,
                       now.wMinute, now.wSecond, now.wMilliseconds, static_cast<LPCWSTR>(line));
        const std::string bytes = ToUtf8(stamped);
        fwrite(bytes.data(), 1, bytes.size(), file);
        fclose(file);
    }

private:
    static std::string ToUtf8(const CString& text)
    {
        const int length = text.GetLength();
        const int needed = WideCharToMultiByte(CP_UTF8, 0, text, length, nullptr, 0, nullptr, nullptr);
        std::string bytes(static_cast<size_t>(needed), '\0');
        WideCharToMultiByte(CP_UTF8, 0, text, length, &bytes[0], needed, nullptr, nullptr);
        return bytes;
    }

    std::mutex m_mutex;
    std::wstring m_path;
};

TraceFile g_file;
} // namespace

namespace Tevrin
{
void TraceArguments(const wchar_t* format, afx::FormatArguments arguments)
{
    if (format == nullptr)
        return;
    CString line;
    afx::FormatText(line, format, arguments);
    OutputDebugStringW(line + L"\n");
    g_file.Write(line);
}

void SetTraceFile(const wchar_t* path)
{
    g_file.SetPath(path);
}
} // namespace Tevrin
