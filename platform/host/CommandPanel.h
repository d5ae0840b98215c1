// The command line at the lower edge of the frame: the history of what was said, the prompt, the input line.
#pragma once

#include <afxext.h>

#include "arx/ed/HostServices.h"
#include "host/CommandEdit.h"
#include "host/ViewTransform.h"

#include <functional>
#include <string>

namespace arxhost
{

class CommandPanel : public CControlBar
{
public:
    bool Create(CFrameWnd& frame);

    // A line was entered while nothing was asked for. Enter on the empty line repeats the newest command.
    std::function<void(const std::wstring&)> onLine;
    std::function<void()> onEscape;

    // Appends text; line ends are \n. It also goes to the program's standard output, so that scripts can be followed.
    void Print(const std::wstring& text);
    // Prints a line of its own, whatever stands before it.
    void PrintLine(const std::wstring& text);
    void TypeInto(wchar_t character);
    void FocusInput();

    // Shows the prompt and pumps messages until the user answers; false when given up or when the program ends.
    bool Ask(const std::wstring& prompt, std::wstring& answer);
    // As Ask(), for a point; a click in the view answers as well.
    PointReply AskPoint(const std::wstring& prompt, const CWnd& view, std::wstring& typed, AcGePoint2d& picked);
    // The user clicked in the view; false when no point is asked for there.
    bool TakePoint(const CWnd& view, WorldPoint place);
    // Answers the question as Esc does; false when nothing is asked.
    bool GiveUp();
    // The view is about to go: nobody can pick a point in it any more.
    void ForgetView(const CWnd& view);
    bool IsAsking() const { return m_asking; }

    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
    void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) override;

protected:
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    afx_msg void OnSetFocus(CWnd* oldWindow);

    DECLARE_MESSAGE_MAP()

private:
    void Entered(const std::wstring& line);
    void Escaped();
    void SetPrompt(const std::wstring& prompt);
    void LayOut();

    CEdit m_history;
    CStatic m_promptLabel;
    CommandEdit m_input;
    CBrush m_paper;
    bool m_atLineStart = true;
    bool m_asking = false;
    bool m_givenUp = false;
    std::wstring m_answer;
    const CWnd* m_pointView = nullptr; // while a point is asked for
    bool m_isPicked = false;
    AcGePoint2d m_picked;
};

} // namespace arxhost
