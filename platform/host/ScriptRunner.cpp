#include "host/ScriptRunner.h"

#include "arx/ed/FileTrouble.h"
#include "host/FileBytes.h"

#include <windows.h>

namespace arxhost
{

bool ScriptRunner::Load(const std::wstring& path, std::wstring& error)
{
    std::string bytes;
    if (!ReadFileBytes(path, bytes))
    {
        error = L"无法读取脚本“" + path + L"”：" + ReadTrouble(path) + L"。";
        return false;
    }
    Add(path, DecodeText(bytes));
    return true;
}

void ScriptRunner::Add(const std::wstring& name, const std::wstring& text)
{
    const std::vector<ScriptLine> lines = ScriptLines(text);
    for (auto line = lines.rbegin(); line != lines.rend(); ++line)
        m_lines.push_front({name, *line});
}

void ScriptRunner::Clear()
{
    m_lines.clear();
}

void ScriptRunner::Delay(unsigned milliseconds)
{
    m_resumeAt = GetTickCount64() + milliseconds;
}

unsigned ScriptRunner::Waiting() const
{
    const unsigned long long now = GetTickCount64();
    return now < m_resumeAt ? static_cast<unsigned>(m_resumeAt - now) : 0;
}

bool ScriptRunner::Step(const std::function<bool(const std::wstring&)>& run, std::wstring& failedAt)
{
    if (m_lines.empty())
        return true;
    const Line line = m_lines.front();
    m_lines.pop_front();
    if (run(line.line.text))
        return true;
    failedAt = L"脚本“" + line.script + L"”第 " + std::to_wstring(line.line.number) + L" 行没有成功：" + line.line.text;
    Clear();
    return false;
}

} // namespace arxhost
