// Which addresses of a page are commands for the program. Free of windows.
#pragma once

// The command of an address: what stands after "app:", compared without regard to letter case; null for any other
// address and for null. Points into the address.
const wchar_t* CommandOfAddress(const wchar_t* address);
