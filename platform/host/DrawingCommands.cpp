// OPEN NEW CLOSE ZOOM PAN SELECT ERASE MSLIDE HOVER: commands on drawings.
#include "arx/ed/FileTrouble.h"
#include "host/DialogSearch.h"
#include "host/DrawingFrame.h"
#include "host/DrawingView.h"
#include "host/FilePrompt.h"
#include "host/HostCommands.h"
#include "host/MainFrame.h"
#include "host/PaletteDriver.h"
#include "host/PointText.h"
#include "host/ScreenCursor.h"
#include "host/SlideRecorder.h"

#include <cmath>
#include <shlwapi.h>

namespace arxhost
{
namespace
{

const wchar_t openUsage[] = L"OPEN（打开） 文件.dxf：打开图形";
const wchar_t newUsage[] = L"NEW（新建）：新建图形";
const wchar_t closeUsage[] = L"CLOSE（关闭）：关闭当前图形";
const wchar_t zoomUsage[] = L"ZOOM（缩放） E | IN | OUT | 倍数x | W x1,y1 x2,y2：缩放视图";
const wchar_t panUsage[] = L"PAN（平移） dx,dy：按图形单位平移视图";
const wchar_t selectUsage[] = L"SELECT（选择） ALL | NONE | x,y | W x1,y1 x2,y2 | C x1,y1 x2,y2：选择对象";
const wchar_t slideUsage[] = L"MSLIDE（制作幻灯片） 文件.sld：把当前视图保存为幻灯片";
const wchar_t hoverUsage[] = L"HOVER（悬停） x,y | 编号 对话框标题：把鼠标移到当前图形的一点，或者控件的中央";
const wchar_t eraseUsage[] = L"ERASE（删除） [选择方式]：删除选中的对象";

const double zoomStep = 2;
const int pickReach = 6; // pixels

WorldPoint NeedPoint(const Words& words, std::size_t index, const wchar_t* usage)
{
    WorldPoint point;
    const std::wstring& word = NeedWord(words, index, usage);
    if (!ReadPoint(word, point))
        throw CommandFailure{L"“" + word + L"”不是点坐标（应为 x,y）。"};
    return point;
}

arxgi::Box2 NeedBox(const Words& words, std::size_t index, const wchar_t* usage)
{
    const WorldPoint first = NeedPoint(words, index, usage);
    const WorldPoint second = NeedPoint(words, index + 1, usage);
    return arxgi::Box2(first.x, first.y, second.x, second.y);
}

void Open(MainFrame& frame, const Words& words)
{
    const wchar_t filter[] = L"图形文件 (*.dxf)|*.dxf|所有文件 (*.*)|*.*||";
    const std::wstring path = AskForFile(frame, words, FilePrompt::Open, L"dxf", filter, openUsage);
    if (!path.empty())
        frame.OpenDrawing(path);
}

void New(MainFrame& /*frame*/, const Words& words)
{
    if (NewDocument(words.empty() ? L"" : words[0].c_str()) == nullptr)
        throw CommandFailure{L"无法新建图形。"};
}

void Close(MainFrame& frame, const Words& /*words*/)
{
    if (!frame.CloseDrawing(frame.NeedView().HostDocument()))
        throw CommandFailure{L"命令正在运行，不能关闭图形。"};
}

void ZoomByWord(DrawingView& view, const std::wstring& word)
{
    double factor = 0;
    const bool hasMark = !word.empty() && (word.back() == L'x' || word.back() == L'X');
    if (!ReadNumber(hasMark ? word.substr(0, word.size() - 1) : word, factor) || factor <= 0)
        throw CommandFailure{L"“" + word + L"”不是缩放方式。用法：" + zoomUsage};
    view.ZoomBy(factor);
}

void Zoom(MainFrame& frame, const Words& words)
{
    DrawingView& view = frame.NeedView();
    const std::wstring& how = words.empty() ? L"E" : words[0];
    if (HasName(L"E,A,ALL,EXTENTS,范围,全部", how))
        view.ZoomExtents();
    else if (HasName(L"IN,放大", how))
        view.ZoomBy(zoomStep);
    else if (HasName(L"OUT,缩小", how))
        view.ZoomBy(1 / zoomStep);
    else if (HasName(L"W,WINDOW,窗口", how))
    {
        const arxgi::Box2 box = NeedBox(words, 1, zoomUsage);
        view.ZoomBox({{box.minX, box.minY}, {box.maxX, box.maxY}});
    }
    else
        ZoomByWord(view, how);
}

void Pan(MainFrame& frame, const Words& words)
{
    const WorldPoint move = NeedPoint(words, 0, panUsage);
    DrawingView& view = frame.NeedView();
    const double scale = 1 / view.Transform().UnitsPerPixel();
    view.PanBy(move.x * scale, -move.y * scale);
}

ObjectIds Picked(DrawingView& view, const Words& words, const wchar_t* usage)
{
    const WorldPoint point = NeedPoint(words, 0, usage);
    const AcDbObjectId hit = view.List().Pick({point.x, point.y}, pickReach * view.Transform().UnitsPerPixel());
    return hit.isNull() ? ObjectIds() : ObjectIds(1, hit);
}

ObjectIds SelectedBy(DrawingView& view, const Words& words, const wchar_t* usage)
{
    const std::wstring& how = NeedWord(words, 0, usage);
    if (HasName(L"ALL,A,全部", how))
        return VisibleEntities(view.HostDocument());
    if (HasName(L"NONE,N,无", how))
        return ObjectIds();
    if (HasName(L"W,WINDOW,窗口", how))
        return view.List().Inside(NeedBox(words, 1, usage));
    if (HasName(L"C,CROSSING,窗交", how))
        return view.List().Crossing(NeedBox(words, 1, usage));
    return Picked(view, words, usage);
}

void Select(MainFrame& frame, const Words& words)
{
    DrawingView& view = frame.NeedView();
    const ObjectIds ids = SelectedBy(view, words, selectUsage);
    SetPickfirst(view.HostDocument(), ids);
    frame.Command().Print(L"选中 " + std::to_wstring(ids.size()) + L" 个对象\n");
}

void EraseObjects(MainFrame& frame, const Words& words)
{
    DrawingView& view = frame.NeedView();
    const ObjectIds ids = words.empty() ? GetPickfirst(view.HostDocument()) : SelectedBy(view, words, eraseUsage);
    if (ids.empty())
        throw CommandFailure{L"没有选中的对象。"};
    frame.Command().Print(L"删除 " + std::to_wstring(Erase(ids)) + L" 个对象\n");
}

CPoint PlaceInView(DrawingView& view, WorldPoint point)
{
    const PixelPoint pixel = view.Transform().ToPixel(point);
    const CPoint place(static_cast<int>(std::lround(pixel.x)), static_cast<int>(std::lround(pixel.y)));
    CRect client;
    view.GetClientRect(&client);
    if (!client.PtInRect(place))
        throw CommandFailure{L"该点不在视图之内。"};
    CPoint onScreen = place;
    view.ClientToScreen(&onScreen);
    return onScreen;
}

CPoint PlaceOfControl(MainFrame& frame, int id, const std::wstring& title)
{
    const HWND dialog = FindDialog(frame.m_hWnd, title);
    const HWND control = dialog == NULL ? NULL : FindControl(dialog, id);
    CRect area;
    if (!::GetWindowRect(control, &area))
        throw CommandFailure{L"对话框“" + title + L"”中没有控件 " + std::to_wstring(id) + L"。"};
    return area.CenterPoint();
}

void Hover(MainFrame& frame, const Words& words)
{
    MoveScreenCursor(words.size() > 1 ? PlaceOfControl(frame, NeedNumber(words[0]), words[1])
                                      : PlaceInView(frame.NeedView(), NeedPoint(words, 0, hoverUsage)));
}

bool WriteBytes(const std::wstring& path, const std::string& bytes)
{
    CFile file;
    if (!file.Open(path.c_str(), CFile::modeCreate | CFile::modeWrite))
        return false;
    try
    {
        file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
        file.Close();
        return true;
    }
    catch (CFileException* e) // the disk is full
    {
        e->Delete();
        return false;
    }
}

void MakeSlide(MainFrame& frame, const Words& words)
{
    DrawingView& view = frame.NeedView();
    std::wstring path = AskForFile(frame, words, FilePrompt::Save, L"sld", L"幻灯片 (*.sld)|*.sld||", slideUsage);
    if (path.empty())
        return;
    if (*PathFindExtensionW(path.c_str()) == L'\0')
        path += L".sld";
    CRect client;
    view.GetClientRect(&client);
    SlideRecorder recorder(view.Transform(), client.Width(), client.Height());
    if (!WriteBytes(path, recorder.Record(view.List())))
        throw CommandFailure{L"无法写入幻灯片“" + path + L"”：" + WriteTrouble(path) + L"。"};
    frame.Command().Print(L"幻灯片已保存：" + path + L"\n");
}

} // namespace

std::vector<HostCommand> DrawingCommands()
{
    return {
        {L"OPEN,打开", openUsage, &Open},
        {L"NEW,新建", newUsage, &New},
        {L"CLOSE,关闭", closeUsage, &Close},
        {L"ZOOM,Z,缩放", zoomUsage, &Zoom},
        {L"PAN,P,平移", panUsage, &Pan},
        {L"SELECT,选择", selectUsage, &Select},
        {L"ERASE,E,删除", eraseUsage, &EraseObjects},
        {L"MSLIDE,制作幻灯片", slideUsage, &MakeSlide},
        {L"HOVER,悬停", hoverUsage, &Hover},
    };
}

} // namespace arxhost
