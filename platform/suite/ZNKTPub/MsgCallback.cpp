#include "suite/ZNKTPub/MsgCallback.h"

CMsgCallback::CMsgCallback() {}

CMsgCallback::CMsgCallback(const CMsgCallback& /*other*/) {}

CMsgCallback& CMsgCallback::operator=(const CMsgCallback& /*other*/)
{
    return *this;
}

CMsgCallback::~CMsgCallback() {}
