# Reads src/levels.txt: morpho_folders lists the folders from the lowest level up, morpho_allowed_<folder> what each
# may include besides itself, morpho_built_folders those that are built for the target system.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/levels.txt)
file(STRINGS ${CMAKE_SOURCE_DIR}/src/levels.txt morpho_level_lines REGEX "^[^#]")
set(morpho_folders)
set(morpho_built_folders)
set(system ${CMAKE_SYSTEM_NAME})
foreach(line ${morpho_level_lines})
  if(line MATCHES "^system ([A-Za-z]+)$")
    set(system ${CMAKE_MATCH_1})
  elseif(line MATCHES "^[0-9] ([a-z_]+):(.*)$")
    set(folder ${CMAKE_MATCH_1})
    string(STRIP "${CMAKE_MATCH_2}" allowed)
    string(REPLACE " " ";" morpho_allowed_${folder} "${allowed}")
    list(APPEND morpho_folders ${folder})
    if(system STREQUAL CMAKE_SYSTEM_NAME)
      list(APPEND morpho_built_folders ${folder})
    endif()
    # A folder's headers are reached as "folder/header.h" through a directory that holds nothing but this folder.
    file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/include/${folder})
    file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${folder} ${CMAKE_BINARY_DIR}/include/${folder}/${folder} SYMBOLIC)
  else()
    message(FATAL_ERROR "src/levels.txt: not understood: ${line}")
  endif()
endforeach()
if(WIN32)
  list(REMOVE_ITEM morpho_built_folders colorizer) # There is no libjpeg for the target yet.
endif()

# morpho_include_paths(RESULT FOLDER...): the include paths of these folders alone.
function(morpho_include_paths result)
  list(TRANSFORM ARGN PREPEND ${CMAKE_BINARY_DIR}/include/ OUTPUT_VARIABLE paths)
  set(${result} ${paths} PARENT_SCOPE)
endfunction()
