#include "Angles.h"

#include <cmath>

namespace arxents
{

namespace
{

// Files round their angles: what is this near to nothing is a full turn.
constexpr double kSameAngle = 1e-9;

} // namespace

double SweepBetween(double start, double end)
{
    double sweep = std::fmod(end - start, kTwoPi);
    if (sweep < 0)
    {
        sweep += kTwoPi;
    }
    return sweep < kSameAngle ? kTwoPi : sweep;
}

} // namespace arxents
