// The threads of check windows that run: none of them may outlive the module, whose code they run.
#pragma once

// By a check window's thread at its start.
void AddCheckMsgThread();

// At the module's end: ends every thread that still runs, and waits until it is gone. What the threads' windows send to
// the caller's meanwhile is answered.
void EndCheckMsgThreads();
