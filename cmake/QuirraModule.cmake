# SPDX-FileCopyrightText: 2026 QuirraControl developers
# SPDX-License-Identifier: MIT
#
# quirra_add_module(<folder> SOURCES ... LIBS ...)
#
# Each source folder is one static library, linked only against what it may
# use, so a stray include of a higher layer fails the build. The shared
# library QuirraControl bundles them all.
set(QUIRRA_SOURCE_ROOT ${PROJECT_SOURCE_DIR}/src)
set(QUIRRA_GENERATED_INCLUDE ${PROJECT_BINARY_DIR}/include)

function(quirra_add_module folder)
    cmake_parse_arguments(M "" "" "SOURCES;LIBS" ${ARGN})
    set(target quirra_${folder})
    add_library(${target} STATIC ${M_SOURCES})
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${QUIRRA_SOURCE_ROOT}>
        $<BUILD_INTERFACE:${QUIRRA_GENERATED_INCLUDE}>)
    # The module's code ends up inside the shared library: export its
    # public symbols as the shared library does.
    target_compile_definitions(${target} PRIVATE QuirraControl_EXPORTS)
    target_link_libraries(${target} PUBLIC ${M_LIBS})
    set_property(GLOBAL APPEND PROPERTY QUIRRA_MODULES ${target})
endfunction()
