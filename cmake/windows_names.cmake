# morpho_check_windows_names(TARGET FOLDER...): a library that is only compiled, never used: <windows.h>, then every
# header of these folders of src/. A header fails there when <windows.h> redefines one of its names.
#
# Syntax errors show most of that, but not the functions with an A and a W variant: <windows.h> renames CopyFile to
# CopyFileA in declarations and calls alike, which compiles, and fails at a link elsewhere or not at all. So these
# names, which the compiler lists, become errors wherever they stand.
function(morpho_check_windows_names target)
  # The functions of ours that keep their name: a file that calls them undefines the macro after <windows.h>.
  set(kept GetTempPath)

  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -x c++ -E -dM -include windows.h /dev/null
    OUTPUT_VARIABLE macros COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX MATCHALL "#define [A-Za-z0-9_]+ __MINGW_NAME_" macros "${macros}")
  list(TRANSFORM macros REPLACE "#define ([A-Za-z0-9_]+) .*" "\\1" OUTPUT_VARIABLE renamed)
  if(NOT "CopyFile" IN_LIST renamed)
    message(FATAL_ERROR "<windows.h> was not understood: CopyFile is missing among the names that it renames.")
  endif()

  set(unit "#include <windows.h>\n")
  foreach(name ${renamed})
    string(APPEND unit "#undef ${name}\n")
    if(NOT name IN_LIST kept)
      string(APPEND unit "#pragma GCC poison ${name}\n")
    endif()
  endforeach()
  foreach(folder ${ARGN})
    file(GLOB headers CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/src/${folder}/*.h)
    list(TRANSFORM headers REPLACE "(.+)" "#include \"\\1\"\n")
    string(APPEND unit ${headers})
  endforeach()
  file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${target}.cpp CONTENT "${unit}" @ONLY)

  add_library(${target} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${target}.cpp)
  # min and max are macros of <windows.h> that no file of ours wants.
  target_compile_definitions(${target} PRIVATE NOMINMAX)
  morpho_use(${target} ${ARGN})
endfunction()
