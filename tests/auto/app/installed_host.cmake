# SPDX-FileCopyrightText: 2026 QuirraControl developers
# SPDX-License-Identifier: MIT
#
# Installs the built library into a fresh prefix, builds examples/host
# against that prefix alone, runs it and reads its PDF back; builds and runs
# examples/designer-form the same way, and a small host with pkg-config
# alone; runs the installed quirra too. The installed include folder holds
# only the host's headers, at most 15 files. Run by ctest as:
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

# The last step's output must match the pattern; what it means otherwise.
function(expect pattern meaning)
    if(NOT step_output MATCHES "${pattern}")
        message(FATAL_ERROR "installed_host: ${meaning}:\n${step_output}")
    endif()
endfunction()

set(prefix ${WORK_DIR}/prefix)
set(host_build ${WORK_DIR}/host)
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})

step("installing the library"
    COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})

# Only QuirraControl/ goes into include/, flat and small: a host's own
# folders cannot meet ours.
file(GLOB_RECURSE headers LIST_DIRECTORIES true RELATIVE ${prefix}/include ${prefix}/include/*)
list(LENGTH headers count)
list(FILTER headers EXCLUDE REGEX "^QuirraControl/[^/]+$")
if(headers STREQUAL "QuirraControl" AND count GREATER 1 AND count LESS_EQUAL 16)
    message(STATUS "installed_host: ${count} entries in include/, the folder included")
else()
    message(FATAL_ERROR "installed_host: include/ should hold QuirraControl/ and at most 15 "
        "files directly in it; it holds ${count} entries, among them:\n${headers}")
endif()

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
set(form_build ${WORK_DIR}/form)
string(REPLACE "examples/host;-B;${host_build}" "examples/designer-form;-B;${form_build}"
    form_args "${configure_args}")
step("configuring examples/designer-form against the installed package"
    COMMAND ${CMAKE_COMMAND} ${form_args})
step("building examples/designer-form" COMMAND ${CMAKE_COMMAND} --build ${form_build})

# A host without CMake: the compiler, pkg-config and the prefix.
file(GLOB_RECURSE pc_file ${prefix}/*/quirracontrol.pc)
if(NOT pc_file)
    message(FATAL_ERROR "installed_host: no quirracontrol.pc was installed")
endif()
get_filename_component(pc_dir "${pc_file}" DIRECTORY)
get_filename_component(lib_dir "${pc_dir}" DIRECTORY)
set(ENV{PKG_CONFIG_PATH} ${pc_dir})
step("asking pkg-config for the flags"
    COMMAND pkg-config --cflags --libs quirracontrol)
separate_arguments(pc_flags UNIX_COMMAND "${step_output}")
set(tiny ${WORK_DIR}/pkgconfig_host)
if(NOT CXX_COMPILER)
    set(CXX_COMPILER c++)
endif()
step("building a host with pkg-config"
    COMMAND ${CXX_COMPILER} -std=c++17 -fPIC ${SOURCE_DIR}/tests/auto/app/pkgconfig_host.cpp
        ${pc_flags} -o ${tiny})

# The installed library must find its own catalogue.
set(run_env ${CMAKE_COMMAND} -E env --unset=QUIRRA_SYSTEM_DIR --unset=QUIRRA_PAPER_CATALOGUE
    QT_QPA_PLATFORM=offscreen HOME=${WORK_DIR} TMPDIR=${WORK_DIR})
set(pdf ${WORK_DIR}/host-labels.pdf)
step("running the example host" COMMAND ${run_env} ${host_build}/host ${pdf})
step("running the form example" COMMAND ${run_env} ${form_build}/designer-form --check)
expect("PieceName: 5160 - Address Labels\nReturnText: QuirraControl developers\n"
    "the form did not reach the control")
step("running the pkg-config host"
    COMMAND ${run_env} LD_LIBRARY_PATH=${lib_dir} ${tiny})
# The piece by name, the centred address, its top, one empty record noted.
expect("(^|\n)5160 - Address Labels\\|1\\|0\\.50\\|1\n" "the pkg-config host printed")

# One No. 10 envelope for each of the five recipients.
step("reading the PDF's pages" COMMAND pdfinfo ${pdf})
expect("Pages: +5\n" "expected 5 pages")
expect("Page size: +684 x 297" "expected a No. 10 envelope, 9.5 x 4.125 in")
step("reading the PDF's text" COMMAND pdftotext ${pdf} -)
# Words may be set apart by more than one blank in the text poppler gives.
foreach(expected "Margaret A. Holloway" "Priya Raman" "Northwind Mail Room" "For Dr. Raman")
    string(REPLACE " " "[ \t]+" pattern "${expected}")
    expect("${pattern}" "\"${expected}\" is not in the PDF")
endforeach()

# The installed command-line host runs from the prefix and finds the
# catalogue installed beside the library.
step("running the installed quirra"
    COMMAND ${run_env} ${prefix}/bin/quirra pieces --product "Address Labels (US Letter)")
expect("5160 - Address Labels" "the installed quirra lists no 5160 labels")
message(STATUS "installed_host: installed, built, ran and read back")
