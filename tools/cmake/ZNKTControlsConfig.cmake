# find_package(ZNKTControls) gives
#   ZNKT::Platform   the bundled platform: framework, host interface, toolkit, sibling modules
#   ZNKT::Controls   the control library and message service (brings ZNKT::Platform)
#   znkt_add_arx_module(name sources...)   a module that the host loads with ARX L name.arx

get_filename_component(_znkt_root "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)

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
  add_library(${name} SHARED ${ARGN})
  target_compile_definitions(${name} PRIVATE _AFXEXT)
  # First: the sibling modules export the same name, and theirs must not stand in for the module's own.
  target_link_libraries(${name} PRIVATE ZNKT::arxapi ZNKT::Controls)
  set_target_properties(${name} PROPERTIES PREFIX "" SUFFIX ".arx")
endfunction()
