#include "afx/gdi/GdiPlus.h"

#include <mutex>

namespace
{

std::mutex g_mutex;
int g_users = 0;
ULONG_PTR g_token = 0;

void ShutDown()
{
    if (g_token != 0)
        Gdiplus::GdiplusShutdown(g_token);
    g_token = 0;
}

} // namespace

void CGdiPlusSession::Join()
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    ++g_users;
}

void CGdiPlusSession::Leave()
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    if (--g_users == 0)
        ShutDown();
}

bool CGdiPlusSession::Start()
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    if (g_token != 0)
        return true;
    const Gdiplus::GdiplusStartupInput input;
    return Gdiplus::GdiplusStartup(&g_token, &input, NULL) == Gdiplus::Ok;
}

void CGdiPlusSession::Stop()
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    ShutDown();
}

bool CGdiPlusSession::IsStarted()
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    return g_token != 0;
}
