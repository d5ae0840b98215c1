// AcDbMText: a paragraph of text with formatting codes.
#pragma once

#include "dbents.h"

class ARX_API AcDbMText : public AcDbEntity
{
public:
    ACRX_DECLARE_MEMBERS(AcDbMText);

    enum AttachmentPoint
    {
        kTopLeft = 1,
        kTopCenter = 2,
        kTopRight = 3,
        kMiddleLeft = 4,
        kMiddleCenter = 5,
        kMiddleRight = 6,
        kBottomLeft = 7,
        kBottomCenter = 8,
        kBottomRight = 9
    };

    AcDbMText();

    AcGePoint3d location() const { return m_location; }
    Acad::ErrorStatus setLocation(const AcGePoint3d& location);
    AcGeVector3d normal() const { return m_normal; }
    Acad::ErrorStatus setNormal(const AcGeVector3d& normal);
    // The x axis of the text, in world coordinates.
    AcGeVector3d direction() const { return m_direction; }
    Acad::ErrorStatus setDirection(const AcGeVector3d& direction);
    // The text with its formatting codes, as the file holds it. The copy is freed with acutDelString.
    ACHAR* contents() const;
    Acad::ErrorStatus setContents(const ACHAR* text);
    // Width at which lines are broken; 0 breaks at paragraph ends alone.
    double width() const { return m_width; }
    Acad::ErrorStatus setWidth(double width);
    double textHeight() const { return m_height; }
    Acad::ErrorStatus setTextHeight(double height);
    AttachmentPoint attachment() const { return m_attachment; }
    Acad::ErrorStatus setAttachment(AttachmentPoint attachment);
    // Distance of base lines as a multiple of 5/3 of the height.
    double lineSpacingFactor() const { return m_lineSpacing; }
    Acad::ErrorStatus setLineSpacingFactor(double factor);

    virtual void emitPieces(arxgi::PieceSink& sink) const;

private:
    std::wstring m_contents;
    AcGePoint3d m_location;
    AcGeVector3d m_normal;
    AcGeVector3d m_direction;
    double m_width;
    double m_height;
    double m_lineSpacing;
    AttachmentPoint m_attachment;
};
