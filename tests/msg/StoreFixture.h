// An empty store and a host without documents, before and after each test.
#pragma once

#include <afxwin.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "arx/ed/HostServices.h"
#include "msg/KTMsgWnd.h"
#include "msg/ZNMsgManager.h"

class StoreFixture : public ::testing::Test
{
protected:
    StoreFixture()
    {
        CZNMsgManager::DestroyInstance();
        arxhost::Reset();
    }

    ~StoreFixture() override
    {
        CZNMsgManager::DestroyInstance();
        arxhost::Reset();
    }

    static CZNMsgManager& Store() { return CZNMsgManager::Instance(); }

    // A message of the current document (bound) or of none.
    static void Add(const wchar_t* group, const wchar_t* text, bool bound = false)
    {
        ASSERT_TRUE(KTMsgWnd::AddMsg(KTMsgWnd::eInfo, group, text, bound, NULL, NULL));
    }

    // The texts of the visible messages in the store's order.
    static std::vector<std::wstring> VisibleTexts()
    {
        CZNMsgArray messages;
        Store().CollectVisible(messages);
        return TextsOf(messages);
    }

    static std::vector<std::wstring> TextsOf(const CZNMsgArray& messages)
    {
        std::vector<std::wstring> texts;
        for (INT_PTR i = 0; i < messages.GetSize(); ++i)
            texts.push_back(messages[i].text.GetString());
        return texts;
    }

    static CZNMsgData Last()
    {
        CZNMsgArray messages;
        Store().CollectVisible(messages);
        return messages.GetSize() == 0 ? CZNMsgData() : messages[messages.GetSize() - 1];
    }

    typedef std::vector<std::wstring> Texts;
};
