# cmake --install build --prefix dist: what a client programmer gets.
#   bin      host, DLLs, modules, the compiler's own DLLs, sample drawings: runs on Windows as it is
#   include  the module's exported headers and the bundled platform's
#   lib      import libraries and the CMake package ZNKTControls

set(ZNKT_PLATFORM_TARGETS afx arx xtp ZnQFCBaseU ZNKTPub ZnAcadUiBase ZNKTRes ZNWaitDlgDll)
set(ZNKT_MODULE_TARGETS ZNKTControls drawing_check gallery)

install(TARGETS arxhost ${ZNKT_PLATFORM_TARGETS} ${ZNKT_MODULE_TARGETS}
  RUNTIME DESTINATION bin
  LIBRARY DESTINATION bin
  ARCHIVE DESTINATION lib)
install(TARGETS arxapi ARCHIVE DESTINATION lib)
install(FILES ${ZNKT_RUNTIME_DLLS} DESTINATION bin)
install(DIRECTORY examples/drawings examples/gallery/samples DESTINATION bin)

foreach(part afx arx xtp suite)
  install(DIRECTORY platform/${part}/include/ DESTINATION include/platform)
  install(DIRECTORY platform/${part} DESTINATION include/platform
    FILES_MATCHING PATTERN "*.h" PATTERN "include" EXCLUDE)
endforeach()
# Exported headers include each other by their folders, so the folders are kept.
get_property(exported GLOBAL PROPERTY ZNKT_EXPORTED_HEADERS)
foreach(header ${exported})
  get_filename_component(folder "${header}" DIRECTORY)
  install(FILES src/${header} DESTINATION include/ZNKTControls/${folder})
endforeach()

install(FILES tools/cmake/ZNKTControlsConfig.cmake tools/cmake/mingw-w64-client.cmake DESTINATION lib/cmake/ZNKTControls)
