# SPDX-License-Identifier: MIT
# Each target installs what it misses, configures, builds and does its work.

BUILD := build/release
JOBS := $(shell nproc)
WERROR := OFF

.PHONY: run check screenshots lint packages build

# The tool in the simulated box, in a browser page.
run: build
	simbox/simbox --program $(BUILD) run

# Every test: units, dialogs, and the real program in the simulated box.
check: build
	ctest --test-dir $(BUILD) --output-on-failure -j $(JOBS)

# A picture of every window in both languages, and those of README and manual.
screenshots: build
	docs/screenshots.py $(BUILD) build/screenshots

build: packages
	cmake --preset release -DMONICONF_WERROR=$(WERROR)
	cmake --build --preset release -j $(JOBS)

packages:
	packaging/install-build-packages packaging/build-packages.txt

# Format and static analysis; not part of check, since it takes the compilers of LLVM.
lint:
	packaging/install-build-packages packaging/build-packages.txt packaging/lint-packages.txt
	cmake --preset dev
	cmake --build --preset dev -j $(JOBS)
	clang-format --dry-run -Werror $$(git ls-files '*.cpp' '*.h')
	run-clang-tidy -quiet -p build/dev $$(git ls-files '*.cpp' | grep -v ^tests/)
	cppcheck --project=build/dev/compile_commands.json --quiet --inline-suppr --error-exitcode=1 \
		--enable=warning,performance,portability --library=qt -i$(CURDIR)/build
