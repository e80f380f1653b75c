# What "cmake --install" puts where. Everything is found from the program's own place, so an
# installed tree may be moved.
set(doc ${CMAKE_INSTALL_DATADIR}/doc/quendrel)
set(data ${CMAKE_INSTALL_DATADIR}/quendrel)
set(desktop ${CMAKE_CURRENT_SOURCE_DIR}/packaging/desktop)

install(TARGETS quendrel RUNTIME)
install(DIRECTORY
    ${QUENDREL_ART_FOLDER}/Skin ${QUENDREL_ART_FOLDER}/Sound ${QUENDREL_ART_FOLDER}/Music
    ${QUENDREL_ART_FOLDER}/Rules
    DESTINATION ${data})

install(FILES ${desktop}/quendrel.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${desktop}/example.brimwell.quendrel.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
foreach(size ${QUENDREL_ICON_SIZES})
    install(FILES ${QUENDREL_ART_FOLDER}/builtin/icon-${size}.png
        DESTINATION ${icons}/${size}x${size}/apps RENAME quendrel.png)
endforeach()
install(FILES ${desktop}/quendrel.svg DESTINATION ${icons}/scalable/apps)

configure_file(${desktop}/quendrel.6.in quendrel.6 @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/quendrel.6 DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
install(FILES ${desktop}/quendrel.bash-completion
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME quendrel)
install(FILES README.md CHANGELOG.md docs/making-a-skin.md docs/making-tunes-and-sounds.md
    DESTINATION ${doc})
install(FILES LICENSE DESTINATION ${doc})
