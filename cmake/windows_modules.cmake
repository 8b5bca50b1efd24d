# morpho_com_server(NAME FOLDER DESCRIPTION): src/FOLDER/main.cpp as NAME.dll, a COM server of this folder's library.
function(morpho_com_server name folder description)
  add_library(${name} SHARED main.cpp ${CMAKE_SOURCE_DIR}/src/windows_com/server.def)
  set_target_properties(${name} PROPERTIES PREFIX "")
  # The names of server.def stand for the decorated ones of 32-bit Windows.
  target_link_options(${name} PRIVATE LINKER:--enable-stdcall-fixup $<$<CONFIG:Release>:-s>)
  morpho_use(${name} ${folder})
  morpho_version_resource(${name} ${name}.dll "${description}")
endfunction()

# morpho_resources(TARGET SCRIPT FILE...): the resources of SCRIPT, which names these files without their folders.
function(morpho_resources target script)
  # windres knows none of the compiler's options, so the resources are compiled apart from the rest.
  get_filename_component(name ${script} NAME_WE)
  add_library(${target}_${name}_resources OBJECT ${script})
  foreach(file ${ARGN})
    get_filename_component(path ${file} ABSOLUTE)
    get_filename_component(folder ${path} DIRECTORY)
    target_include_directories(${target}_${name}_resources PRIVATE ${folder})
    set_property(SOURCE ${script} APPEND PROPERTY OBJECT_DEPENDS ${path})
  endforeach()
  target_link_libraries(${target} PRIVATE ${target}_${name}_resources)
endfunction()

# morpho_version_resource(TARGET FILE DESCRIPTION): what Windows shows of the file: version, name, description.
function(morpho_version_resource target file description)
  if(file MATCHES "\\.dll$")
    set(file_type VFT_DLL)
  else()
    set(file_type VFT_APP)
  endif()
  string(REPLACE . , version_numbers ${PROJECT_VERSION}.0)
  configure_file(${CMAKE_SOURCE_DIR}/cmake/version.rc.in ${CMAKE_CURRENT_BINARY_DIR}/version.rc @ONLY)
  morpho_resources(${target} ${CMAKE_CURRENT_BINARY_DIR}/version.rc)
endfunction()
