// The lines that the suite's base library traces while this lives.
//
//   TraceCapture trace;
//   ...
//   EXPECT_NE(std::string::npos, trace.Text().find("SWP_SHOWWINDOW"));
#pragma once

#include <afxwin.h>

#include <ZnQFCBaseU.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

class TraceCapture
{
public:
    TraceCapture()
    {
        wchar_t folder[MAX_PATH] = L"";
        wchar_t file[MAX_PATH] = L"";
        ::GetTempPathW(MAX_PATH, folder);
        ::GetTempFileNameW(folder, L"trc", 0, file);
        m_path = file;
        Tevrin::SetTraceFile(file);
    }

    ~TraceCapture()
    {
        Tevrin::SetTraceFile(NULL);
        ::DeleteFileW(m_path);
    }

    TraceCapture(const TraceCapture&) = delete;
    TraceCapture& operator=(const TraceCapture&) = delete;

    // Everything as it stands in the file: UTF-8, each line behind its time.
    std::string Text() const
    {
        std::ifstream stream(CStringA(m_path).GetString(), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
    }

    // The lines without their times.
    std::vector<std::string> Lines() const
    {
        const size_t stamp = std::string("2000-01-01 00:00:00.000 ").size();
        std::vector<std::string> lines;
        std::ifstream stream(CStringA(m_path).GetString());
        for (std::string line; std::getline(stream, line);)
            lines.push_back(line.size() > stamp ? line.substr(stamp) : "");
        for (std::string& line : lines)
        {
            if (!line.empty() && line.back() == '\r')
                line.pop_back();
        }
        return lines;
    }

private:
    CString m_path;
};
