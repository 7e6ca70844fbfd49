# SPDX-License-Identifier: MIT
# thermadesk_add_room(NAME SOURCES file... [USES target...])
#
# One folder, one static library named thermadesk_NAME. Sources are named from the checkout's top
# ("config/configuration_record.h"), and so are includes, so that every include line tells the room.
function(thermadesk_add_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES;USES" ${ARGN})
    add_library(thermadesk_${name} STATIC ${ROOM_SOURCES})
    target_include_directories(thermadesk_${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(thermadesk_${name} PUBLIC ${ROOM_USES} PRIVATE thermadesk_product_warnings)
    # Qt's compiler of meta objects casts in vain.
    set_source_files_properties(
        ${CMAKE_CURRENT_BINARY_DIR}/thermadesk_${name}_autogen/mocs_compilation.cpp
        PROPERTIES COMPILE_OPTIONS $<$<CXX_COMPILER_ID:GNU>:-Wno-useless-cast>)
endfunction()

set(patience 300) # seconds; only a test that hangs takes it
if(THERMADESK_SANITIZE)
    set(patience 900)
endif()

# thermadesk_add_test(NAME SOURCES file... [USES target...] [LABELS label...] [SECONDS n])
#
# One QtTest program registered with CTest: no display, no audio device, a profile of its own.
# SECONDS, of a test that takes more than a few: the longest start first, so that none is waited for
# at the end.
function(thermadesk_add_test name)
    cmake_parse_arguments(TEST "" "SECONDS" "SOURCES;USES;LABELS" ${ARGN})
    add_executable(${name} ${TEST_SOURCES})
    target_link_libraries(${name} PRIVATE ${TEST_USES} thermadesk_test_support thermadesk_warnings)
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${patience} LABELS "${TEST_LABELS}" COST "0${TEST_SECONDS}")
endfunction()

# thermadesk_add_locales(TEST LOCALE...)
#
# The same program once more where numbers and dates are written in another way ("ar_EG": digits of
# their own), for what it writes, shows and reads in fixed forms. Qt has the data of every locale.
function(thermadesk_add_locales test)
    if(WIN32) # asks the system, not the environment
        return()
    endif()
    foreach(locale ${ARGN})
        thermadesk_add_variant(${test} in_${locale}
            ENVIRONMENT THERMADESK_TEST_LOCALE=${locale}.UTF-8)
    endforeach()
endfunction()

# thermadesk_add_variant(TEST NAME ENVIRONMENT variable=value... [SECONDS n] [LONG])
#
# The same program once more in other surroundings, as TEST_NAME. LONG ones are for .ci/nightly: they
# are run by "ctest -C Long -L long" alone.
function(thermadesk_add_variant test name)
    cmake_parse_arguments(VARIANT "LONG" "SECONDS" "ENVIRONMENT" ${ARGN})
    set(configurations)
    if(VARIANT_LONG)
        set(configurations CONFIGURATIONS Long)
    endif()
    add_test(NAME ${test}_${name} COMMAND ${test} ${configurations})
    set_tests_properties(${test}_${name} PROPERTIES
        TIMEOUT ${patience} COST "0${VARIANT_SECONDS}" ENVIRONMENT "${VARIANT_ENVIRONMENT}")
    if(VARIANT_LONG)
        set_tests_properties(${test}_${name} PROPERTIES LABELS long TIMEOUT 3600)
    endif()
endfunction()
