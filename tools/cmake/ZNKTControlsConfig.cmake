# find_package(ZNKTControls) gives
#   ZNKT::Platform   the bundled platform: framework, host interface, toolkit, sibling modules
#   ZNKT::Controls   the control library and message service (brings ZNKT::Platform)
#   znkt_add_arx_module(name sources...)   a module that the host loads with ARX L name.arx

get_filename_component(_znkt_root "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)

# Why the compiler of the calling project cannot link with this SDK; empty when it can.
function(_znkt_compiler_fault result)
  set(toolchain "-DCMAKE_TOOLCHAIN_FILE=${CMAKE_CURRENT_LIST_DIR}/mingw-w64-client.cmake")
  set(needed "This SDK needs an x86_64 mingw-w64 compiler with the posix thread model (Debian and Ubuntu: g++-mingw-w64-x86-64-posix).")
  set(fault "")
  if(NOT CMAKE_CXX_COMPILER)
    set(fault "The project has no C++ compiler. ${needed} Write project(name LANGUAGES CXX) before find_package.")
  elseif(NOT WIN32)
    set(fault "The compiler ${CMAKE_CXX_COMPILER} makes programs for ${CMAKE_SYSTEM_NAME}, not for Windows. ${needed} "
      "In a new build folder give cmake ${toolchain}")
  elseif(MSVC OR CMAKE_CXX_SIMULATE_ID STREQUAL "MSVC")
    set(fault "Visual C++ cannot link with these libraries. ${needed} "
      "With Visual C++ a module is built against the real SDKs: see examples/client_template/README.md.")
  elseif(NOT CMAKE_SIZEOF_VOID_P EQUAL 8)
    set(fault "The compiler ${CMAKE_CXX_COMPILER} makes 32-bit programs. ${needed} In a new build folder give cmake ${toolchain}")
  elseif(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    execute_process(COMMAND "${CMAKE_CXX_COMPILER}" -v OUTPUT_QUIET ERROR_VARIABLE version)
    if(version MATCHES "Thread model: win32")
      set(fault "The compiler ${CMAKE_CXX_COMPILER} has the thread model win32. ${needed} In a new build folder give cmake ${toolchain}")
    endif()
  endif()
  string(CONCAT fault ${fault})
  set(${result} "${fault}" PARENT_SCOPE)
endfunction()

_znkt_compiler_fault(_znkt_fault)
if(_znkt_fault)
  set(ZNKTControls_FOUND FALSE)
  set(ZNKTControls_NOT_FOUND_MESSAGE "${_znkt_fault}")
  return()
endif()

function(_znkt_import target file)
  if(TARGET ${target})
    return()
  endif()
  get_filename_component(name "${file}" NAME_WE)
  add_library(${target} SHARED IMPORTED)
  set_target_properties(${target} PROPERTIES
    IMPORTED_LOCATION "${_znkt_root}/bin/${file}"
    IMPORTED_IMPLIB "${_znkt_root}/lib/lib${name}.dll.a"
    INTERFACE_INCLUDE_DIRECTORIES "${_znkt_root}/include/platform")
endfunction()

_znkt_import(ZNKT::afx afx.dll)
_znkt_import(ZNKT::arx arx.dll)
_znkt_import(ZNKT::xtp xtp.dll)
_znkt_import(ZNKT::ZnQFCBaseU ZnQFCBaseU.dll)
_znkt_import(ZNKT::ZNKTPub ZNKTPub.arx)
_znkt_import(ZNKT::ZnAcadUiBase ZnAcadUiBase.arx)
_znkt_import(ZNKT::ZNWaitDlgDll ZNWaitDlgDll.dll)
_znkt_import(ZNKT::ControlsModule ZNKTControls.arx)

# The interface version that every module exports; no source asks for it, so the linker is told to.
if(NOT TARGET ZNKT::arxapi)
  add_library(ZNKT::arxapi STATIC IMPORTED)
  set_target_properties(ZNKT::arxapi PROPERTIES
    IMPORTED_LOCATION "${_znkt_root}/lib/libarxapi.a"
    INTERFACE_LINK_OPTIONS -Wl,--undefined=acrxGetApiVersion)
endif()

if(NOT TARGET ZNKT::Platform)
  add_library(ZNKT::Platform INTERFACE IMPORTED)
  set_target_properties(ZNKT::Platform PROPERTIES
    INTERFACE_LINK_LIBRARIES
      "ZNKT::arx;ZNKT::xtp;ZNKT::ZNKTPub;ZNKT::ZnAcadUiBase;ZNKT::ZNWaitDlgDll;ZNKT::ZnQFCBaseU;ZNKT::afx;comctl32;gdi32;ole32;uuid"
    INTERFACE_COMPILE_DEFINITIONS
      "UNICODE;_UNICODE;WIN32;_WINDOWS;WINVER=0x0601;_WIN32_WINNT=0x0601;_WIN32_IE=0x0800;_AFXDLL;NOMINMAX"
    # The framework's null objects and typed pointer collections need both, as the platform's own build does.
    INTERFACE_COMPILE_OPTIONS "-fno-delete-null-pointer-checks;-fno-strict-aliasing"
    INTERFACE_COMPILE_FEATURES cxx_std_17)

  file(GLOB _znkt_folders LIST_DIRECTORIES true "${_znkt_root}/include/ZNKTControls/*")
  set(_znkt_includes "${_znkt_root}/include/ZNKTControls")
  foreach(_folder ${_znkt_folders})
    if(IS_DIRECTORY "${_folder}")
      list(APPEND _znkt_includes "${_folder}")
    endif()
  endforeach()
  add_library(ZNKT::Controls INTERFACE IMPORTED)
  set_target_properties(ZNKT::Controls PROPERTIES
    INTERFACE_LINK_LIBRARIES "ZNKT::ControlsModule;ZNKT::Platform"
    INTERFACE_INCLUDE_DIRECTORIES "${_znkt_includes}")
endif()

# A module: a DLL named <name>.arx, an extension DLL of the framework, with the two exports that the host asks for.
function(znkt_add_arx_module name)
  if(NOT ARGN)
    message(FATAL_ERROR "znkt_add_arx_module(${name}): the sources are missing: znkt_add_arx_module(${name} ${name}.cpp ...)")
  endif()
  add_library(${name} SHARED ${ARGN})
  target_compile_definitions(${name} PRIVATE _AFXEXT)
  # First: the sibling modules export the same name, and theirs must not stand in for the module's own.
  target_link_libraries(${name} PRIVATE ZNKT::arxapi ZNKT::Controls)
  set_target_properties(${name} PROPERTIES PREFIX "" SUFFIX ".arx")
endfunction()
