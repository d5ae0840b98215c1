# cmake --install build --prefix dist: what a client programmer gets, and what a user on Windows unpacks.
#   bin        host, DLLs, modules, the compiler's own DLLs, sample drawings: runs on Windows as it is
#   include    the module's exported headers and the bundled platform's public ones
#   lib        import libraries and the CMake package ZNKTControls
#   examples   the template of a client module
#   open-sample.cmd, README.txt, README.zh-CN.txt
# cmake --build build --target package: the same as build/ZNKTControls-VERSION-win64.zip.
include(CMakePackageConfigHelpers)

set(ZNKT_PLATFORM_TARGETS afx arx xtp ZnQFCBaseU ZNKTPub ZnAcadUiBase ZNKTRes ZNWaitDlgDll)
set(ZNKT_LIBRARY_TARGETS ${ZNKT_PLATFORM_TARGETS} ZNKTControls)
set(ZNKT_EXAMPLE_TARGETS drawing_check entity_hover gallery)

install(TARGETS arxhost ${ZNKT_LIBRARY_TARGETS}
  RUNTIME DESTINATION bin
  LIBRARY DESTINATION bin
  ARCHIVE DESTINATION lib)
# Nobody links with them.
install(TARGETS ${ZNKT_EXAMPLE_TARGETS} RUNTIME DESTINATION bin)
install(TARGETS arxapi ARCHIVE DESTINATION lib)
install(FILES ${ZNKT_RUNTIME_DLLS} DESTINATION bin)
install(DIRECTORY examples/drawings examples/gallery/samples DESTINATION bin)
install(DIRECTORY examples/client_template DESTINATION examples)
# Windows wants line ends of its own, and a mark in front of what is not ASCII.
foreach(file open-sample.cmd README.txt README.zh-CN.txt)
  configure_file("tools/windows/${file}" "${CMAKE_BINARY_DIR}/windows/${file}" @ONLY NEWLINE_STYLE CRLF)
  install(FILES "${CMAKE_BINARY_DIR}/windows/${file}" DESTINATION .)
endforeach()
install(FILES tools/windows/check.scr DESTINATION bin)

if(MINGW)
  # Symbols are nine tenths of the files and name folders of this machine. build/bin keeps them.
  install(CODE "
    set(prefix \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}\")
    file(GLOB binaries \"\${prefix}/bin/*.dll\" \"\${prefix}/bin/*.arx\" \"\${prefix}/bin/*.exe\")
    execute_process(COMMAND \"${CMAKE_STRIP}\" \${binaries} COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND \"${CMAKE_STRIP}\" --strip-debug \"\${prefix}/lib/libarxapi.a\" COMMAND_ERROR_IS_FATAL ANY)")
endif()

# The public headers of the platform lie in the folders "include"; of the others only those that they include.
install(CODE "set(ZNKT_PLATFORM_FOLDER \"${PROJECT_SOURCE_DIR}/platform\")")
install(SCRIPT "${CMAKE_CURRENT_LIST_DIR}/InstallPlatformHeaders.cmake")

# Exported headers include each other by their folders, so the folders are kept.
get_property(exported GLOBAL PROPERTY ZNKT_EXPORTED_HEADERS)
foreach(header ${exported})
  get_filename_component(folder "${header}" DIRECTORY)
  install(FILES src/${header} DESTINATION include/ZNKTControls/${folder})
endforeach()

write_basic_package_version_file("${CMAKE_BINARY_DIR}/ZNKTControlsConfigVersion.cmake" COMPATIBILITY SameMajorVersion
  ARCH_INDEPENDENT) # the package itself says what is wrong with a compiler
install(FILES tools/cmake/ZNKTControlsConfig.cmake tools/cmake/mingw-w64-client.cmake
  "${CMAKE_BINARY_DIR}/ZNKTControlsConfigVersion.cmake"
  DESTINATION lib/cmake/ZNKTControls)

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_FILE_NAME "${PROJECT_NAME}-${PROJECT_VERSION}-win64")
set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY ON)
set(CPACK_PACKAGE_VENDOR "${PROJECT_NAME}")
include(CPack)
