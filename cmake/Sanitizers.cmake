# SPDX-License-Identifier: MIT
if(THERMADESK_SANITIZE)
    # Numbers that fit no int are left out of "undefined", although they are.
    add_compile_options(-fsanitize=address,undefined,float-cast-overflow
                        -fno-sanitize-recover=undefined,float-cast-overflow
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
    # The standard library's containers look at what they are asked for.
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
endif()

if(THERMADESK_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
