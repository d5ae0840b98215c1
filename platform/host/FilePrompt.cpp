#include "host/FilePrompt.h"

#include "host/MainFrame.h"

#include <afxdlgs.h>

namespace arxhost
{

std::wstring AskForFile(MainFrame& frame, const Words& words, FilePrompt kind, const wchar_t* extension,
                        const wchar_t* filter, const wchar_t* usage)
{
    if (!words.empty())
        return words[0];
    if (frame.IsUnattended())
        NeedWord(words, 0, usage);
    const bool open = kind == FilePrompt::Open;
    const DWORD flags = OFN_HIDEREADONLY | OFN_NOCHANGEDIR | (open ? OFN_FILEMUSTEXIST : OFN_OVERWRITEPROMPT);
    CFileDialog dialog(open, extension, NULL, flags, filter, &frame);
    return dialog.DoModal() == IDOK ? std::wstring(dialog.GetPathName().GetString()) : std::wstring();
}

} // namespace arxhost
