# What `cmake --install` copies. scripts/package makes a zip of it for Windows, and a Debian package
# elsewhere, with cpack. What that package leaves out, or alone takes, is in a component of its own.
install(TARGETS xml2ryk xml2ryk-batch)
install(DIRECTORY examples TYPE DOC)

find_program(PANDOC pandoc)

if(WIN32)
    # What people read comes as pages and texts that a double click opens.
    set(pages ${CMAKE_CURRENT_BINARY_DIR}/pages)
    file(MAKE_DIRECTORY ${pages}/docs ${pages}/licences)
    if(PANDOC)
        file(GLOB documents CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}
            README*.md SECURITY*.md CHANGELOG*.md docs/*.md)
        list(FILTER documents EXCLUDE REGEX ^docs/xml2ryk) # the manual page
        foreach(document IN LISTS documents)
            string(REGEX REPLACE "md$" "html" page ${pages}/${document})
            add_custom_command(OUTPUT ${page}
                COMMAND ${PANDOC} --from gfm --to html5 --self-contained --no-highlight --eol crlf
                    --css packaging/page.css --lua-filter packaging/page.lua
                    --output ${page} ${document}
                WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
                DEPENDS ${document} packaging/page.css packaging/page.lua)
            list(APPEND made ${page})
        endforeach()
    endif()
    # text(SOURCE NAME): NAME of the zip, with the line ends of Windows.
    function(text source name)
        add_custom_command(OUTPUT ${pages}/${name}
            COMMAND sed "s/$/\\r/" ${source} > ${pages}/${name} DEPENDS ${source} VERBATIM)
        set(made ${made} ${pages}/${name} PARENT_SCOPE)
    endfunction()
    text(${PROJECT_SOURCE_DIR}/LICENSE LICENSE.txt)
    text(${PROJECT_SOURCE_DIR}/packaging/convert.cmd convert.cmd)
    # In the encoding that the Task Scheduler exports.
    set(schedule ${PROJECT_SOURCE_DIR}/packaging/nightly.xml)
    add_custom_command(OUTPUT ${pages}/nightly.xml
        COMMAND sed "s/$/\\r/" ${schedule} | iconv -f UTF-8 -t UTF-16 > ${pages}/nightly.xml
        DEPENDS ${schedule} VERBATIM)
    list(APPEND made ${pages}/nightly.xml)
    # A static program contains the toolkit and the run time of the compiler.
    file(GLOB licences ${CMAKE_PREFIX_PATH}/licences/*)
    foreach(licence IN LISTS licences)
        cmake_path(GET licence FILENAME name)
        text(${licence} licences/${name}.txt)
    endforeach()
    text(/usr/share/doc/mingw-w64-common/copyright licences/mingw-w64-copyright.txt)
    text(/usr/share/doc/gcc-mingw-w64-base/copyright licences/gcc-copyright.txt)

    add_custom_target(pages ALL DEPENDS ${made})
    install(DIRECTORY ${pages}/ DESTINATION .)
    return()
endif()

file(GLOB documents CONFIGURE_DEPENDS README*.md SECURITY*.md)
install(FILES ${documents} TYPE DOC)
install(FILES CHANGELOG.md LICENSE TYPE DOC COMPONENT plain)
install(DIRECTORY docs TYPE DOC PATTERN xml2ryk* EXCLUDE)
# Not where the system would find them: user, folders and time are for whoever copies them there.
install(DIRECTORY packaging/systemd DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples)
foreach(program IN ITEMS xml2ryk xml2ryk-batch)
    install(FILES packaging/${program}.bash
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME ${program})
endforeach()
install(FILES packaging/completion.zsh
    DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions RENAME _xml2ryk)

# compress(SOURCE NAME): a target that makes NAME.gz of the build folder.
function(compress source name)
    add_custom_command(OUTPUT ${name}.gz
        COMMAND gzip -9nc ${source} > ${name}.gz DEPENDS ${source})
    add_custom_target(${name} ALL DEPENDS ${name}.gz)
endfunction()

string(TIMESTAMP today "%Y-%m-%d" UTC)
string(TIMESTAMP now "%a, %d %b %Y %H:%M:%S +0000" UTC)

if(PANDOC)
    foreach(program IN ITEMS xml2ryk xml2ryk-batch)
        configure_file(docs/${program}.1.md ${program}.1.md @ONLY)
        add_custom_command(OUTPUT ${program}.1
            COMMAND ${PANDOC} --standalone --to man --output ${program}.1 ${program}.1.md
            DEPENDS ${program}.1.md)
        compress(${program}.1 ${program}-manual)
        # Who builds only the program has no manual page to install.
        install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${program}-manual.gz
            DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 RENAME ${program}.1.gz OPTIONAL)
    endforeach()
endif()

set(CPACK_PACKAGE_VENDOR "the xml2ryk authors")
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL Unspecified debian)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "xml2ryk authors <authors@xml2ryk.invalid>")
set(CPACK_DEBIAN_PACKAGE_SECTION text)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Reads one XML file of trade data and writes one text file that another
application imports. The source is a CommerceML catalogue, price package
or set of documents, or a YML shop feed, in any encoding. Goods come with
the full path of their group, documents with their partner and lines.
.
It is made for scripts: one call for one file, no configuration, no state,
no network. A second program, xml2ryk-batch, converts many files in nightly
runs, and tells whether everything got across.")

configure_file(packaging/debian-changelog.in debian-changelog @ONLY)
compress(${CMAKE_CURRENT_BINARY_DIR}/debian-changelog changelog-debian)
compress(${PROJECT_SOURCE_DIR}/CHANGELOG.md changelog)
install(FILES packaging/debian-copyright
    TYPE DOC RENAME copyright COMPONENT debian EXCLUDE_FROM_ALL)
install(FILES packaging/debian-overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
    RENAME xml2ryk COMPONENT debian EXCLUDE_FROM_ALL)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/changelog-debian.gz
    TYPE DOC RENAME changelog.Debian.gz COMPONENT debian EXCLUDE_FROM_ALL)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz
    TYPE DOC COMPONENT debian EXCLUDE_FROM_ALL)
include(CPack)
