# thermadesk_add_room(NAME SOURCES file... [USES target...])
#
# One folder, one static library named thermadesk_NAME. Sources are named from the checkout's top
# ("config/configuration_record.h"), and so are includes, so that every include line tells the room.
function(thermadesk_add_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES;USES" ${ARGN})
    add_library(thermadesk_${name} STATIC ${ROOM_SOURCES})
    target_include_directories(thermadesk_${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(thermadesk_${name} PUBLIC ${ROOM_USES} PRIVATE thermadesk_warnings)
endfunction()

set(patience 300) # seconds; only a test that hangs takes it
if(THERMADESK_SANITIZE)
    set(patience 900)
endif()

# thermadesk_add_test(NAME SOURCES file... [USES target...] [LABELS label...])
#
# One QtTest program registered with CTest: no display, no audio device, a profile of its own.
function(thermadesk_add_test name)
    cmake_parse_arguments(TEST "" "" "SOURCES;USES;LABELS" ${ARGN})
    add_executable(${name} ${TEST_SOURCES})
    target_link_libraries(${name} PRIVATE ${TEST_USES} thermadesk_test_support thermadesk_warnings)
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT ${patience} LABELS "${TEST_LABELS}")
endfunction()
