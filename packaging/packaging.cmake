# What `cmake --install` copies. scripts/package makes a zip of it for Windows, and Debian packages
# elsewhere, with cpack: a component is the package of its name. What packages leave out is in one of
# its own, and what they alone take is left out of the rest.
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME xml2ryk)
install(TARGETS xml2ryk xml2ryk-batch)
install(DIRECTORY examples TYPE DOC)

# compress(SOURCE NAME): a target that makes NAME.gz of the build folder.
function(compress source name)
    add_custom_command(OUTPUT ${name}.gz
        COMMAND gzip -9nc ${source} > ${name}.gz DEPENDS ${source})
    add_custom_target(${name} ALL DEPENDS ${name}.gz)
endfunction()

include(packaging/library/library.cmake)
include(packaging/documents.cmake)

if(WIN32)
    if(TARGET xml2ryk-window)
        install(TARGETS xml2ryk-window)
    endif()
    # Texts that a double click opens.
    set(texts ${CMAKE_CURRENT_BINARY_DIR}/texts)
    file(MAKE_DIRECTORY ${texts}/licences)
    # text(SOURCE NAME): NAME of the zip, with the line ends of Windows.
    function(text source name)
        add_custom_command(OUTPUT ${texts}/${name}
            COMMAND sed "s/$/\\r/" ${source} > ${texts}/${name} DEPENDS ${source} VERBATIM)
        set(made ${made} ${texts}/${name} PARENT_SCOPE)
    endfunction()
    text(${PROJECT_SOURCE_DIR}/LICENSE LICENSE.txt)
    text(${PROJECT_SOURCE_DIR}/packaging/convert.cmd convert.cmd)
    # In the encoding that the Task Scheduler exports.
    set(schedule ${PROJECT_SOURCE_DIR}/packaging/nightly.xml)
    add_custom_command(OUTPUT ${texts}/nightly.xml
        COMMAND sed "s/$/\\r/" ${schedule} | iconv -f UTF-8 -t UTF-16 > ${texts}/nightly.xml
        DEPENDS ${schedule} VERBATIM)
    list(APPEND made ${texts}/nightly.xml)
    # A static program contains the toolkit and the run time of the compiler.
    file(GLOB licences ${CMAKE_PREFIX_PATH}/licences/*)
    foreach(licence IN LISTS licences)
        cmake_path(GET licence FILENAME name)
        text(${licence} licences/${name}.txt)
    endforeach()
    text(/usr/share/doc/mingw-w64-common/copyright licences/mingw-w64-copyright.txt)
    text(/usr/share/doc/gcc-mingw-w64-base/copyright licences/gcc-copyright.txt)

    add_custom_target(texts ALL DEPENDS ${made})
    install(DIRECTORY ${texts}/ DESTINATION .)
    return()
endif()

set(packages xml2ryk libxml2ryk-dev)
if(TARGET xml2ryk-window)
    include(packaging/desktop/desktop.cmake)
    list(APPEND packages xml2ryk-window)
endif()

# Not where the system would find them: user, folders and time are for whoever copies them there.
install(DIRECTORY packaging/systemd DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples)
foreach(program IN ITEMS xml2ryk xml2ryk-batch)
    install(FILES packaging/${program}.bash
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME ${program})
endforeach()
install(FILES packaging/completion.zsh
    DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions RENAME _xml2ryk)

string(TIMESTAMP now "%a, %d %b %Y %H:%M:%S +0000" UTC)

set(CPACK_PACKAGE_VENDOR "the xml2ryk authors")
# The first line of each description tells it.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL ${packages})
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "xml2ryk authors <authors@xml2ryk.invalid>")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)

set(CPACK_DEBIAN_XML2RYK_PACKAGE_SECTION text)
set(CPACK_DEBIAN_XML2RYK_DESCRIPTION
"${PROJECT_DESCRIPTION}
Reads one XML file of trade data and writes one text file that another
application imports. The source is a CommerceML catalogue, price package
or set of documents, or a YML shop feed, in any encoding. Goods come with
the full path of their group, documents with their partner and lines.
.
It is made for scripts: one call for one file, no configuration, no state,
no network. A second program, xml2ryk-batch, converts many files in nightly
runs, and tells whether everything got across.")

set(CPACK_DEBIAN_XML2RYK-WINDOW_PACKAGE_SECTION text)
set(CPACK_DEBIAN_XML2RYK-WINDOW_PACKAGE_RECOMMENDS "qttranslations5-l10n, xml2ryk")
set(CPACK_DEBIAN_XML2RYK-WINDOW_DESCRIPTION
"Shows CommerceML and YML trade data in a window, and converts it
Shows the goods, orders and groups of a file of trade data, tells what of
it an export would leave out or what should be looked at, and writes the
text file that another application imports. Rows of goods go to the
clipboard.
.
The documents and examples, and the programs for scripts, are in the
package xml2ryk.")

set(CPACK_DEBIAN_LIBXML2RYK-DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_LIBXML2RYK-DEV_PACKAGE_DEPENDS qtbase5-dev)
set(CPACK_DEBIAN_LIBXML2RYK-DEV_PACKAGE_RECOMMENDS xml2ryk)
set(CPACK_DEBIAN_LIBXML2RYK-DEV_DESCRIPTION
"Reader of CommerceML and YML trade data, for programs in C++
Static libraries with their headers and a CMake package: one that reads
sources and exports them, one that puts rows of goods on the clipboard, and
one that tells what an export would leave out.
.
The documents are in the package xml2ryk.")

configure_file(packaging/debian-changelog.in debian-changelog @ONLY)
compress(${CMAKE_CURRENT_BINARY_DIR}/debian-changelog changelog-debian)
compress(${PROJECT_SOURCE_DIR}/CHANGELOG.md changelog)
foreach(package IN LISTS packages)
    string(TOUPPER ${package} component)
    set(CPACK_DEBIAN_${component}_PACKAGE_NAME ${package})
    set(documents ${CMAKE_INSTALL_DATAROOTDIR}/doc/${package})
    install(FILES packaging/debian-copyright DESTINATION ${documents}
        RENAME copyright COMPONENT ${package} EXCLUDE_FROM_ALL)
    install(FILES packaging/debian-overrides/${package}
        DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
        COMPONENT ${package} EXCLUDE_FROM_ALL)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/changelog-debian.gz DESTINATION ${documents}
        RENAME changelog.Debian.gz COMPONENT ${package} EXCLUDE_FROM_ALL)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz DESTINATION ${documents}
        COMPONENT ${package} EXCLUDE_FROM_ALL)
endforeach()
include(CPack)
