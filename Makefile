# SPDX-FileCopyrightText: 2026 QuirraControl developers
# SPDX-License-Identifier: MIT
#
# The two commands a new user needs: `make demo` and `make test`.
# Everything else is CMake; this file only wires the steps together.
#
#   make test        build, then the whole suite, printing through a private CUPS spooler
#   make test-asan   the whole suite again, built with AddressSanitizer and
#                    UndefinedBehaviorSanitizer (its own build folder, BUILD-asan)
#   make fuzz        the libFuzzer targets (clang, BUILD-fuzz), FUZZ_SECONDS each
#   make bench       quirra print against Qt's PDF engine, 1,000 to 1,000,000 records
#   make format      format every C++ file as .clang-format says (format-check: only look)
#   make docs        the API documentation of the installed headers, $(BUILD)/docs/html
#                    (Doxygen; a public member without its line fails it)

BUILD    ?= build
TYPE     ?= RelWithDebInfo
JOBS     ?= 2
DEMO_OUT ?= $(BUILD)/demo
ASAN_BUILD   ?= $(BUILD)-asan
FUZZ_BUILD   ?= $(BUILD)-fuzz
FUZZ_SECONDS ?= 60

# A finding stops the program with its report, and so fails the test;
# leaks are looked for at every program's end (but for Qt Designer's own,
# listed in tests/lsan-suppressions.txt).
SANITIZER_ENV = \
	ASAN_OPTIONS=detect_leaks=1:check_initialization_order=1:strict_init_order=1 \
	UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
	LSAN_OPTIONS=suppressions=$(CURDIR)/tests/lsan-suppressions.txt

.PHONY: all deps configure build test test-asan install-test demo bench fuzz format format-check docs clean

all: build

deps:
	@./scripts/install-deps

$(BUILD)/build.ninja: | deps
	cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=$(TYPE)

configure: $(BUILD)/build.ninja

build: configure
	cmake --build $(BUILD) -j $(JOBS)

# Separate from build and test: only Doxygen, no compiler, runs here.
docs: configure
	cmake --build $(BUILD) --target docs

test: build
	./scripts/with-cups $(BUILD)/cups \
		env QT_QPA_PLATFORM=offscreen ctest --test-dir $(BUILD) --output-on-failure -j $(JOBS)

# The installed-package test builds a host without the sanitizers' runtime,
# so it runs in `make test` only.
$(ASAN_BUILD)/build.ninja: | deps
	cmake -S . -B $(ASAN_BUILD) -G Ninja -DCMAKE_BUILD_TYPE=Debug \
		-DQUIRRA_SANITIZE="address;undefined" -DQUIRRA_BUILD_BENCH=OFF

test-asan: $(ASAN_BUILD)/build.ninja
	cmake --build $(ASAN_BUILD) -j $(JOBS)
	./scripts/with-cups $(ASAN_BUILD)/cups \
		env QT_QPA_PLATFORM=offscreen $(SANITIZER_ENV) \
		ctest --test-dir $(ASAN_BUILD) --output-on-failure -j $(JOBS) -E '^installed_host$$'

# Installs the library into a fresh prefix and builds examples/host against
# it (also part of `make test`).
install-test: build
	cd $(BUILD) && ctest -R installed_host --output-on-failure

demo: build
	./scripts/demo $(BUILD) $(DEMO_OUT)

bench: build
	./scripts/bench $(BUILD)

fuzz:
	@./scripts/install-deps fuzz
	cmake -S . -B $(FUZZ_BUILD) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
		-DCMAKE_CXX_COMPILER=clang++ -DQUIRRA_FUZZ=ON \
		-DQUIRRA_BUILD_TESTS=OFF -DQUIRRA_BUILD_BENCH=OFF
	cmake --build $(FUZZ_BUILD) -j $(JOBS) --target fuzz_profile fuzz_catalogue fuzz_spool fuzz_csv fuzz_templates
	./scripts/fuzz $(FUZZ_BUILD) $(FUZZ_SECONDS)

# Every C++ file as .clang-format says; CI checks it before it builds.
format-check: deps
	./scripts/check-format

format: deps
	./scripts/check-format --fix

clean:
	rm -rf $(BUILD) $(ASAN_BUILD) $(FUZZ_BUILD)
