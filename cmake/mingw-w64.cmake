# Cross-compiles for 64-bit Windows with Debian's mingw-w64 (posix thread model, so std::thread
# and std::mutex work) and runs the results under Wine.
#   cmake -S . -B build/wine -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64.cmake -DNORVALE_PLATFORM_ONLY=ON
# The whole program also needs the static Windows Qt that scripts/build-qt-windows.sh builds:
#   cmake -S . -B build/winapp -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64.cmake \
#         -DNORVALE_QT_PREFIX="$(scripts/build-qt-windows.sh --print-prefix)"
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(mingw_triplet x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${mingw_triplet}-gcc-posix)
set(CMAKE_CXX_COMPILER ${mingw_triplet}-g++-posix)
set(CMAKE_RC_COMPILER ${mingw_triplet}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${mingw_triplet})
if(NORVALE_QT_PREFIX)
    # Only a root path finds its Qt6Config.cmake (package lookups stay inside the roots). Code
    # generators (moc, rcc, lrelease) come from the build machine's Qt of the same version.
    list(APPEND CMAKE_FIND_ROOT_PATH ${NORVALE_QT_PREFIX})
    set(QT_HOST_PATH /usr)
    set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)
endif()
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES NORVALE_QT_PREFIX)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Static runtime: Wine then needs none of mingw's DLLs (libstdc++, libgcc, winpthread) on its path.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")

# Test programs (and gtest_discover_tests) run through Wine. The lane's tests add the prefix and
# WINEDEBUG in front of this, so nothing here can reach the user's own ~/.wine.
set(CMAKE_CROSSCOMPILING_EMULATOR wine)
