# What `cmake --install` puts where, and the Debian package that `cpack` makes of it.

set(Paket ${PROJECT_SOURCE_DIR}/packaging)
set(Kennung org.varnok.varnok)

# The programs look for their data here, relative to their own place.
install(DIRECTORY data/ DESTINATION ${CMAKE_INSTALL_DATADIR}/varnok)
install(FILES LICENSE README.md DESTINATION ${CMAKE_INSTALL_DATADIR}/varnok)
# The help shows them, so they are data: documentation may be left out of an installation.
file(GLOB Seiten CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/*.md)
install(FILES ${Seiten} DESTINATION ${CMAKE_INSTALL_DATADIR}/varnok/docs)
install(FILES docs/bilder/single_parent_only_1180.png DESTINATION ${CMAKE_INSTALL_DATADIR}/varnok/docs/bilder)

install(FILES ${Paket}/${Kennung}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${Paket}/${Kennung}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${Paket}/varnok.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
install(FILES src/window/kern/bilder/varnok.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps RENAME ${Kennung}.svg)

install(FILES ${Paket}/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(CODE "
    foreach(Name README.md docs)
        file(CREATE_LINK ../../varnok/\${Name} \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_DOCDIR}/\${Name}\" SYMBOLIC)
    endforeach()")

# Manual pages and the list of changes lie compressed, without a time stamp.
function(installiere_gepackt Quelle Name Ziel)
    set(Gepackt ${CMAKE_BINARY_DIR}/${Name}.gz)
    add_custom_command(OUTPUT ${Gepackt} COMMAND gzip -9nc ${Quelle} > ${Gepackt} DEPENDS ${Quelle} VERBATIM)
    set_property(GLOBAL APPEND PROPERTY VARNOK_GEPACKTES ${Gepackt})
    install(FILES ${Gepackt} DESTINATION ${Ziel})
endfunction()
installiere_gepackt(${Paket}/man/varnok.1 varnok.1 ${CMAKE_INSTALL_MANDIR}/man1)
installiere_gepackt(${Paket}/man/varnok-batch.1 varnok-batch.1 ${CMAKE_INSTALL_MANDIR}/man1)
installiere_gepackt(${Paket}/changelog changelog ${CMAKE_INSTALL_DOCDIR})
get_property(Gepacktes GLOBAL PROPERTY VARNOK_GEPACKTES)
add_custom_target(gepacktes ALL DEPENDS ${Gepacktes})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME varnok)
set(CPACK_PACKAGE_VENDOR "The VARNOK developers")
set(CPACK_PACKAGE_CONTACT "The VARNOK developers <developers@varnok.org>" CACHE STRING "Who looks after the package")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "forecast of residues of plant protection products in soil")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "VARNOK estimates what a plant protection product leaves in soil: the predicted
environmental concentration (PEC) of a parent compound and up to two
metabolites, day by day over ten years of repeated applications, for up to
six soil studies side by side. The package holds the program with a window,
varnok, and varnok-batch for scripts and clusters.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-dejavu-core)
include(CPack)
