# The project's own Wine: a prefix inside the build folder, never ~/.wine. Sourced, never run.

export WINEPREFIX=${WINEPREFIX_ZNKT:-$ZNKT_BUILD/wine}
export WINEARCH=win64
export WINEDEBUG=${WINEDEBUG:--all}
# No Mono, no HTML engine: neither is packaged, and their installers would ask.
export WINEDLLOVERRIDES="mscoree,mshtml="
WINE_PROGRAM=/usr/lib/wine/wine64
[ -x "$WINE_PROGRAM" ] || WINE_PROGRAM=$(command -v wine64 || command -v wine)
WINESERVER_PROGRAM=/usr/lib/wine/wineserver64
[ -x "$WINESERVER_PROGRAM" ] || WINESERVER_PROGRAM=$(command -v wineserver)
