# SPDX-FileCopyrightText: 2026 QuirraControl developers
# SPDX-License-Identifier: MIT
#
# Installs the built library into a fresh prefix, builds examples/host
# against that prefix alone, runs it and reads its PDF back; runs the
# installed quirra too. Run by ctest as:
#
#   cmake -DBUILD_DIR=... -DSOURCE_DIR=... -DWORK_DIR=... -DGENERATOR=...
#         -DCXX_COMPILER=... -P installed_host.cmake
foreach(var BUILD_DIR SOURCE_DIR WORK_DIR GENERATOR)
    if(NOT ${var})
        message(FATAL_ERROR "installed_host: ${var} is not set")
    endif()
endforeach()

function(step what)
    execute_process(${ARGN}
        RESULT_VARIABLE status
        OUTPUT_VARIABLE output
        ERROR_VARIABLE output)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "installed_host: ${what} failed (${status}):\n${output}")
    endif()
    set(step_output "${output}" PARENT_SCOPE)
endfunction()

set(prefix ${WORK_DIR}/prefix)
set(host_build ${WORK_DIR}/host)
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})

step("installing the library"
    COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})

# Only the prefix may be searched: neither the build tree nor the sources.
set(configure_args -S ${SOURCE_DIR}/examples/host -B ${host_build} -G ${GENERATOR}
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_PREFIX_PATH=${prefix}
    -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF)
if(CXX_COMPILER)
    list(APPEND configure_args -DCMAKE_CXX_COMPILER=${CXX_COMPILER})
endif()
step("configuring examples/host against the installed package"
    COMMAND ${CMAKE_COMMAND} ${configure_args})
step("building examples/host" COMMAND ${CMAKE_COMMAND} --build ${host_build})

# The installed library must find its own catalogue.
set(run_env ${CMAKE_COMMAND} -E env --unset=QUIRRA_SYSTEM_DIR --unset=QUIRRA_PAPER_CATALOGUE
    QT_QPA_PLATFORM=offscreen HOME=${WORK_DIR} TMPDIR=${WORK_DIR})
set(pdf ${WORK_DIR}/host-labels.pdf)
step("running the example host" COMMAND ${run_env} ${host_build}/host ${pdf})

# One No. 10 envelope for each of the five recipients.
step("reading the PDF's pages" COMMAND pdfinfo ${pdf})
if(NOT step_output MATCHES "Pages: +5\n")
    message(FATAL_ERROR "installed_host: expected 5 pages:\n${step_output}")
endif()
if(NOT step_output MATCHES "Page size: +684 x 297")
    message(FATAL_ERROR "installed_host: expected a No. 10 envelope, 9.5 x 4.125 in:\n${step_output}")
endif()
step("reading the PDF's text" COMMAND pdftotext ${pdf} -)
# Words may be set apart by more than one blank in the text poppler gives.
foreach(expected "Margaret A. Holloway" "Priya Raman" "Northwind Mail Room" "For Dr. Raman")
    string(REPLACE " " "[ \t]+" pattern "${expected}")
    if(NOT step_output MATCHES "${pattern}")
        message(FATAL_ERROR "installed_host: \"${expected}\" is not in the PDF:\n${step_output}")
    endif()
endforeach()

# The installed command-line host runs from the prefix and finds the
# catalogue installed beside the library.
step("running the installed quirra"
    COMMAND ${run_env} ${prefix}/bin/quirra pieces --product "Address Labels (US Letter)")
string(FIND "${step_output}" "5160 - Address Labels" at)
if(at EQUAL -1)
    message(FATAL_ERROR "installed_host: the installed quirra lists no 5160 labels:\n${step_output}")
endif()
message(STATUS "installed_host: installed, built, ran and read back")
