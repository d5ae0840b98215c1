#include "SlidePage.h"

#include "../GalleryIds.h"

const wchar_t CSlidePage::Description[] =
    L"预览幻灯片（."
    L"sld）和图像文件：幻灯片保持比例，图像填满带凹陷边框的控件，读不出的幻灯"
    L"片说明原因。";

namespace
{

// The samples lie beside this module.
CString Sample(const wchar_t* name)
{
    wchar_t path[MAX_PATH] = L"";
    ::GetModuleFileNameW(::GetModuleHandleW(L"gallery.arx"), path, MAX_PATH);
    const CString module(path);
    return module.Left(module.ReverseFind(L'\\') + 1) + L"samples\\" + name;
}

} // namespace

CSlidePage::CSlidePage() : CGalleryPage(IDD_SLIDE_PAGE) {}

void CSlidePage::DoDataExchange(CDataExchange* exchange)
{
    CGalleryPage::DoDataExchange(exchange);
    // [show]
    DDX_Control(exchange, IDC_SLIDE_SLIDE, m_slide); // 模板中的自绘按钮
    DDX_Control(exchange, IDC_SLIDE_IMAGE, m_image);
    DDX_Control(exchange, IDC_SLIDE_EMPTY, m_empty);
    DDX_Control(exchange, IDC_SLIDE_DAMAGED, m_damaged);
    // [end]
}

BOOL CSlidePage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    // [show]
    m_slide.SetFileName(Sample(L"bracket.sld")); // 幻灯片，保持比例
    m_image.SetBkColor(RGB(255, 255, 255));      // 背景色
    m_image.SetFileName(Sample(L"flange.png")); // BMP、GIF、JPEG、PNG、TIFF
    m_empty.SetFileName(L"");                   // 不显示
    m_damaged.SetBkColor(RGB(255, 255, 255));
    m_damaged.SetFileName(Sample(L"cut-off.sld"));
    // [end]
    return TRUE;
}
