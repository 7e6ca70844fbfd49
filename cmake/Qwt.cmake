# SPDX-License-Identifier: MIT
# qwt, the axes, curves and legends of plots. It comes without a package file for CMake.
find_path(QWT_INCLUDE_DIR qwt_plot.h PATH_SUFFIXES qwt REQUIRED)
find_library(QWT_LIBRARY NAMES qwt-qt5 REQUIRED)
add_library(qwt UNKNOWN IMPORTED GLOBAL)
set_target_properties(qwt PROPERTIES
    IMPORTED_LOCATION ${QWT_LIBRARY}
    INTERFACE_INCLUDE_DIRECTORIES ${QWT_INCLUDE_DIR}
    INTERFACE_SYSTEM_INCLUDE_DIRECTORIES ${QWT_INCLUDE_DIR}
    INTERFACE_LINK_LIBRARIES Qt5::Widgets)
if(WIN32)
    set_target_properties(qwt PROPERTIES INTERFACE_COMPILE_DEFINITIONS QWT_DLL)
endif()
