# SPDX-License-Identifier: MIT
# The one place that decides which warnings our own code is compiled with.
add_library(thermadesk_warnings INTERFACE)
target_compile_options(thermadesk_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow
    -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual -Wformat=2
    -Wzero-as-null-pointer-constant
    $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wlogical-op>
    # What is one type here is two on Windows, and a cast between them no waste.
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<NOT:$<PLATFORM_ID:Windows>>>:-Wuseless-cast>
    $<$<BOOL:${THERMADESK_WERROR}>:-Werror>)
target_compile_definitions(thermadesk_warnings INTERFACE
    QT_DEPRECATED_WARNINGS
    QT_DISABLE_DEPRECATED_BEFORE=0x050C00
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    $<$<NOT:$<CONFIG:Debug>>:QT_MESSAGELOGCONTEXT>)

# What ships says of every text in which encoding it stands; tests may write "text".
add_library(thermadesk_product_warnings INTERFACE)
target_link_libraries(thermadesk_product_warnings INTERFACE thermadesk_warnings)
target_compile_definitions(thermadesk_product_warnings INTERFACE QT_NO_CAST_FROM_ASCII)
