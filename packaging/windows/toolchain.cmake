# SPDX-License-Identifier: MIT
# Cross-building for 64-bit Windows with Debian's mingw-w64 compiler and the SDK that build-sdk
# makes (Qt, OpenCV, Qwt, Highway, the compiler's run-time libraries). The SDK lies in the user's cache, or where
# the environment variable THERMADESK_WINSDK says.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)

execute_process(COMMAND ${CMAKE_CURRENT_LIST_DIR}/sdk-folder
                OUTPUT_VARIABLE THERMADESK_WINSDK OUTPUT_STRIP_TRAILING_WHITESPACE
                COMMAND_ERROR_IS_FATAL ANY)

set(triple x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${triple}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triple}-g++-posix)
set(CMAKE_RC_COMPILER ${triple}-windres)

# Libraries, headers and packages come from the SDK and the compiler's own folder only, programs
# from the building machine.
set(CMAKE_FIND_ROOT_PATH ${THERMADESK_WINSDK} /usr/${triple})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
list(PREPEND CMAKE_PREFIX_PATH ${THERMADESK_WINSDK})

# CTest runs the programs under Wine.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/wine-run)
