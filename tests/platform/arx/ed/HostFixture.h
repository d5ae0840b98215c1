// A host without a frame: prints into a text, starts and ends empty.
#pragma once

#include "../db/TestEntity.h"

#include "arx/ed/HostServices.h"

#include <gtest/gtest.h>

#include <string>

class HostTest : public testing::Test, public arxhost::IPrintSink
{
protected:
    void SetUp() override
    {
        arxhost::Reset();
        arxhost::SetPrintSink(this);
    }
    void TearDown() override { arxhost::Reset(); }
    void Print(const wchar_t* text) override { printed += text; }

    std::wstring Take()
    {
        std::wstring taken;
        taken.swap(printed);
        return taken;
    }

    std::wstring printed;
};

// An entity's name in the C interface.
struct EntityName
{
    explicit EntityName(AcDbObjectId id)
    {
        name[0] = id.asOldId();
        name[1] = 0;
    }
    ads_name name;
};
