# Checks of the sources as tests; each needs Python and nothing that is built.
find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter)

function(varnok_pruefung Name)
    # -B: nothing is written beside the scripts.
    add_test(NAME ${Name} COMMAND ${Python3_EXECUTABLE} -B ${ARGN} WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
    set_tests_properties(${Name} PROPERTIES TIMEOUT 120)
endfunction()

varnok_pruefung(pruefe_includes tools/pruefe_includes.py)
varnok_pruefung(pruefe_format tools/pruefe_format.py)
varnok_pruefung(pruefe_zahlentext tools/pruefe_zahlentext.py)
varnok_pruefung(pruefungen_selbsttest -m unittest discover -s tests/tools -p "*_test.py")

# The settings of the update are refused or taken when the project is configured.
function(varnok_updateprobe Name Meldung)
    add_test(NAME updateziel.${Name} COMMAND ${CMAKE_COMMAND} ${ARGN} -P ${PROJECT_SOURCE_DIR}/cmake/Aktualisierung.cmake)
    set_tests_properties(updateziel.${Name} PROPERTIES TIMEOUT 60)
    if(Meldung)
        set_tests_properties(updateziel.${Name} PROPERTIES PASS_REGULAR_EXPRESSION ${Meldung})
    endif()
endfunction()

string(REPEAT "0a" 32 Schluessel)
varnok_updateprobe(leer "")
varnok_updateprobe(vollstaendig "" -DVARNOK_UPDATE_HOST=updates.example.org:8080 -DVARNOK_UPDATE_SCHEME=https
    -DVARNOK_UPDATE_KEY=${Schluessel})
varnok_updateprobe(ohne_Schluessel "needs VARNOK_UPDATE_KEY" -DVARNOK_UPDATE_HOST=updates.example.org)
varnok_updateprobe(kurzer_Schluessel "64 hexadecimal digits" -DVARNOK_UPDATE_HOST=updates.example.org -DVARNOK_UPDATE_KEY=0a0a)
varnok_updateprobe(kein_Schluessel "64 hexadecimal digits" -DVARNOK_UPDATE_HOST=updates.example.org
    -DVARNOK_UPDATE_KEY=x${Schluessel})
varnok_updateprobe(Adresse_statt_Host "must be a host name" -DVARNOK_UPDATE_HOST=http://updates.example.org/
    -DVARNOK_UPDATE_KEY=${Schluessel})
varnok_updateprobe(anderes_Schema "must be http or https" -DVARNOK_UPDATE_SCHEME=file)
