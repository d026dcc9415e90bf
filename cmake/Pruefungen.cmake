# Checks of the sources as tests; each needs Python and nothing that is built.
find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter)

function(varnok_pruefung Name)
    # -B: nothing is written beside the scripts.
    add_test(NAME ${Name} COMMAND ${Python3_EXECUTABLE} -B ${ARGN} WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
    set_tests_properties(${Name} PROPERTIES TIMEOUT 120)
endfunction()

varnok_pruefung(pruefe_includes tools/pruefe_includes.py)
varnok_pruefung(pruefe_zahlentext tools/pruefe_zahlentext.py)
varnok_pruefung(pruefungen_selbsttest -m unittest discover -s tests/tools -p "*_test.py")
