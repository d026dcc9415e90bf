# How everything is compiled.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release)
endif()

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # Precompiled headers are told apart by their content; without this the cache leaves out everything that uses one.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE})
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-fpch-preprocess)
endif()

# A product and a sum stay two roundings on every machine: results are the same to the bit.
add_compile_options(-ffp-contract=off)
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Wconversion)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # False alarms of g++ 12 about short strings.
    add_compile_options(-Wno-restrict -Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread)
endif()
if(VARNOK_WARNUNGEN_ALS_FEHLER)
    add_compile_options(-Werror)
endif()
if(VARNOK_SANITIZER)
    add_compile_options(-fsanitize=${VARNOK_SANITIZER} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${VARNOK_SANITIZER})
endif()

add_compile_definitions(QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)
