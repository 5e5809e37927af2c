# SPDX-FileCopyrightText: 2026 QuirraControl developers
# SPDX-License-Identifier: MIT
#
# Sanitized builds: `make test-asan` configures with
# -DQUIRRA_SANITIZE="address;undefined", `make fuzz` with -DQUIRRA_FUZZ=ON
# (clang only), which adds both and libFuzzer's coverage to every object.
set(QUIRRA_SANITIZE "" CACHE STRING "Sanitizers for the whole build, e.g. address;undefined")
option(QUIRRA_FUZZ "Build the libFuzzer targets of fuzz/ (needs clang)" OFF)

if(QUIRRA_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        message(FATAL_ERROR "QUIRRA_FUZZ needs clang: configure with -DCMAKE_CXX_COMPILER=clang++")
    endif()
    list(APPEND QUIRRA_SANITIZE address undefined)
    list(REMOVE_DUPLICATES QUIRRA_SANITIZE)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

if(QUIRRA_SANITIZE)
    list(JOIN QUIRRA_SANITIZE "," quirra_sanitizers)
    # A finding stops the program, so a test or a fuzzer run fails on it.
    add_compile_options(-fsanitize=${quirra_sanitizers} -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${quirra_sanitizers})
endif()
