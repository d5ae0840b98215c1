# Settings and functions that every folder of the project shares.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# Windows looks for DLLs beside the program, so everything that runs lies in one folder.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")

find_program(ZNKT_CCACHE ccache)
if(ZNKT_CCACHE)
  set(CMAKE_C_COMPILER_LAUNCHER "${ZNKT_CCACHE}")
  set(CMAKE_CXX_COMPILER_LAUNCHER "${ZNKT_CCACHE}")
endif()

# Unicode Windows 7 and later, the framework shared as a DLL.
set(ZNKT_DEFINITIONS UNICODE _UNICODE WIN32 _WINDOWS WINVER=0x0601 _WIN32_WINNT=0x0601 _WIN32_IE=0x0800 _AFXDLL NOMINMAX
  $<$<CONFIG:Debug>:_DEBUG>)
if(MSVC)
  set(ZNKT_WARNINGS /W4 /WX)
else()
  set(ZNKT_WARNINGS -Wall -Wextra -Werror -Wno-unknown-pragmas)
  # A failed assertion names its file: by its place in the project, not on this machine.
  add_compile_options($<$<CONFIG:Debug>:-fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=>)
endif()

# Own code of a target: definitions and warnings as errors.
function(znkt_own_code target)
  target_compile_definitions(${target} PRIVATE ${ZNKT_DEFINITIONS})
  target_compile_options(${target} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:${ZNKT_WARNINGS}>)
  set_target_properties(${target} PROPERTIES PREFIX "")
endfunction()

# A DLL of the platform: znkt_add_dll(afx SOURCES ... LIBS ...). <NAME>_EXPORTS is defined while it is built.
function(znkt_add_dll name)
  cmake_parse_arguments(ARG "" "SUFFIX" "SOURCES;LIBS" ${ARGN})
  add_library(${name} SHARED ${ARG_SOURCES})
  znkt_own_code(${name})
  target_link_libraries(${name} PUBLIC ${ARG_LIBS})
  set_target_properties(${name} PROPERTIES IMPORT_PREFIX "lib")
  if(ARG_SUFFIX)
    set_target_properties(${name} PROPERTIES SUFFIX "${ARG_SUFFIX}")
  endif()
endfunction()

# A module of the host: a DLL named <name>.arx that is built as an extension DLL of the framework.
function(znkt_add_arx_module name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
  znkt_add_dll(${name} SUFFIX ".arx" SOURCES ${ARG_SOURCES} LIBS ${ARG_LIBS})
  target_compile_definitions(${name} PRIVATE _AFXEXT)
endfunction()

# What Windows shows of a file under "details": znkt_version_info(arxhost "图形主机"). The version is the project's.
function(znkt_version_info target description)
  string(REPLACE "." "," ZNKT_FILE_VERSION "${PROJECT_VERSION},0")
  set(ZNKT_FILE_DESCRIPTION "${description}")
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "EXECUTABLE")
    set(ZNKT_FILE_TYPE VFT_APP)
  else()
    set(ZNKT_FILE_TYPE VFT_DLL)
  endif()
  set(ZNKT_FILE_TARGET "${target}")
  set(script "${CMAKE_CURRENT_BINARY_DIR}/${target}_version.rc")
  configure_file("${PROJECT_SOURCE_DIR}/tools/cmake/version.rc.in" "${script}" @ONLY)
  target_sources(${target} PRIVATE "${script}")
  if(MINGW)
    # windres does not obey the script's own code page line.
    set_source_files_properties("${script}" PROPERTIES COMPILE_OPTIONS "-c;65001")
  endif()
endfunction()

# A test program of one subsystem and one rung:
#   znkt_add_test(afx_string RUNG logic SOURCES ... LIBS ...)   makes test_afx_string.exe and a ctest entry labelled "logic".
# Rungs: logic (no window), message (controls driven by messages), pixel (drawn into a DIB), input (real mouse and keyboard).
# Programs that own windows share one desktop, where only one window can have the focus: they take turns.
function(znkt_add_test name)
  cmake_parse_arguments(ARG "" "RUNG" "SOURCES;LIBS" ${ARGN})
  set(target test_${name})
  add_executable(${target} ${ARG_SOURCES})
  znkt_own_code(${target})
  target_link_libraries(${target} PRIVATE ${ARG_LIBS} znkt_test_support)
  add_test(NAME ${name} COMMAND ${target} WORKING_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
  set_tests_properties(${name} PROPERTIES LABELS ${ARG_RUNG} TIMEOUT 300)
  if(NOT ARG_RUNG STREQUAL "logic")
    set_tests_properties(${name} PROPERTIES RESOURCE_LOCK desktop)
  endif()
endfunction()

if(MINGW)
  # The compiler's own DLLs beside the programs.
  foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll} OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT IS_ABSOLUTE "${path}")
      set(path "/usr/x86_64-w64-mingw32/lib/${dll}")
    endif()
    configure_file("${path}" "${CMAKE_BINARY_DIR}/bin/${dll}" COPYONLY)
    list(APPEND ZNKT_RUNTIME_DLLS "${path}")
  endforeach()
endif()
