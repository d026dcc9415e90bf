# Where a deployment keeps its newer versions. Without a host the program asks nobody.
# Runs also alone: cmake -DVARNOK_UPDATE_HOST=... -P cmake/Aktualisierung.cmake
set(VARNOK_UPDATE_HOST "" CACHE STRING "Host of the update server, with a port where needed; empty: no update check")
set(VARNOK_UPDATE_SCHEME "http" CACHE STRING "Scheme of the update server: http or https")
set(VARNOK_UPDATE_KEY "" CACHE STRING "Ed25519 public key of the maker, 64 hexadecimal digits; needed with a host")

if(NOT VARNOK_UPDATE_SCHEME MATCHES "^https?$")
    message(FATAL_ERROR "VARNOK_UPDATE_SCHEME must be http or https, not \"${VARNOK_UPDATE_SCHEME}\".")
endif()
if(NOT VARNOK_UPDATE_HOST MATCHES "^([A-Za-z0-9]([A-Za-z0-9.-]*[A-Za-z0-9])?(:[0-9]+)?)?$")
    message(FATAL_ERROR "VARNOK_UPDATE_HOST must be a host name or an address, with \":port\" if needed and nothing else, "
        "not \"${VARNOK_UPDATE_HOST}\".")
endif()
string(LENGTH "${VARNOK_UPDATE_KEY}" Laenge)
if(NOT VARNOK_UPDATE_KEY STREQUAL "" AND NOT (VARNOK_UPDATE_KEY MATCHES "^[0-9A-Fa-f]+$" AND Laenge EQUAL 64))
    message(FATAL_ERROR "VARNOK_UPDATE_KEY must be a public key of 64 hexadecimal digits.")
endif()
if(VARNOK_UPDATE_KEY STREQUAL "" AND NOT VARNOK_UPDATE_HOST STREQUAL "")
    message(FATAL_ERROR "VARNOK_UPDATE_HOST needs VARNOK_UPDATE_KEY: what comes from a server is never started unsigned.")
endif()
