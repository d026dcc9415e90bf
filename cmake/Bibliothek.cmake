# varnok_bibliothek(<folder> [libraries...]): one static library for a folder of src/, made of all
# its sources but those of its programs, with its headers checked to compile alone (target all_verify_interface_header_sets).
function(varnok_bibliothek Ordner)
    file(GLOB_RECURSE Quellen CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
    file(GLOB_RECURSE Koepfe CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
    list(FILTER Quellen EXCLUDE REGEX "/main\\.cpp$|/src/batch/berichte/")
    add_library(${Ordner} STATIC ${Quellen})
    target_sources(${Ordner} PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR}/src FILES ${Koepfe})
    target_link_libraries(${Ordner} PUBLIC ${ARGN})
endfunction()
