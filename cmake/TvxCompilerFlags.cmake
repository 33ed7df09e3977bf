# Flags for the project's own targets; third-party headers come in as system includes.
function(tvx_strict_warnings target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Werror)
endfunction()

if(TVX_SANITIZE)
    set(TVX_SANITIZER_FLAGS -fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    add_compile_options(${TVX_SANITIZER_FLAGS})
    add_link_options(${TVX_SANITIZER_FLAGS})
endif()

if(TVX_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        message(FATAL_ERROR "TVX_FUZZ needs clang: configure with CC=clang CXX=clang++")
    endif()
    # Everything gets coverage instrumentation; only the fuzz targets link libFuzzer's main.
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
