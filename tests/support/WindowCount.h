// Counts the windows of the calling thread, children included, so that a test can show that code leaves none behind.
//
//   const int before = CountWindows();
//   ...
//   EXPECT_EQ(before, CountWindows());
#pragma once

int CountWindows();
