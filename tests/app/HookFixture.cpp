#include "HookFixture.h"

Names* HookFixture::s_log = NULL;
bool HookFixture::s_wasUntouchedAtEnd = false;
UINT HookFixture::s_lastMessage = 0;
