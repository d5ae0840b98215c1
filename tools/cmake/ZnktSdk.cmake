# The real SDKs in place of the bundled platform: targets of the same names over folders that the builder names, so that src/ is built by the same
# CMakeLists.txt. See docs/building.md.
set(ZNKT_SDK_INCLUDE "" CACHE STRING "Include folders of the host's SDK, the toolkit and the sibling modules")
set(ZNKT_SDK_LIB "" CACHE STRING "Library folders of the same")
foreach(variable ZNKT_SDK_INCLUDE ZNKT_SDK_LIB)
  if(NOT ${variable})
    message(FATAL_ERROR "ZNKT_PLATFORM=sdk needs ${variable} (docs/building.md tells what it names)")
  endif()
  foreach(folder ${${variable}})
    if(NOT IS_DIRECTORY "${folder}")
      message(FATAL_ERROR "${variable}: there is no folder ${folder}")
    endif()
  endforeach()
endforeach()

# The framework as a DLL comes with the compiler.
set(CMAKE_MFC_FLAG 2)

set(ZNKT_SDK_LIBS_arx acad rxapi acdb18 acui18 adui18)
set(ZNKT_SDK_LIBS_ZnQFCBaseU ZnQFCBaseU)
set(ZNKT_SDK_LIBS_ZNKTPub ZNKTPub)
set(ZNKT_SDK_LIBS_ZnAcadUiBase ZnAcadUiBase)
set(ZNKT_SDK_LIBS_ZNWaitDlgDll ZNWaitDlgDll)
foreach(target afx arx arxapi xtp ZnQFCBaseU ZNKTPub ZnAcadUiBase ZNWaitDlgDll)
  add_library(${target} INTERFACE)
  target_include_directories(${target} INTERFACE ${ZNKT_SDK_INCLUDE})
  target_link_directories(${target} INTERFACE ${ZNKT_SDK_LIB})
  target_link_libraries(${target} INTERFACE ${ZNKT_SDK_LIBS_${target}})
endforeach()
