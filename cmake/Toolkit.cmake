# The toolkit that the library is built on, as the target ruqgui_toolkit_api,
# and ruqgui_moc(<target> <header>...), which runs that toolkit's meta-object compiler.

add_library(ruqgui_toolkit_api INTERFACE)

if(RUQGUI_TOOLKIT STREQUAL qt6)
    find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets)
    target_link_libraries(ruqgui_toolkit_api INTERFACE Qt6::Widgets)
elseif(RUQGUI_TOOLKIT STREQUAL qt3)
    find_library(RUQGUI_QT3_LIBRARY qt-mt HINTS ${RUQGUI_QT3_DIR}/lib NO_DEFAULT_PATH REQUIRED)
    find_program(RUQGUI_QT3_MOC moc HINTS ${RUQGUI_QT3_DIR}/bin NO_DEFAULT_PATH REQUIRED)
    target_link_libraries(ruqgui_toolkit_api INTERFACE ${RUQGUI_QT3_LIBRARY})
    # SYSTEM: the headers are older than today's warnings.
    target_include_directories(ruqgui_toolkit_api SYSTEM INTERFACE ${RUQGUI_QT3_DIR}/include)
    target_compile_definitions(ruqgui_toolkit_api INTERFACE QT_THREAD_SUPPORT)
elseif(NOT RUQGUI_TOOLKIT STREQUAL none)
    message(FATAL_ERROR "RUQGUI_TOOLKIT is '${RUQGUI_TOOLKIT}': it must be qt6, qt3 or none")
endif()

# Headers are given with their full path. Their name is what the generated source includes, so the
# target must have their folder on its include path.
function(ruqgui_moc target)
    foreach(header IN LISTS ARGN)
        get_filename_component(name ${header} NAME)
        get_filename_component(stem ${header} NAME_WE)
        set(output ${CMAKE_CURRENT_BINARY_DIR}/moc_${stem}.cpp)
        if(RUQGUI_TOOLKIT STREQUAL qt6)
            set(command Qt6::moc -f${name} ${header} -o ${output})
        else()
            set(command ${RUQGUI_QT3_MOC} -f${name} ${header} -o ${output})
        endif()
        add_custom_command(
            OUTPUT ${output}
            COMMAND ${command}
            DEPENDS ${header}
            COMMENT "Meta-object code of ${name}")
        target_sources(${target} PRIVATE ${output})
        set_source_files_properties(${output} PROPERTIES COMPILE_OPTIONS -w)
    endforeach()
endfunction()
