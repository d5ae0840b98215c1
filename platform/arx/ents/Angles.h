// Angles of entities, in radians.
#pragma once

namespace arxents
{

constexpr double kPi = 3.14159265358979323846;
constexpr double kTwoPi = 2 * kPi;

// Counter-clockwise angle from start to end in (0, 2 pi]: equal angles are a full turn.
double SweepBetween(double start, double end);

} // namespace arxents
