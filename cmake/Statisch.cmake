# Libraries that go into the batch program itself where an archive of them is here: loading them would take longer than a small
# simulation to calculate, and most calls use neither.
function(varnok_statisch Name Archiv sonst)
    find_library(VARNOK_ARCHIV_${Name} ${Archiv})
    mark_as_advanced(VARNOK_ARCHIV_${Name})
    add_library(varnok_${Name} INTERFACE)
    add_library(varnok::${Name} ALIAS varnok_${Name})
    if(VARNOK_ARCHIV_${Name})
        target_link_libraries(varnok_${Name} INTERFACE ${VARNOK_ARCHIV_${Name}} ${CMAKE_DL_LIBS} Threads::Threads)
    else()
        target_link_libraries(varnok_${Name} INTERFACE ${sonst})
    endif()
endfunction()

varnok_statisch(sqlite libsqlite3.a SQLite::SQLite3)
varnok_statisch(sodium libsodium.a sodium::sodium)
