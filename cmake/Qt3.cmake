# ruqgui::qt3, the Qt 3.3 in RUQGUI_QT3_DIR, and RUQGUI_QT3_MOC, its meta-object compiler.
# Also read by programs that use an installed library.

set(RUQGUI_QT3_DIR "${RUQGUI_QT3_DIR}" CACHE PATH "Folder of a built Qt 3.3 (multithreaded): bin/moc, include, lib")
find_library(RUQGUI_QT3_LIBRARY qt-mt HINTS ${RUQGUI_QT3_DIR}/lib NO_DEFAULT_PATH REQUIRED)
find_program(RUQGUI_QT3_MOC moc HINTS ${RUQGUI_QT3_DIR}/bin NO_DEFAULT_PATH REQUIRED)

if(NOT TARGET ruqgui::qt3)
    # Imported, so that warnings in headers that are older than today's warnings are left out.
    add_library(ruqgui::qt3 UNKNOWN IMPORTED)
    set_target_properties(
        ruqgui::qt3
        PROPERTIES IMPORTED_LOCATION ${RUQGUI_QT3_LIBRARY}
                   INTERFACE_INCLUDE_DIRECTORIES ${RUQGUI_QT3_DIR}/include
                   INTERFACE_COMPILE_DEFINITIONS QT_THREAD_SUPPORT)
endif()
