# SPDX-FileCopyrightText: 2026 QuirraControl developers
# SPDX-License-Identifier: MIT
#
# The headers a host includes, all in one folder QuirraControl/: the build
# tree has it under <build>/include, an installation under <prefix>/include,
# so a host writes #include <QuirraControl/Quirra> in both.
#
# quirra_property_declarations(<def> <out>)
#   Writes the Q_PROPERTY line, getter and setter of every row of
#   properties.def into <out>, which quirra.h includes in its class. The rows
#   stay the one list of the properties; the installed header needs neither
#   the .def nor its macros.
#
# quirra_stage_public_headers(<folder> <forwarders> HEADERS <src-relative>...)
#   Copies the listed headers of src/ flat into <folder>, their includes of
#   one another made includes of the neighbour, and writes one CamelCase
#   forwarding header per "Name=header.h" of <forwarders>. A public header
#   that includes a header outside the set stops the configuration: the
#   installed folder would not compile.

function(quirra_write_if_changed file content)
    if(EXISTS ${file})
        file(READ ${file} old)
        if(old STREQUAL content)
            return()
        endif()
    endif()
    file(WRITE ${file} "${content}")
endfunction()

function(quirra_property_declarations def out)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${def})
    file(STRINGS ${def} rows REGEX "^QUIRRA_(HIDDEN_)?PROPERTY\\(")
    set(text "// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// Written by the build from properties/properties.def; edit that file.
// Included in the class Quirra, in its public part: no include guard.
")
    foreach(row IN LISTS rows)
        if(NOT row MATCHES "^QUIRRA_(HIDDEN_)?PROPERTY\\(([^,]+),([^,]+),([^,]+),")
            message(FATAL_ERROR "properties.def: cannot read the row\n  ${row}")
        endif()
        set(hidden "${CMAKE_MATCH_1}")
        string(STRIP "${CMAKE_MATCH_2}" type)
        string(STRIP "${CMAKE_MATCH_3}" name)
        string(STRIP "${CMAKE_MATCH_4}" save)
        # Qt's value classes go by reference, numbers and enumerations by
        # value, as the definitions in quirra.cpp take them.
        if(type MATCHES "^Q[A-Z]")
            set(arg "const ${type} &")
        else()
            set(arg "${type} ")
        endif()
        if(save STREQUAL "0")
            set(saved "not saved")
        else()
            set(saved "saved in place ${save}")
        endif()
        if(hidden)
            set(what "not listed by the meta-object")
        else()
            set(what "a property")
            string(APPEND text "    Q_PROPERTY(${type} ${name} READ ${name} WRITE ${name})\n")
        endif()
        string(APPEND text
            "    /** @brief ${name}: ${what} (${type}), ${saved}. */\n"
            "    ${type} ${name}() const;\n"
            "    /** @brief Sets ${name}, then emits propertyChanged(\"${name}\"). */\n"
            "    void ${name}(${arg}value);\n")
    endforeach()
    quirra_write_if_changed(${out} "${text}")
endfunction()

function(quirra_stage_public_headers folder forwarders)
    cmake_parse_arguments(P "" "" "HEADERS" ${ARGN})
    set(staged)
    # Every public header as the sources include it, and the generated ones
    # as "QuirraControl/<name>".
    set(known)
    foreach(header IN LISTS P_HEADERS)
        get_filename_component(base ${header} NAME)
        list(APPEND known ${header})
        list(APPEND staged ${base})
    endforeach()
    file(GLOB generated RELATIVE ${folder} ${folder}/*.h)
    foreach(base IN LISTS generated)
        list(APPEND known QuirraControl/${base} ${base})
    endforeach()
    foreach(header IN LISTS P_HEADERS)
        set(source ${QUIRRA_SOURCE_ROOT}/${header})
        if(NOT EXISTS ${source})
            set(source ${QUIRRA_GENERATED_INCLUDE}/${header})
        endif()
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
        file(READ ${source} text)
        string(REGEX MATCHALL "#include \"[^\"]+\"" includes "${text}")
        foreach(include IN LISTS includes)
            string(REGEX REPLACE "#include \"([^\"]+)\"" "\\1" path "${include}")
            if(NOT path IN_LIST known)
                message(FATAL_ERROR "${header} is a public header, yet includes \"${path}\", "
                    "which is not installed: include it in the .cpp instead, or make it public.")
            endif()
            get_filename_component(base ${path} NAME)
            string(REPLACE "${include}" "#include \"${base}\"" text "${text}")
        endforeach()
        get_filename_component(base ${header} NAME)
        quirra_write_if_changed(${folder}/${base} "${text}")
    endforeach()
    foreach(pair IN LISTS forwarders)
        string(REPLACE "=" ";" pair "${pair}")
        list(GET pair 0 name)
        list(GET pair 1 header)
        quirra_write_if_changed(${folder}/${name}
            "// SPDX-FileCopyrightText: 2026 QuirraControl developers\n// SPDX-License-Identifier: MIT\n#include \"${header}\"\n")
    endforeach()
endfunction()
