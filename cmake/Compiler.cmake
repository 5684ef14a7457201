# How every target of this project is compiled.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
endif()

# All binaries side by side, so that a program of the running build finds its libraries and plug-ins.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)

# The usual names there; the import libraries keep theirs.
if(WIN32)
    set(CMAKE_SHARED_LIBRARY_PREFIX "")
endif()

find_program(RUQGUI_CCACHE ccache)
if(RUQGUI_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${RUQGUI_CCACHE})
endif()

add_library(ruqgui_warnings INTERFACE)
target_compile_options(ruqgui_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow)
if(RUQGUI_WERROR)
    target_compile_options(ruqgui_warnings INTERFACE -Werror)
endif()

if(RUQGUI_SANITIZE)
    add_compile_options(-fsanitize=${RUQGUI_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${RUQGUI_SANITIZE})
endif()
