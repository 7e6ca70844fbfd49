# The one place that decides which warnings our own code is compiled with.
add_library(thermadesk_warnings INTERFACE)
target_compile_options(thermadesk_warnings INTERFACE
    -Wall -Wextra -Wconversion -Wshadow
    $<$<BOOL:${THERMADESK_WERROR}>:-Werror>)
target_compile_definitions(thermadesk_warnings INTERFACE
    QT_DEPRECATED_WARNINGS
    QT_DISABLE_DEPRECATED_BEFORE=0x050C00
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    $<$<NOT:$<CONFIG:Debug>>:QT_MESSAGELOGCONTEXT>)
