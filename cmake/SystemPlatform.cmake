# ruqlib2::core and ruqlib2::image from where they are installed: headers in include/ruqlib2core and
# include/ruqlib2image, libraries in lib. Also read by programs that use an installed library.

set(RUQGUI_PLATFORM_DIR "${RUQGUI_PLATFORM_DIR}" CACHE PATH
    "Folder of the installed ruqlib2core and ruqlib2image; CMAKE_PREFIX_PATH is searched too")

find_path(RUQLIB2CORE_INCLUDE_DIR ruqlib2core/CValueMap.h HINTS ${RUQGUI_PLATFORM_DIR}/include)
find_path(RUQLIB2IMAGE_INCLUDE_DIR ruqlib2image/CImage.h HINTS ${RUQGUI_PLATFORM_DIR}/include)
find_library(RUQLIB2CORE_LIBRARY ruqlib2core HINTS ${RUQGUI_PLATFORM_DIR}/lib)
find_library(RUQLIB2IMAGE_LIBRARY ruqlib2image HINTS ${RUQGUI_PLATFORM_DIR}/lib)

foreach(part IN ITEMS core image)
    string(TOUPPER RUQLIB2${part} PART)
    if(NOT ${PART}_INCLUDE_DIR OR NOT ${PART}_LIBRARY)
        message(FATAL_ERROR "The headers or the library of ruqlib2${part} were not found: set "
                            "RUQGUI_PLATFORM_DIR to the folder that holds include and lib")
    endif()
    if(NOT TARGET ruqlib2::${part})
        add_library(ruqlib2::${part} UNKNOWN IMPORTED GLOBAL)
        set_target_properties(
            ruqlib2::${part} PROPERTIES IMPORTED_LOCATION ${${PART}_LIBRARY}
                                        INTERFACE_INCLUDE_DIRECTORIES ${${PART}_INCLUDE_DIR})
    endif()
endforeach()
set_property(TARGET ruqlib2::image PROPERTY INTERFACE_LINK_LIBRARIES ruqlib2::core)
