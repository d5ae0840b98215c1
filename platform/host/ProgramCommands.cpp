// ARX SCRIPT DELAY SHOT WATCH HELP QUIT: commands on the program.
#include "host/FilePrompt.h"
#include "host/FrameShot.h"
#include "host/HostCommands.h"
#include "host/MainFrame.h"

#include "rxregsvc.h"

namespace arxhost
{
namespace
{

const wchar_t arxUsage[] = L"ARX（模块） L 模块.arx | U 模块.arx | ?：加载、卸载、列出模块";
const wchar_t scriptUsage[] = L"SCRIPT（脚本） 文件.scr：逐行运行脚本";
const wchar_t delayUsage[] = L"DELAY（延时） 毫秒：脚本暂停一段时间";
const wchar_t shotUsage[] = L"SHOT（画面） 文件.png [对话框标题]：把窗口和浮动面板，或者一个对话框，保存为图片";
const wchar_t watchUsage[] = L"WATCH（守候） 窗口标题 文件.png | END：后面的命令显示该窗口时保存画面 | 等画面保存完";
const wchar_t helpUsage[] = L"HELP（帮助、?）：命令列表";
const wchar_t quitUsage[] = L"QUIT（退出）：结束程序";

const int longestDelay = 60000;

void ListModules(MainFrame& frame)
{
    const std::vector<std::wstring> modules = LoadedModules();
    std::wstring text = modules.empty() ? L"没有加载模块\n" : L"已加载的模块：\n";
    for (const std::wstring& module : modules)
        text += L"  " + module + L"\n";
    frame.Command().Print(text);
}

void UnloadModule(const std::wstring& name)
{
    if (!acrxAppIsLoaded(name.c_str()))
        throw CommandFailure{L"没有加载模块“" + name + L"”。ARX ? 列出已加载的模块。"};
    if (!acrxUnloadModule(name.c_str(), true))
        throw CommandFailure{L"模块“" + name + L"”不能卸载：它被锁定、正由其他模块使用，或者拒绝结束。"};
}

void Arx(MainFrame& frame, const Words& words)
{
    if (!words.empty() && HasName(L"?,LIST,列出", words[0]))
    {
        ListModules(frame);
        return;
    }
    const bool unload = !words.empty() && HasName(L"U,UNLOAD,卸载", words[0]);
    const bool load = !words.empty() && HasName(L"L,LOAD,加载", words[0]);
    const Words names(words.begin() + (load || unload ? 1 : 0), words.end());
    const std::wstring name = AskForFile(frame, names, FilePrompt::Open, L"arx", L"模块 (*.arx)|*.arx||", arxUsage);
    if (name.empty())
        return;
    if (unload)
        UnloadModule(name);
    else
        frame.LoadModule(name);
}

void Script(MainFrame& frame, const Words& words)
{
    const std::wstring path = AskForFile(frame, words, FilePrompt::Open, L"scr", L"脚本 (*.scr)|*.scr||", scriptUsage);
    if (!path.empty())
        frame.StartScript(path);
}

void Delay(MainFrame& frame, const Words& words)
{
    const int milliseconds = NeedNumber(NeedWord(words, 0, delayUsage));
    if (milliseconds < 0 || milliseconds > longestDelay)
        throw CommandFailure{L"延时应在 0 到 60000 毫秒之间。"};
    frame.Scripts().Delay(static_cast<unsigned>(milliseconds));
}

void Shot(MainFrame& frame, const Words& words)
{
    const std::wstring path = AskForFile(frame, words, FilePrompt::Save, L"png", L"图片 (*.png)|*.png||", shotUsage);
    if (path.empty())
        return;
    const std::wstring error = words.size() > 1 ? SaveDialogShot(frame, words[1], path) : SaveFrameShot(frame, path);
    if (!error.empty())
        throw CommandFailure{error};
    frame.Command().Print(L"画面已保存：" + path + L"\n");
}

void Watch(MainFrame& frame, const Words& words)
{
    const bool end = HasName(L"END,结束", NeedWord(words, 0, watchUsage));
    if (!end)
        return frame.Watch().Start(frame.m_hWnd, words[0], NeedWord(words, 1, watchUsage));
    const std::wstring error = frame.Watch().Finish();
    if (!error.empty())
        throw CommandFailure{error};
}

void Help(MainFrame& frame, const Words& /*words*/)
{
    frame.Command().Print(CommandHelp());
}

void Quit(MainFrame& frame, const Words& /*words*/)
{
    frame.Scripts().Clear();
    frame.PostMessage(WM_CLOSE);
}

} // namespace

std::vector<HostCommand> ProgramCommands()
{
    return {
        {L"ARX,APPLOAD,模块", arxUsage, &Arx}, {L"SCRIPT,SCR,脚本", scriptUsage, &Script},
        {L"DELAY,延时", delayUsage, &Delay},   {L"SHOT,画面", shotUsage, &Shot},
        {L"WATCH,守候", watchUsage, &Watch},   {L"HELP,?,帮助", helpUsage, &Help},
        {L"QUIT,EXIT,退出", quitUsage, &Quit},
    };
}

} // namespace arxhost
