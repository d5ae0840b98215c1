# For clients on Linux: cross compiler for 64-bit Windows (posix thread model: std::thread and friends work).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
# Debian packages two thread models and names them; where there is only one, its name is plain.
foreach(_znkt_tool CXX:g++ C:gcc)
  string(REPLACE ":" ";" _znkt_tool "${_znkt_tool}")
  list(GET _znkt_tool 0 _znkt_language)
  list(GET _znkt_tool 1 _znkt_program)
  find_program(ZNKT_MINGW_${_znkt_language} NAMES x86_64-w64-mingw32-${_znkt_program}-posix x86_64-w64-mingw32-${_znkt_program})
  if(NOT ZNKT_MINGW_${_znkt_language})
    message(FATAL_ERROR "x86_64-w64-mingw32-${_znkt_program} is not here. Install the cross compiler for 64-bit Windows "
      "(Debian and Ubuntu: apt-get install g++-mingw-w64-x86-64-posix).")
  endif()
  set(CMAKE_${_znkt_language}_COMPILER "${ZNKT_MINGW_${_znkt_language}}")
endforeach()
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
# windres reads UTF-8 sources; the scripts hold Chinese dialogs.
set(CMAKE_RC_FLAGS_INIT "-c 65001")
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
