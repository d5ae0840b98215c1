// Counts the arrays that code of the test program holds: what was allocated by new[] and not yet released.
//
//     const long before = LiveArrays();
//     ...
//     EXPECT_EQ(before, LiveArrays());
#pragma once

long LiveArrays();
