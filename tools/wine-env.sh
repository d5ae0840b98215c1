# The project's own Wine: a prefix inside the build folder, never ~/.wine. Sourced, never run.

export WINEPREFIX=${WINEPREFIX_ZNKT:-$ZNKT_BUILD/wine}
export WINEARCH=win64
export WINEDEBUG=${WINEDEBUG:--all}
# No Mono, no HTML engine: neither is packaged, and their installers would ask.
export WINEDLLOVERRIDES="mscoree,mshtml="
WINE_PROGRAM=/usr/lib/wine/wine64
[ -x "$WINE_PROGRAM" ] || WINE_PROGRAM=$(command -v wine64 || command -v wine || true)
WINESERVER_PROGRAM=/usr/lib/wine/wineserver64
[ -x "$WINESERVER_PROGRAM" ] || WINESERVER_PROGRAM=$(command -v wineserver || true)
# Wine reads file names in the locale's characters; in the plain C locale it would not see Chinese ones.
[ "$(locale charmap 2>/dev/null)" = UTF-8 ] || export LC_ALL=C.UTF-8

need_wine() {
  [ -n "$WINE_PROGRAM" ] && [ -n "$WINESERVER_PROGRAM" ] || fail "Wine is not here: apt-get install wine wine64 (./run and ./test install it)"
}
