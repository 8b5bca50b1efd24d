# How every folder of this program is built: one library for a folder of src/, one test program for a folder of tests/.

include(levels)

add_library(morpho_options INTERFACE)
# -Wrestrict of g++ 12 misreads the inlined std::string: it warns of overlaps at impossible offsets (GCC bug 105651).
target_compile_options(morpho_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wno-restrict -Werror)
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
  # Checks of stack and buffers at run time. The second needs optimisation.
  target_compile_options(morpho_options INTERFACE $<$<CONFIG:Release>:-fstack-protector-strong -D_FORTIFY_SOURCE=2>)
endif()
if(MORPHO_SANITIZE)
  target_compile_options(morpho_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(morpho_options INTERFACE -fsanitize=address,undefined)
endif()

if(MORPHO_FUZZ)
  # The warnings are those of g++.
  target_compile_options(morpho_options INTERFACE -fsanitize=fuzzer-no-link -Wno-error -Wno-unknown-warning-option)
endif()

# morpho_library(FOLDER [LIBRARY...]): the .cpp files of src/FOLDER as library morpho_FOLDER, or a header-only one where
# there are none, with the libraries of other makers that it needs. src/levels.txt says which folders it is built on.
function(morpho_library folder)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  list(TRANSFORM morpho_allowed_${folder} PREPEND morpho_ OUTPUT_VARIABLE lower)
  if(sources)
    add_library(morpho_${folder} STATIC ${sources})
    morpho_include_paths(paths ${folder} ${morpho_allowed_${folder}})
    target_include_directories(morpho_${folder} PRIVATE ${paths})
    target_link_libraries(morpho_${folder} PUBLIC morpho_options ${lower} ${ARGN})
  else()
    add_library(morpho_${folder} INTERFACE)
    target_link_libraries(morpho_${folder} INTERFACE morpho_options ${lower} ${ARGN})
  endif()
endfunction()

# Lets a program include the headers of these folders and of all that they are built on, and links their libraries.
function(morpho_use target)
  set(folders ${ARGN})
  foreach(folder ${ARGN})
    list(APPEND folders ${morpho_allowed_${folder}})
  endforeach()
  list(REMOVE_DUPLICATES folders)
  morpho_include_paths(paths ${folders})
  target_include_directories(${target} PRIVATE ${paths})
  list(TRANSFORM ARGN PREPEND morpho_)
  target_link_libraries(${target} PRIVATE morpho_options ${ARGN})
endfunction()

# morpho_test(NAME [FOLDER...] [LIBRARIES library...]): the folder's .cpp files as one test program of these folders of
# src/. What other systems cannot do, such as a process that forks, is tried in files named *_linux_test.cpp.
function(morpho_test name)
  cmake_parse_arguments(test "" "" "LIBRARIES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  if(NOT CMAKE_SYSTEM_NAME STREQUAL "Linux")
    list(FILTER sources EXCLUDE REGEX "_linux_test\\.cpp$")
  endif()
  add_executable(test_${name} ${sources})
  target_include_directories(test_${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_compile_definitions(test_${name} PRIVATE MORPHO_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
  morpho_use(test_${name} ${test_UNPARSED_ARGUMENTS})
  target_link_libraries(test_${name} PRIVATE ${test_LIBRARIES} GTest::gmock_main)
  if(CMAKE_CROSSCOMPILING)
    # A start of the emulator for each test would take longer than the tests.
    add_test(NAME ${name} COMMAND test_${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 600)
  else()
    gtest_discover_tests(test_${name} TEST_PREFIX "${name}." DISCOVERY_MODE PRE_TEST
      PROPERTIES TIMEOUT 120 ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
  endif()
endfunction()
