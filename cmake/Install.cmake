# What is installed, and how an installed copy is found: find_package(ruqgui) or pkg-config ruqgui.
# Nothing that is written holds an absolute path of its own, so that an installed folder can be moved.

include(CMakePackageConfigHelpers)

set(RUQGUI_PLUGIN_DIR ${CMAKE_INSTALL_LIBDIR}/ruqgui/plugins)
set(RUQGUI_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake)
# Folders outside that a target links to (a Qt 3.3, the closed libraries) stay in its search path.
set(CMAKE_INSTALL_RPATH_USE_LINK_PATH ON)

# ruqgui_install_plugin(<target>): a plug-in, where ruqlib2core looks for them.
function(ruqgui_install_plugin target)
    file(RELATIVE_PATH to_libraries /${RUQGUI_PLUGIN_DIR} /${CMAKE_INSTALL_LIBDIR})
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${to_libraries}")
    install(TARGETS ${target} LIBRARY DESTINATION ${RUQGUI_PLUGIN_DIR}
                              RUNTIME DESTINATION ${RUQGUI_PLUGIN_DIR})
endfunction()

# ruqgui_install_program(<target>)
function(ruqgui_install_program target)
    file(RELATIVE_PATH to_libraries /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${to_libraries}")
    install(TARGETS ${target})
endfunction()

# ruqgui_install_package(<name> <target>...): the libraries and the package by which CMake finds them.
# cmake/<name>Config.cmake.in is the package's entry; its targets are <name>::<target's export name>.
function(ruqgui_install_package name)
    set(folder ${RUQGUI_CMAKE_DIR}/${name})
    set_target_properties(${ARGN} PROPERTIES INSTALL_RPATH "$ORIGIN")
    install(TARGETS ${ARGN} EXPORT ${name}Targets)
    install(EXPORT ${name}Targets NAMESPACE ${name}:: DESTINATION ${folder})
    configure_package_config_file(
        ${PROJECT_SOURCE_DIR}/cmake/${name}Config.cmake.in ${PROJECT_BINARY_DIR}/${name}Config.cmake
        INSTALL_DESTINATION ${folder} PATH_VARS RUQGUI_PLUGIN_DIR)
    write_basic_package_version_file(${PROJECT_BINARY_DIR}/${name}ConfigVersion.cmake
                                     COMPATIBILITY SameMajorVersion)
    install(FILES ${PROJECT_BINARY_DIR}/${name}Config.cmake
                  ${PROJECT_BINARY_DIR}/${name}ConfigVersion.cmake
            DESTINATION ${folder})
endfunction()

# ruqgui_install_pc(<library> INCLUDE <folder> DESCRIPTION <text> [REQUIRES <module>...]
#                   [LIBS <flag>...] [CFLAGS <flag>...]): the library's pkg-config file.
function(ruqgui_install_pc name)
    cmake_parse_arguments(PC "" "INCLUDE;DESCRIPTION" "REQUIRES;LIBS;CFLAGS" ${ARGN})
    set(PC_NAME ${name})
    list(JOIN PC_REQUIRES " " PC_REQUIRES)
    list(JOIN PC_LIBS " " PC_LIBS)
    list(JOIN PC_CFLAGS " " PC_CFLAGS)
    file(RELATIVE_PATH PC_TO_PREFIX /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
    string(REGEX REPLACE "/$" "" PC_TO_PREFIX ${PC_TO_PREFIX})
    configure_file(${PROJECT_SOURCE_DIR}/cmake/library.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()

function(ruqgui_install_headers from to)
    install(DIRECTORY ${from}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${to} FILES_MATCHING PATTERN "*.h")
endfunction()

function(ruqgui_install_platform)
    set_target_properties(ruqlib2core PROPERTIES EXPORT_NAME core)
    set_target_properties(ruqlib2image PROPERTIES EXPORT_NAME image)
    ruqgui_install_package(ruqlib2 ruqlib2core ruqlib2image)
    ruqgui_install_headers(${PROJECT_SOURCE_DIR}/platform/core/include "")
    ruqgui_install_headers(${PROJECT_SOURCE_DIR}/platform/image/include "")
    ruqgui_install_pc(
        ruqlib2core INCLUDE ""
        DESCRIPTION "Values, value maps, the settings registry and plug-ins")
    ruqgui_install_pc(
        ruqlib2image INCLUDE ""
        DESCRIPTION "Images, their headers and TIFF files"
        REQUIRES ruqlib2core)
endfunction()

function(ruqgui_install_library)
    ruqgui_install_package(ruqgui ruqgui)
    ruqgui_install_headers(${PROJECT_SOURCE_DIR}/include ruqgui)
    ruqgui_install_headers(${PROJECT_SOURCE_DIR}/toolkit/common/qt3 ruqgui/qt3)
    if(NOT RUQGUI_TOOLKIT STREQUAL none)
        ruqgui_install_headers(${PROJECT_SOURCE_DIR}/toolkit/on_${RUQGUI_TOOLKIT}/qt3 ruqgui/qt3)
    endif()
    foreach(module IN ITEMS SystemPlatform Qt3)
        install(FILES ${PROJECT_SOURCE_DIR}/cmake/${module}.cmake
                DESTINATION ${RUQGUI_CMAKE_DIR}/ruqgui)
    endforeach()

    set(requires)
    set(libs)
    set(cflags)
    if(RUQGUI_PLATFORM STREQUAL bundled)
        list(APPEND requires ruqlib2core ruqlib2image)
    else()
        # The closed libraries bring no pkg-config file of their own.
        list(APPEND libs ${RUQLIB2CORE_LIBRARY} ${RUQLIB2IMAGE_LIBRARY})
        list(APPEND cflags -I${RUQLIB2CORE_INCLUDE_DIR} -I${RUQLIB2IMAGE_INCLUDE_DIR})
    endif()
    if(RUQGUI_TOOLKIT STREQUAL qt6)
        list(APPEND requires Qt6Widgets)
        list(APPEND cflags -fPIC) # Qt 6 refuses position-dependent code; its own files do not say so.
    elseif(RUQGUI_TOOLKIT STREQUAL qt3)
        list(APPEND libs ${RUQGUI_QT3_LIBRARY})
        list(APPEND cflags -I${RUQGUI_QT3_DIR}/include -DQT_THREAD_SUPPORT)
    endif()
    ruqgui_install_pc(
        ruqgui INCLUDE ruqgui
        DESCRIPTION "${PROJECT_DESCRIPTION}"
        REQUIRES ${requires}
        LIBS ${libs}
        CFLAGS ${cflags})
endfunction()

function(ruqgui_install)
    if(RUQGUI_PLATFORM STREQUAL bundled)
        ruqgui_install_platform()
    endif()
    ruqgui_install_library()
    if(TARGET gallery)
        ruqgui_install_program(gallery)
    endif()
endfunction()
