# Locales whose numbers have a comma, whose letters change their case in their own way, or whose letters are
# one byte each: made here, since a machine need not have them. RUQGUI_LOCALES is their folder,
# ruqgui_locales what a test links to.
set(RUQGUI_LOCALES ${CMAKE_BINARY_DIR}/locales)
foreach(name IN ITEMS de_DE.UTF-8 tr_TR.UTF-8 de_DE.ISO-8859-1)
    set(locale ${RUQGUI_LOCALES}/${name})
    string(REPLACE "." ";" parts ${name})
    list(GET parts 0 place)
    list(GET parts 1 characters)
    add_custom_command(
        OUTPUT ${locale}/LC_NUMERIC
        COMMAND ${CMAKE_COMMAND} -E make_directory ${RUQGUI_LOCALES}
        COMMAND localedef -i ${place} -f ${characters} ${locale} || echo "none: its tests will fail"
        COMMENT "Locale ${name}")
    list(APPEND locale_files ${locale}/LC_NUMERIC)
endforeach()
add_custom_target(test_locales ALL DEPENDS ${locale_files})
add_library(ruqgui_locales INTERFACE)
target_compile_definitions(ruqgui_locales INTERFACE RUQGUI_LOCALES="${RUQGUI_LOCALES}")
add_dependencies(ruqgui_locales test_locales)
