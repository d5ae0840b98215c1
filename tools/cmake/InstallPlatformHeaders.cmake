# Run at the installation: copies the platform's public headers (platform/*/include) and, of its own headers, just those
# that the public ones include, directly or not. ZNKT_PLATFORM_FOLDER is the folder "platform".

cmake_policy(VERSION 3.22)

# The file that an #include in `file` names, relative to the platform's folder; empty when it is none of the platform's.
function(find_included file name result)
  get_filename_component(folder "${file}" DIRECTORY)
  foreach(candidate "${folder}/${name}" "${name}")
    get_filename_component(path "${ZNKT_PLATFORM_FOLDER}/${candidate}" ABSOLUTE)
    if(EXISTS "${path}")
      file(RELATIVE_PATH relative "${ZNKT_PLATFORM_FOLDER}" "${path}")
      set(${result} "${relative}" PARENT_SCOPE)
      return()
    endif()
  endforeach()
  set(${result} "" PARENT_SCOPE)
endfunction()

file(GLOB waiting RELATIVE "${ZNKT_PLATFORM_FOLDER}" "${ZNKT_PLATFORM_FOLDER}/*/include/*.h")
set(needed "")
while(waiting)
  list(POP_FRONT waiting file)
  list(APPEND needed "${file}")
  file(STRINGS "${ZNKT_PLATFORM_FOLDER}/${file}" lines REGEX "^#[ \t]*include[ \t]+[\"<]")
  foreach(line IN LISTS lines)
    string(REGEX REPLACE "^#[ \t]*include[ \t]+[\"<]([^\">]+)[\">].*" "\\1" name "${line}")
    find_included("${file}" "${name}" found)
    if(found AND NOT found IN_LIST needed AND NOT found IN_LIST waiting)
      list(APPEND waiting "${found}")
    endif()
  endforeach()
endwhile()

foreach(file IN LISTS needed)
  string(REGEX REPLACE "^[^/]+/include/" "" target "${file}")
  get_filename_component(folder "${target}" DIRECTORY)
  file(INSTALL "${ZNKT_PLATFORM_FOLDER}/${file}" DESTINATION "${CMAKE_INSTALL_PREFIX}/include/platform/${folder}")
endforeach()
