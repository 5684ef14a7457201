# The toolkit that the library is built on, as the target ruqgui_toolkit_api; its own target, which
# programs that use an installed library link to, as RUQGUI_TOOLKIT_TARGET;
# and ruqgui_moc(<target> <header>...), which runs that toolkit's meta-object compiler.

add_library(ruqgui_toolkit_api INTERFACE)

if(RUQGUI_TOOLKIT STREQUAL qt6)
    set(RUQGUI_TOOLKIT_TARGET Qt6::Widgets)
    find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets)
    target_link_libraries(ruqgui_toolkit_api INTERFACE ${RUQGUI_TOOLKIT_TARGET})
elseif(RUQGUI_TOOLKIT STREQUAL qt3)
    set(RUQGUI_TOOLKIT_TARGET ruqgui::qt3)
    include(Qt3)
    target_link_libraries(ruqgui_toolkit_api INTERFACE ${RUQGUI_TOOLKIT_TARGET})
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
