# What other programs are built with: libraries, their headers, and a CMake package.
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/xml2ryk)
set(libraries xml2ryk-core xml2ryk-survey)
set(modules Core Xml)
set_target_properties(xml2ryk-core PROPERTIES EXPORT_NAME reader)
set_target_properties(xml2ryk-survey PROPERTIES EXPORT_NAME survey)
if(TARGET xml2ryk-clipboard)
    list(APPEND libraries xml2ryk-clipboard)
    set(clipboard_modules Gui)
    set_target_properties(xml2ryk-clipboard PROPERTIES EXPORT_NAME clipboard)
endif()
if(qt EQUAL 6)
    list(APPEND modules Core5Compat)
endif()
list(JOIN modules " " modules)

set(component COMPONENT libxml2ryk-dev)
if(WIN32)
    # All the rest is for people.
    list(APPEND component EXCLUDE_FROM_ALL)
endif()
if(MINGW)
    # What is protected needs the library that this brings.
    target_link_options(xml2ryk-core INTERFACE $<INSTALL_INTERFACE:-fstack-protector-strong>)
endif()
# Each with a file of its own, so that who asks for one gets no other, whose needs were not looked for.
set(components)
foreach(library IN LISTS libraries)
    get_target_property(name ${library} EXPORT_NAME)
    list(APPEND components ${name})
    install(TARGETS ${library} EXPORT xml2ryk-${name}
        ARCHIVE ${component}
        FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/xml2ryk ${component})
    install(EXPORT xml2ryk-${name} NAMESPACE xml2ryk:: DESTINATION ${package_folder} ${component})
endforeach()
list(JOIN components " " components)
include(CMakePackageConfigHelpers)
configure_package_config_file(packaging/library/xml2ryk-config.cmake.in xml2ryk-config.cmake
    INSTALL_DESTINATION ${package_folder} NO_SET_AND_CHECK_MACRO)
# Before 1.0 each second number may change what there is.
write_basic_package_version_file(xml2ryk-config-version.cmake COMPATIBILITY SameMinorVersion)
install(FILES
    ${CMAKE_CURRENT_BINARY_DIR}/xml2ryk-config.cmake
    ${CMAKE_CURRENT_BINARY_DIR}/xml2ryk-config-version.cmake
    DESTINATION ${package_folder} ${component})
