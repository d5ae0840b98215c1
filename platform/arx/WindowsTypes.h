// Windows as the framework includes it: winsock2.h refuses to come behind windows.h.
#pragma once

#include <winsock2.h>

#include <windows.h>
