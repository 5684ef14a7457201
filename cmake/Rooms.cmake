# ruqgui_room(<name>
#     [PLAIN <source>...]     sources that need no toolkit: built with every toolkit, also with none
#     [WIDGETS <source>...]   sources that need the toolkit
#     [MOC <header>...]       exported headers with meta-object classes (from include/)
#     [USES <target>...])     the platform libraries that this room may include
#
# A room is an object library that becomes a part of the shared library. What it may include is what it
# is linked to: rooms do not see each other.
function(ruqgui_room name)
    cmake_parse_arguments(ROOM "" "" "PLAIN;WIDGETS;MOC;USES" ${ARGN})
    set(target ruqgui_${name})
    set(sources ${ROOM_PLAIN})
    if(NOT RUQGUI_TOOLKIT STREQUAL none)
        list(APPEND sources ${ROOM_WIDGETS})
    endif()
    if(NOT sources)
        return()
    endif()
    add_library(${target} OBJECT ${sources})
    target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/include)
    target_compile_definitions(${target} PRIVATE RUQGUI_BUILDING_LIBRARY)
    target_link_libraries(${target} PRIVATE ruqgui_warnings ruqgui_toolkit_headers ${ROOM_USES})
    if(NOT RUQGUI_TOOLKIT STREQUAL none)
        list(TRANSFORM ROOM_MOC PREPEND ${PROJECT_SOURCE_DIR}/include/)
        ruqgui_moc(${target} ${ROOM_MOC})
    endif()
    target_sources(ruqgui PRIVATE $<TARGET_OBJECTS:${target}>)
endfunction()
