# SPDX-License-Identifier: MIT
# Cross-compiles for 64-bit Windows with the mingw-w64 GCC (posix thread model) and runs the results with wine.
#
#   cmake --preset windows            # uses this file, builds into build/windows
#   cmake -B build/win -DCMAKE_TOOLCHAIN_FILE=cmake/toolchains/mingw-w64-x86_64.cmake
#
# Test programs, nckit.exe and the DLL link libgcc, libstdc++ and winpthread statically, so they only need
# system DLLs and libncappkit.dll at run time: nothing has to be copied beside them.
#
# Test programs are started through CMAKE_CROSSCOMPILING_EMULATOR, which runs wine with a private prefix
# (NCAPPKIT_WINEPREFIX), no debug chatter and without the Mono/Gecko installers, which would otherwise try to
# open a window on the first start.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(NCAPPKIT_MINGW_TRIPLE x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${NCAPPKIT_MINGW_TRIPLE}-gcc-posix)
set(CMAKE_CXX_COMPILER ${NCAPPKIT_MINGW_TRIPLE}-g++-posix)
set(CMAKE_RC_COMPILER ${NCAPPKIT_MINGW_TRIPLE}-windres)

# Target headers and libraries come from the mingw-w64 sysroot, plus an optional prefix of libraries built
# for this target (GoogleTest); programs that run during the build come from the host.
set(NCAPPKIT_MINGW_PREFIX "" CACHE PATH "Prefix with libraries built for the Windows target (e.g. GoogleTest)")
set(CMAKE_FIND_ROOT_PATH /usr/${NCAPPKIT_MINGW_TRIPLE})
if(NCAPPKIT_MINGW_PREFIX)
  list(PREPEND CMAKE_FIND_ROOT_PATH ${NCAPPKIT_MINGW_PREFIX})
endif()

# Debian ships GoogleTest as sources only (/usr/src/googletest). When the target prefix has no GoogleTest yet,
# build and install it there once, with this same toolchain, so that the tests' find_package(GTest) finds a
# Windows build of it. The nested build does not get NCAPPKIT_MINGW_PREFIX, so it does not recurse.
set(NCAPPKIT_MINGW_GTEST_SOURCE /usr/src/googletest CACHE PATH "GoogleTest sources to build for the Windows target")
if(NCAPPKIT_MINGW_PREFIX AND NOT EXISTS ${NCAPPKIT_MINGW_PREFIX}/lib/cmake/GTest/GTestConfig.cmake
   AND EXISTS ${NCAPPKIT_MINGW_GTEST_SOURCE}/CMakeLists.txt)
  set(_ncappkit_gtest_build ${NCAPPKIT_MINGW_PREFIX}-build/googletest)
  message(STATUS "Building GoogleTest for Windows into ${NCAPPKIT_MINGW_PREFIX}")
  execute_process(
    COMMAND ${CMAKE_COMMAND} -S ${NCAPPKIT_MINGW_GTEST_SOURCE} -B ${_ncappkit_gtest_build} -G Ninja
            -DCMAKE_TOOLCHAIN_FILE=${CMAKE_CURRENT_LIST_FILE} -DCMAKE_BUILD_TYPE=Release
            -DINSTALL_GTEST=ON -DBUILD_GMOCK=ON -DCMAKE_INSTALL_PREFIX=${NCAPPKIT_MINGW_PREFIX}
    COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
  execute_process(COMMAND ${CMAKE_COMMAND} --build ${_ncappkit_gtest_build} --target install
                  COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
  unset(_ncappkit_gtest_build)
endif()
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# One copy of the GCC runtime inside every module; the modules share the C runtime (msvcrt.dll), so memory
# allocated in the DLL may be freed by the program and the other way round.
# "-static" takes the static libgcc, libstdc++ and winpthread archives, and from them only the members that
# are needed: forcing all of winpthread in would also bring its own version resource, which then replaces the
# module's.
set(NCAPPKIT_MINGW_STATIC_RUNTIME "-static")
set(CMAKE_EXE_LINKER_FLAGS_INIT "${NCAPPKIT_MINGW_STATIC_RUNTIME}")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "${NCAPPKIT_MINGW_STATIC_RUNTIME}")
set(CMAKE_MODULE_LINKER_FLAGS_INIT "${NCAPPKIT_MINGW_STATIC_RUNTIME}")

# wine runs the test programs. The windows preset keeps its prefix outside build/windows, so that a clean
# rebuild does not pay for creating a new prefix.
find_program(NCAPPKIT_WINE_PROGRAM NAMES wine wine64 NO_CMAKE_FIND_ROOT_PATH)
find_program(NCAPPKIT_ENV_PROGRAM NAMES env NO_CMAKE_FIND_ROOT_PATH)
set(NCAPPKIT_WINEPREFIX "" CACHE PATH "wine prefix for running the tests (default: $HOME/.wine)")
if(NCAPPKIT_WINE_PROGRAM AND NCAPPKIT_ENV_PROGRAM)
  # "-u DISPLAY": wine never sees a display, so a test that reached a real window would fail instead of
  # waiting for someone to close it.
  set(_ncappkit_wine_env -u DISPLAY -u WAYLAND_DISPLAY WINEDEBUG=-all "WINEDLLOVERRIDES=mscoree,mshtml=")
  if(NCAPPKIT_WINEPREFIX)
    list(APPEND _ncappkit_wine_env WINEPREFIX=${NCAPPKIT_WINEPREFIX})
  endif()
  set(CMAKE_CROSSCOMPILING_EMULATOR ${NCAPPKIT_ENV_PROGRAM} ${_ncappkit_wine_env} ${NCAPPKIT_WINE_PROGRAM})
  # Creating a prefix takes several seconds, longer than ctest waits for a test program to list its tests;
  # so a new prefix is made here, once, before any test runs.
  if(NCAPPKIT_WINEPREFIX AND NOT EXISTS ${NCAPPKIT_WINEPREFIX}/system.reg)
    find_program(NCAPPKIT_WINEBOOT_PROGRAM NAMES wineboot NO_CMAKE_FIND_ROOT_PATH)
    find_program(NCAPPKIT_WINESERVER_PROGRAM NAMES wineserver NO_CMAKE_FIND_ROOT_PATH)
    if(NCAPPKIT_WINEBOOT_PROGRAM AND NCAPPKIT_WINESERVER_PROGRAM)
      message(STATUS "Creating the wine prefix ${NCAPPKIT_WINEPREFIX}")
      file(MAKE_DIRECTORY ${NCAPPKIT_WINEPREFIX})
      execute_process(COMMAND ${NCAPPKIT_ENV_PROGRAM} ${_ncappkit_wine_env} WINEPREFIX=${NCAPPKIT_WINEPREFIX}
                              ${NCAPPKIT_WINEBOOT_PROGRAM} --init OUTPUT_QUIET ERROR_QUIET)
      execute_process(COMMAND ${NCAPPKIT_ENV_PROGRAM} WINEPREFIX=${NCAPPKIT_WINEPREFIX}
                              ${NCAPPKIT_WINESERVER_PROGRAM} --wait OUTPUT_QUIET ERROR_QUIET)
    endif()
  endif()
  unset(_ncappkit_wine_env)
endif()
