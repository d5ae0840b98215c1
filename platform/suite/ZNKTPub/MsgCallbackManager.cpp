#include "suite/ZNKTPub/MsgCallbackManager.h"

CMsgCallbackManager* CMsgCallbackManager::GetInstance()
{
    static CMsgCallbackManager manager;
    return &manager;
}

CMsgCallbackManager::CMsgCallbackManager() : m_current(nullptr) {}

CMsgCallbackManager::~CMsgCallbackManager() {}

CMsgCallback* CMsgCallbackManager::Register(CMsgCallback* callback)
{
    CMsgCallback* const previous = m_current;
    m_current = callback;
    return previous;
}

CMsgCallback* CMsgCallbackManager::GetCurrent() const
{
    return m_current;
}
