// The script lines that wait to be run. The program takes one line each time its message queue is empty, so that every
// line meets windows that have dealt with the line before. No window.
#pragma once

#include "host/ScriptText.h"

#include <deque>
#include <functional>
#include <string>

namespace arxhost
{

class ScriptRunner
{
public:
    // Queues the lines of a script before the ones that wait: a script called by a script runs first. False with a
    // message for the user when the file can't be read.
    bool Load(const std::wstring& path, std::wstring& error);
    void Add(const std::wstring& name, const std::wstring& text);
    void Clear();

    bool IsEmpty() const { return m_lines.empty(); }
    // The line that runs next; there must be one.
    const std::wstring& Next() const { return m_lines.front().line.text; }
    // No line is run for this time from now, milliseconds.
    void Delay(unsigned milliseconds);
    // Milliseconds until the next line may run.
    unsigned Waiting() const;

    // Runs the next line. When `run` answers false the remaining lines are dropped and `failedAt` tells the place.
    bool Step(const std::function<bool(const std::wstring&)>& run, std::wstring& failedAt);

private:
    struct Line
    {
        std::wstring script;
        ScriptLine line;
    };

    std::deque<Line> m_lines;
    unsigned long long m_resumeAt = 0; // GetTickCount64
};

} // namespace arxhost
