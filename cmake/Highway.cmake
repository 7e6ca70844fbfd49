# SPDX-License-Identifier: MIT
# hwy::hwy, the vector instructions of the live picture.
if(WIN32)
    # The SDK's own description also asks for a test library, which a ready SDK leaves out.
    find_path(HWY_INCLUDE_DIR hwy/highway.h REQUIRED)
    find_library(HWY_LIBRARY hwy REQUIRED)
    add_library(hwy::hwy STATIC IMPORTED GLOBAL)
    set_target_properties(hwy::hwy PROPERTIES
        IMPORTED_LOCATION ${HWY_LIBRARY}
        INTERFACE_INCLUDE_DIRECTORIES ${HWY_INCLUDE_DIR}
        INTERFACE_COMPILE_DEFINITIONS HWY_STATIC_DEFINE)
else()
    find_package(hwy REQUIRED)
endif()
