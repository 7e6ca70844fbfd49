# SPDX-License-Identifier: MIT
# Only core and imgproc are used. OpenCV's own package file stands in Debian's libopencv-dev, which
# brings every module and its dependencies along; the two small -dev packages come without it.
find_package(OpenCV QUIET COMPONENTS core imgproc)
if(NOT OpenCV_FOUND)
    find_path(OPENCV_INCLUDE_DIR opencv2/core.hpp PATH_SUFFIXES opencv4 REQUIRED)
    foreach(module core imgproc)
        find_library(OPENCV_${module}_LIBRARY opencv_${module} REQUIRED)
        add_library(opencv_${module} UNKNOWN IMPORTED)
        set_target_properties(opencv_${module} PROPERTIES
            IMPORTED_LOCATION ${OPENCV_${module}_LIBRARY}
            INTERFACE_INCLUDE_DIRECTORIES ${OPENCV_INCLUDE_DIR}
            INTERFACE_SYSTEM_INCLUDE_DIRECTORIES ${OPENCV_INCLUDE_DIR})
    endforeach()
endif()
