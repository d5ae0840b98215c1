// The user-interface threads that run the module's code: none of them may outlive the module.
#pragma once

// By such a thread at its start.
void AddModuleThread();

// At the module's end: ends every such thread that still runs, and waits until it is gone. What the threads' windows
// send to the caller's meanwhile is answered.
void EndModuleThreads();
