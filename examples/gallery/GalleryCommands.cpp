#include "GalleryCommands.h"

#include "GalleryDlg.h"

#include <acedads.h>
#include <acutads.h>

namespace gallery
{
namespace
{

const int kLongestAnswer = 132;

CString AllNames()
{
    CString names;
    for (const GalleryEntry& entry : GalleryPages())
        names += CString(names.IsEmpty() ? L"" : L"、") + entry.name;
    return names;
}

} // namespace

void OpenGallery()
{
    if (CGalleryDlg::Show() == nullptr)
        acutPrintf(L"\n控件库窗口无法打开。");
}

void OpenGalleryPage()
{
    ACHAR answer[kLongestAnswer + 1] = L"";
    const int wholeLine = 1;
    if (acedGetString(wholeLine, L"\n控件页名称: ", answer) != RTNORM)
        return;
    const GalleryEntry* entry = FindGalleryPage(answer);
    if (entry == nullptr)
    {
        acutPrintf(L"\n没有控件页“%s”。可选：%s。", answer, AllNames().GetString());
        return;
    }
    if (CGalleryDlg* dialog = CGalleryDlg::Show())
        dialog->ShowPage(*entry);
}

} // namespace gallery
