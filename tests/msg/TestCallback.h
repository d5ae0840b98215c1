// Callbacks and managers that tests can look into.
#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

#include "WaitDialog.h"
#include "msg/MsgCallbackImp.h"

// What a client writes to get a callback: the constructor is protected.
class TestCallback : public CMsgCallbackImp
{
public:
    explicit TestCallback(CMsgCallbackManager* manager) : CMsgCallbackImp(manager) {}
};

// Whether a wait dialog stood on the screen is noted with each registration.
class RecordingManager : public CMsgCallbackManager
{
public:
    struct Call
    {
        CMsgCallback* callback;
        bool dialogShown;
    };

    CMsgCallback* Register(CMsgCallback* callback) override
    {
        calls.push_back({callback, WaitDialog::IsShown()});
        return CMsgCallbackManager::Register(callback);
    }

    std::vector<Call> calls;
};
