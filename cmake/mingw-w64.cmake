# Cross-building for 64-bit Windows with Debian's g++-mingw-w64-x86-64-posix. What packaging/windows/toolkit
# has built is found in RUQGUI_WINDOWS_PREFIX.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

if(NOT RUQGUI_WINDOWS_PREFIX)
    # As packaging/windows/setup.sh tells it to the scripts.
    if(NOT "$ENV{RUQGUI_WINDOWS_CACHE}" STREQUAL "")
        set(RUQGUI_WINDOWS_PREFIX $ENV{RUQGUI_WINDOWS_CACHE}/prefix)
    elseif(NOT "$ENV{XDG_CACHE_HOME}" STREQUAL "")
        set(RUQGUI_WINDOWS_PREFIX $ENV{XDG_CACHE_HOME}/ruqgui-windows/prefix)
    else()
        set(RUQGUI_WINDOWS_PREFIX $ENV{HOME}/.cache/ruqgui-windows/prefix)
    endif()
endif()
# The trial builds that test the compilers are configured with this file too.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES RUQGUI_WINDOWS_PREFIX)
# What CMAKE_PREFIX_PATH names is for Windows too, such as an unpacked package.
set(CMAKE_FIND_ROOT_PATH ${RUQGUI_WINDOWS_PREFIX} /usr/x86_64-w64-mingw32 ${CMAKE_PREFIX_PATH})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
