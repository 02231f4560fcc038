# What people read: the documents as pages for a browser, and elsewhere than on Windows also as they
# are, and as manual pages.
find_program(PANDOC pandoc)
string(TIMESTAMP today "%Y-%m-%d" UTC)

set(manuals xml2ryk xml2ryk-batch xml2ryk-window)
foreach(manual IN LISTS manuals)
    configure_file(docs/${manual}.1.md ${manual}.1.md @ONLY)
endforeach()

if(WIN32)
    # Of the manual pages only this one tells what stands nowhere else.
    set(manual_pages docs/xml2ryk-batch.1)
    set(licence_pages docs/relinking)
    set(page_options --metadata platform=Windows --eol crlf)
    set(page_folder .)
else()
    list(TRANSFORM manuals REPLACE "(.+)" "docs/\\1.1" OUTPUT_VARIABLE manual_pages)
    set(page_options --metadata platform=Debian --eol lf)
    set(page_folder ${CMAKE_INSTALL_DOCDIR}/html)
endif()
# In the order of the links at the head of each page.
set(documents README docs/troubleshooting docs/window docs/many-files ${manual_pages}
    docs/exchange-format docs/source-formats docs/goods-rows docs/host docs/performance SECURITY CHANGELOG
    ${licence_pages})
list(TRANSFORM documents APPEND ".md")
foreach(document IN LISTS documents)
    list(APPEND pages ${document})
    string(REGEX REPLACE "md$" "ru.md" russian ${document})
    if(EXISTS ${PROJECT_SOURCE_DIR}/${russian})
        list(APPEND pages ${russian})
    endif()
endforeach()
list(JOIN pages " " names_of_pages)

set(html ${CMAKE_CURRENT_BINARY_DIR}/html)
file(MAKE_DIRECTORY ${html}/docs)
# page(NAME SOURCE FORMAT): the page of the document NAME, which stands in SOURCE.
function(page name source format)
    string(REGEX REPLACE "md$" "html" page ${html}/${name})
    add_custom_command(OUTPUT ${page}
        COMMAND ${PANDOC} --from ${format} --to html5 --self-contained --no-highlight
            --css packaging/page.css --lua-filter packaging/page.lua ${page_options}
            --metadata name=${name} --metadata pages=${names_of_pages}
            --metadata version=${PROJECT_VERSION} --output ${page} ${source}
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
        DEPENDS ${source} ${pages} packaging/page.css packaging/page.lua VERBATIM)
    set(made_pages ${made_pages} ${page} PARENT_SCOPE)
endfunction()
if(PANDOC)
    foreach(document IN LISTS pages)
        cmake_path(GET document FILENAME file)
        if(file MATCHES "\\.1\\.md$")
            page(${document} ${CMAKE_CURRENT_BINARY_DIR}/${file} markdown)
        else()
            page(${document} ${document} gfm)
        endif()
    endforeach()
    page(index.md packaging/index.md gfm)
endif()
add_custom_target(html ALL DEPENDS ${made_pages})
install(DIRECTORY ${html}/ DESTINATION ${page_folder})

if(WIN32)
    return()
endif()

file(GLOB documents CONFIGURE_DEPENDS README*.md SECURITY*.md CHANGELOG*.md)
install(FILES ${documents} TYPE DOC)
install(FILES LICENSE TYPE DOC COMPONENT plain)
install(DIRECTORY docs TYPE DOC PATTERN xml2ryk* EXCLUDE)

if(PANDOC)
    foreach(manual IN LISTS manuals)
        add_custom_command(OUTPUT ${manual}.1
            COMMAND ${PANDOC} --standalone --to man --output ${manual}.1 ${manual}.1.md
            DEPENDS ${manual}.1.md)
        compress(${manual}.1 ${manual}-manual)
        set(component)
        if(manual STREQUAL xml2ryk-window)
            set(component COMPONENT ${manual})
        endif()
        # Who builds only the program has no manual page to install.
        install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${manual}-manual.gz
            DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 RENAME ${manual}.1.gz
            ${component} OPTIONAL)
    endforeach()
endif()
