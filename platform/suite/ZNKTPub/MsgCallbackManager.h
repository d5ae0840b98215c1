// Knows the callback that operations report through now. It keeps no stack: who registers a callback puts back the one
// that Register returned, in strict reverse order.
//
//     CMsgCallback* const callback = CMsgCallbackManager::GetInstance()->GetCurrent();
//     if (callback != NULL && callback->IsCanceled())
//         return;
#pragma once

#include "suite/ZNKTPub/Api.h"

class CMsgCallback;

class ZNKTPUB_API CMsgCallbackManager
{
public:
    // The one manager of the suite.
    static CMsgCallbackManager* GetInstance();

    CMsgCallbackManager();
    virtual ~CMsgCallbackManager();

    // Makes `callback` the current one (null: there is none then) and returns the one before it, null when there was
    // none. Not owned.
    virtual CMsgCallback* Register(CMsgCallback* callback);

    CMsgCallback* GetCurrent() const;

private:
    CMsgCallbackManager(const CMsgCallbackManager&);
    void operator=(const CMsgCallbackManager&);

    CMsgCallback* m_current;
};
