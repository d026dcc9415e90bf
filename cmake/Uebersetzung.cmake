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

# What comes from a project may be made to break the program: the binaries are hardened, and a test looks that they are.
set(VARNOK_GEHAERTET OFF)
if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND CMAKE_BUILD_TYPE STREQUAL "Release" AND NOT VARNOK_SANITIZER)
    set(VARNOK_GEHAERTET ON)
    include(CheckPIESupported)
    check_pie_supported(LANGUAGES CXX)
    add_link_options(-Wl,-z,relro,-z,now)
endif()
# varnok_haerte(): for all that the present folder builds.
macro(varnok_haerte)
    if(VARNOK_GEHAERTET)
        set(CMAKE_POSITION_INDEPENDENT_CODE ON)
        add_compile_options(-fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
    endif()
endmacro()

add_compile_definitions(QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)
