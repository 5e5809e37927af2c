# SPDX-FileCopyrightText: 2026 QuirraControl developers
# SPDX-License-Identifier: MIT
#
# The `docs` target: Doxygen over the installed headers into
# <build>/docs/html, installed to share/doc/quirracontrol/html once built.
# Not part of the default build, and a warning (an undocumented public
# member among them) fails it. Doxygen reads a copy of the public folder in
# which quirra.h holds its property declarations in place.
set(QUIRRA_DOCS_DIR ${PROJECT_BINARY_DIR}/docs)
set(QUIRRA_DOCS_INPUT ${QUIRRA_DOCS_DIR}/include)
file(MAKE_DIRECTORY ${QUIRRA_DOCS_INPUT})
file(READ ${QUIRRA_PUBLIC_INCLUDE}/quirraproperties.h declarations)
foreach(header IN LISTS QUIRRA_INSTALLED_HEADERS)
    if(header MATCHES "\\.h$" AND NOT header MATCHES "quirraproperties\\.h$")
        get_filename_component(base ${header} NAME)
        file(READ ${header} text)
        string(REPLACE "#include \"quirraproperties.h\"\n" "${declarations}" text "${text}")
        quirra_write_if_changed(${QUIRRA_DOCS_INPUT}/${base} "${text}")
    endif()
endforeach()
configure_file(${PROJECT_SOURCE_DIR}/doc/Doxyfile.in ${PROJECT_BINARY_DIR}/Doxyfile @ONLY)

find_package(Doxygen QUIET)
if(DOXYGEN_FOUND)
    add_custom_target(docs
        COMMAND ${CMAKE_COMMAND} -E rm -rf ${QUIRRA_DOCS_DIR}/html
        COMMAND Doxygen::doxygen ${PROJECT_BINARY_DIR}/Doxyfile
        WORKING_DIRECTORY ${PROJECT_BINARY_DIR}
        COMMENT "Writing the API documentation into ${QUIRRA_DOCS_DIR}/html"
        VERBATIM)
else()
    add_custom_target(docs
        COMMAND ${CMAKE_COMMAND} -E echo "docs: doxygen is not installed (scripts/install-deps)"
        COMMAND ${CMAKE_COMMAND} -E false)
endif()
install(DIRECTORY ${QUIRRA_DOCS_DIR}/html/
    DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/quirracontrol/html
    OPTIONAL)
