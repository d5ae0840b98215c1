// AcGeTol: how far two values may be apart and still count as equal.
#pragma once

#include "arx/Api.h"

class AcGeTol
{
public:
    AcGeTol() : m_point(1e-10), m_vector(1e-10) {}

    // Greatest distance of equal points, in drawing units.
    double equalPoint() const { return m_point; }
    // Greatest difference of equal directions (of unit vectors).
    double equalVector() const { return m_vector; }
    void setEqualPoint(double tolerance) { m_point = tolerance; }
    void setEqualVector(double tolerance) { m_vector = tolerance; }

private:
    double m_point;
    double m_vector;
};

struct ARX_API AcGeContext
{
    static AcGeTol gTol;
};
