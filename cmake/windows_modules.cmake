# morpho_com_server(NAME FOLDER DESCRIPTION): src/FOLDER/main.cpp as NAME.dll, a COM server of this folder's library.
function(morpho_com_server name folder description)
  add_library(${name} SHARED main.cpp ${CMAKE_SOURCE_DIR}/src/windows_com/server.def)
  set_target_properties(${name} PROPERTIES PREFIX "")
  # The names of server.def stand for the decorated ones of 32-bit Windows.
  target_link_options(${name} PRIVATE LINKER:--enable-stdcall-fixup $<$<CONFIG:Release>:-s>)
  morpho_use(${name} ${folder})
  morpho_version_resource(${name} ${name}.dll "${description}")
endfunction()

# morpho_version_resource(TARGET FILE DESCRIPTION): what Windows shows of the file: version, name, description.
function(morpho_version_resource target file description)
  if(file MATCHES "\\.dll$")
    set(file_type VFT_DLL)
  else()
    set(file_type VFT_APP)
  endif()
  string(REPLACE . , version_numbers ${PROJECT_VERSION}.0)
  configure_file(${CMAKE_SOURCE_DIR}/cmake/version.rc.in ${CMAKE_CURRENT_BINARY_DIR}/${file}.rc @ONLY)
  target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${file}.rc)
endfunction()
