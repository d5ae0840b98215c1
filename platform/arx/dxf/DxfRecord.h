// DxfRecord: the groups of one record of a file (an entity, a layer ...), asked by their codes.
#pragma once

#include "DxfTokenizer.h"

#include "gemat3d.h"
#include "gepnt2d.h"

#include <string>
#include <vector>

namespace arxdxf
{

// Numbers of drawings stay far below; what is beyond is damage, and would spoil every box around it.
const double kMaxCoordinate = 1e18;

// Values of groups. They throw DxfError, with the line, for text that is no such number.
ARX_API double ToDouble(const DxfGroup& group);
ARX_API int ToInt(const DxfGroup& group);

class DxfRecord
{
public:
    // Starts with the group (0, type).
    void Start(const DxfGroup& type);
    void Add(const DxfGroup& group) { m_groups.push_back(group); }

    std::string_view Type() const { return m_type; }
    int Line() const { return m_line; }
    const std::vector<DxfGroup>& Groups() const { return m_groups; }

    // The first group of the code; null when there is none.
    const DxfGroup* Find(int code) const;
    bool Has(int code) const { return Find(code) != nullptr; }
    double Double(int code, double otherwise) const;
    int Int(int code, int otherwise) const;
    // Degrees in the file, radians here.
    double Angle(int code, double otherwiseRadians) const;
    // Throws DxfError when the record lacks the group.
    double RequiredDouble(int code) const;

    // The groups code, code + 10 and code + 20; missing ones are 0.
    AcGePoint3d Point(int code) const;
    // Throws DxfError when the first two are missing.
    AcGePoint3d RequiredPoint(int code) const;
    // The extrusion direction; z when there is none or it has no length.
    AcGeVector3d Normal() const;
    // From the object coordinates of the normal to world coordinates.
    AcGePoint3d ObjectPoint(int code) const { return AcGeMatrix3d::planeToWorld(Normal()) * RequiredPoint(code); }

    // DxfError about the record as a whole.
    [[noreturn]] void Fail(const std::wstring& text) const;

private:
    std::string_view m_type;
    int m_line = 0;
    std::vector<DxfGroup> m_groups;
};

} // namespace arxdxf
