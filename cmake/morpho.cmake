# How every folder of this program is built: one library for a folder of src/, one test program for a folder of tests/.

add_library(morpho_options INTERFACE)
# -Wrestrict of g++ 12 misreads the inlined std::string: it warns of overlaps at impossible offsets (GCC bug 105651).
target_compile_options(morpho_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wno-restrict -Werror)
target_include_directories(morpho_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
if(MORPHO_SANITIZE)
  target_compile_options(morpho_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(morpho_options INTERFACE -fsanitize=address,undefined)
endif()

# morpho_library(NAME [libraries it is built on...]): the folder's .cpp files as library morpho_NAME,
# or a header-only one where there are none.
function(morpho_library name)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  if(sources)
    add_library(morpho_${name} STATIC ${sources})
    target_link_libraries(morpho_${name} PUBLIC morpho_options ${ARGN})
  else()
    add_library(morpho_${name} INTERFACE)
    target_link_libraries(morpho_${name} INTERFACE morpho_options ${ARGN})
  endif()
endfunction()

# morpho_test(NAME [libraries under test...]): the folder's .cpp files as one test program.
function(morpho_test name)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(test_${name} ${sources})
  target_include_directories(test_${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_compile_definitions(test_${name} PRIVATE MORPHO_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
  target_link_libraries(test_${name} PRIVATE morpho_options ${ARGN} GTest::gmock_main)
  gtest_discover_tests(test_${name} TEST_PREFIX "${name}." DISCOVERY_MODE PRE_TEST
    PROPERTIES TIMEOUT 120 ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()
