# SPDX-License-Identifier: MIT
# Release builds read files from strangers: what compiler and linker can guard stays guarded.
include(CheckCXXCompilerFlag)
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

set(hardening -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -D_GLIBCXX_ASSERTIONS)
foreach(flag -fstack-clash-protection -fcf-protection)
    string(MAKE_C_IDENTIFIER "HAS${flag}" has)
    check_cxx_compiler_flag(${flag} ${has})
    if(${has} AND NOT WIN32) # GCC's code for them does not link or unwind on Windows
        list(APPEND hardening ${flag})
    endif()
endforeach()
add_compile_options("$<$<CONFIG:Release>:${hardening}>")

if(WIN32)
    string(APPEND CMAKE_CXX_STANDARD_LIBRARIES " -l:libssp.a") # the stack protector, without its DLL
    add_link_options("$<$<CONFIG:Release>:LINKER:--dynamicbase,--high-entropy-va,--nxcompat>")
else()
    add_link_options("$<$<CONFIG:Release>:LINKER:-z,relro,-z,now,-z,noexecstack>")
endif()
