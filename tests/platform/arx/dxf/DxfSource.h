// Writes small drawing files for the tests: groups one after another, with the frame that every file needs.
#pragma once

#include "arx/dxf/DxfReader.h"

#include "dbmain.h"

#include <string>

class DxfSource
{
public:
    DxfSource& Group(int code, const std::string& value)
    {
        m_text += std::to_string(code) + "\n" + value + "\n";
        return *this;
    }

    DxfSource& Section(const std::string& name) { return Group(0, "SECTION").Group(2, name); }
    DxfSource& End() { return Group(0, "ENDSEC"); }

    // A header with version and code page; either may be empty.
    DxfSource& Header(const std::string& version, const std::string& codePage = "")
    {
        Section("HEADER");
        if (!version.empty())
        {
            Group(9, "$ACADVER").Group(1, version);
        }
        if (!codePage.empty())
        {
            Group(9, "$DWGCODEPAGE").Group(3, codePage);
        }
        return End();
    }

    DxfSource& Layer(const std::string& name, int color = 7, int flags = 0)
    {
        return Group(0, "LAYER").Group(2, name).Group(70, std::to_string(flags)).Group(62, std::to_string(color));
    }

    DxfSource& LayerTable() { return Section("TABLES").Group(0, "TABLE").Group(2, "LAYER"); }
    DxfSource& EndLayerTable() { return Group(0, "ENDTAB").End(); }

    DxfSource& Entity(const std::string& type, const std::string& layer = "0")
    {
        return Group(0, type).Group(8, layer);
    }

    DxfSource& Line(double x1, double y1, double x2, double y2, const std::string& layer = "0")
    {
        return Entity("LINE", layer).Point(10, x1, y1).Point(11, x2, y2);
    }

    DxfSource& Insert(const std::string& block, double x = 0, double y = 0)
    {
        return Entity("INSERT").Group(2, block).Point(10, x, y);
    }

    DxfSource& BeginBlock(const std::string& name) { return Group(0, "BLOCK").Group(2, name).Point(10, 0, 0); }
    DxfSource& EndBlock() { return Group(0, "ENDBLK"); }

    DxfSource& Point(int code, double x, double y) { return Real(code, x).Real(code + 10, y); }
    DxfSource& Real(int code, double value) { return Group(code, std::to_string(value)); }

    // The text so far, closed by the mark of the end.
    std::string Whole() const { return m_text + "0\nEOF\n"; }
    // The text as it stands.
    const std::string& Text() const { return m_text; }

private:
    std::string m_text;
};

// A database and what reading a text into it gave.
struct ReadDrawing
{
    explicit ReadDrawing(const std::string& text) : database(true)
    {
        succeeded = arxdxf::ReadDxfText(text.data(), text.size(), database, result);
    }

    AcDbDatabase database;
    arxdxf::DxfResult result;
    bool succeeded = false;
};
