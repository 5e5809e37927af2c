# SPDX-FileCopyrightText: 2026 QuirraControl developers
# SPDX-License-Identifier: MIT
#
# The two commands a new user needs: `make demo` and `make test`.
# Everything else is CMake; this file only wires the steps together.

BUILD    ?= build
TYPE     ?= RelWithDebInfo
JOBS     ?= 2
DEMO_OUT ?= $(BUILD)/demo

.PHONY: all deps configure build test install-test demo bench clean

all: build

deps:
	@./scripts/install-deps

$(BUILD)/build.ninja: | deps
	cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=$(TYPE)

configure: $(BUILD)/build.ninja

build: configure
	cmake --build $(BUILD) -j $(JOBS)

test: build
	cd $(BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)

# Installs the library into a fresh prefix and builds examples/host against
# it (also part of `make test`).
install-test: build
	cd $(BUILD) && ctest -R installed_host --output-on-failure

demo: build
	./scripts/demo $(BUILD) $(DEMO_OUT)

bench: build
	./scripts/bench $(BUILD)

clean:
	rm -rf $(BUILD)
