# Cross-compiles for Windows with MinGW-w64; the toolchain files of the targets set CMAKE_SYSTEM_PROCESSOR and include
# this one. The compilers named "posix" have std::thread and std::mutex.
set(CMAKE_SYSTEM_NAME Windows)
set(mingw ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32)
set(CMAKE_C_COMPILER ${mingw}-gcc-posix)
set(CMAKE_CXX_COMPILER ${mingw}-g++-posix)
set(CMAKE_RC_COMPILER ${mingw}-windres)
# libjpeg-turbo is where scripts/build_windows_libjpeg.sh puts it.
if(DEFINED ENV{XDG_CACHE_HOME})
  set(windows_cache $ENV{XDG_CACHE_HOME}/morpho-windows)
else()
  set(windows_cache $ENV{HOME}/.cache/morpho-windows)
endif()
set(CMAKE_FIND_ROOT_PATH /usr/${mingw} ${windows_cache}/${CMAKE_SYSTEM_PROCESSOR})
# Build tools come from this machine, everything else from the target's folders.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# Nothing but the system's own libraries is needed at run time.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_SHARED_LINKER_FLAGS_INIT -static)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/wine.sh ${CMAKE_SYSTEM_PROCESSOR})
