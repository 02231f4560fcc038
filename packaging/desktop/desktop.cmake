# The program with a window, and how a desktop finds it.
install(TARGETS xml2ryk-window COMPONENT xml2ryk-window)
install(FILES packaging/desktop/xml2ryk-window.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT xml2ryk-window)
install(FILES packaging/desktop/mime.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME xml2ryk-window.xml
    COMPONENT xml2ryk-window)
configure_file(packaging/desktop/metainfo.xml.in metainfo.xml @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo RENAME invalid.xml2ryk.window.metainfo.xml
    COMPONENT xml2ryk-window)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES packaging/icons/xml2ryk.svg
    DESTINATION ${icons}/scalable/apps COMPONENT xml2ryk-window)
foreach(size IN ITEMS 16 32 48 64 128 256)
    install(FILES packaging/icons/xml2ryk-${size}.png
        DESTINATION ${icons}/${size}x${size}/apps RENAME xml2ryk.png COMPONENT xml2ryk-window)
endforeach()
