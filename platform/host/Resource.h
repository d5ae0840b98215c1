// Identifiers of the host's resources and commands.
#ifndef ARXHOST_RESOURCE_H
#define ARXHOST_RESOURCE_H

#define IDR_HOST 101
#define IDR_DRAWING 102

// Menu commands; each stands for a command line, see MenuCommands.cpp.
#define ID_HOST_FIRST 0x8000
#define ID_HOST_NEW 0x8000
#define ID_HOST_OPEN 0x8001
#define ID_HOST_CLOSE 0x8002
#define ID_HOST_LOAD 0x8003
#define ID_HOST_SCRIPT 0x8004
#define ID_HOST_SHOT 0x8005
#define ID_HOST_QUIT 0x8006
#define ID_HOST_SELECT_ALL 0x8007
#define ID_HOST_SELECT_NONE 0x8008
#define ID_HOST_ERASE 0x8009
#define ID_HOST_ZOOM_ALL 0x800A
#define ID_HOST_ZOOM_IN 0x800B
#define ID_HOST_ZOOM_OUT 0x800C
#define ID_HOST_PALETTE_SHOW 0x800D
#define ID_HOST_PALETTE_LEFT 0x800E
#define ID_HOST_PALETTE_RIGHT 0x800F
#define ID_HOST_PALETTE_HIDE 0x8010
#define ID_HOST_HELP 0x8011
#define ID_HOST_LAST 0x8011

#endif
