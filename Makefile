# SPDX-License-Identifier: MIT
# Each target installs what it misses, configures, builds and does its work.

BUILD := build/release
JOBS := $(shell nproc)
WERROR := OFF
PARTS := all
PACKAGES := build/packages
SYSROOT := build/sysroot-armhf
# Those that packages are made for, this machine's first.
ARCHITECTURES = $(shell dpkg --print-architecture)

.PHONY: run check check-all check-asan check-qt6 check-armhf check-package check-reproducible check-source \
	screenshots update-translations lint packages build package package-tools armhf-tools board check-board

# The tool in the simulated box, in a browser page, on a screen small enough to be read there.
run: PARTS := moniconf moniconf-edid catalogues
run: build
	simbox/simbox --program $(BUILD) --hdmi 1280x1024 --mode 1024x768 run

# Every test but the package's and the board's: units, dialogs, the real program in the simulated box.
check: build
	ctest --test-dir $(BUILD) --output-on-failure -j $(JOBS)

# For before a release; takes long, and downloads much.
check-all: check lint check-asan check-qt6 check-armhf check-reproducible check-source check-board

# The tests, with AddressSanitizer and UBSan.
check-asan: packages
	cmake --preset asan
	cmake --build --preset asan -j $(JOBS)
	ctest --test-dir build/asan --output-on-failure -j $(JOBS)

# The same with Qt 6 in place of Qt 5.
check-qt6:
	packaging/install-build-packages packaging/build-packages.txt packaging/qt6-packages.txt
	cmake --preset qt6
	cmake --build --preset qt6 -j $(JOBS)
	ctest --test-dir build/qt6 --output-on-failure -j $(JOBS)

# A picture of every window in each language, and those of README and manuals, of a program whose
# version is always the same.
screenshots: export SOURCE_DATE_EPOCH := 1768441287
screenshots: packages
	cmake --preset release -B build/pictures -DBUILD_TESTING=OFF
	cmake --build build/pictures -j $(JOBS)
	docs/screenshots.py build/pictures build/screenshots

# Enters in the catalogues what is new among the texts.
update-translations: PARTS := update-translations
update-translations: build

build: packages
	cmake --preset release -DMONICONF_WERROR=$(WERROR)
	cmake --build --preset release -j $(JOBS) --target $(PARTS)

packages:
	packaging/install-build-packages packaging/build-packages.txt

# Format and static analysis; not part of check, since it takes the compilers of LLVM.
lint:
	packaging/install-build-packages packaging/build-packages.txt packaging/lint-packages.txt
	cmake --preset dev
	cmake --build --preset dev -j $(JOBS)
	reuse lint
	clang-format --dry-run -Werror $$(git ls-files '*.cpp' '*.h')
	run-clang-tidy -quiet -p build/dev $$(git ls-files '*.cpp' | grep -v ^tests/)
	cppcheck --quiet --inline-suppr --error-exitcode=1 --enable=warning,performance,portability \
		--library=qt -I. app display maintenance libOxUtils

# Debian packages for this kind of machine and for the box, checked; they are in build/packages.
package: $(SYSROOT)/complete
	$(MAKE) check-package ARCHITECTURES="$(ARCHITECTURES) armhf"

# The source package and that for this kind of machine, which is used and removed in the simulated box.
check-package: package-tools
	SYSROOT=$(SYSROOT) packaging/build-package $(PACKAGES) $(ARCHITECTURES)
	lintian --fail-on error,warning $(PACKAGES)/*.changes
	desktop-file-validate packaging/moniconf.desktop
	appstreamcli validate --no-net $(PACKAGES)/moniconf-*/obj-*/packaging/*.metainfo.xml
	package=$$(ls $(PACKAGES)/moniconf_*_$(firstword $(ARCHITECTURES)).deb) && \
		simbox/simbox --otp --package "$$package" exec timeout 240 tests/box/test_package.py "$$package"

# Packages made a second time, elsewhere, are the same to the byte.
check-reproducible: package
	SYSROOT=$(SYSROOT) packaging/build-package $(PACKAGES)-again $(ARCHITECTURES) armhf
	for file in $(PACKAGES)/*.xz $(PACKAGES)/*.deb; do \
		cmp "$$file" "$(PACKAGES)-again/$${file##*/}" || exit; \
	done
	sha256sum $(PACKAGES)/*.deb

# The source package, built and tested in a Debian that holds nothing else.
check-source: package
	packaging/build-in-chroot $(PACKAGES)

# The unit tests and the program, built for the box and run by an emulator of its processor.
check-armhf: build/armhf/complete
	ctest --test-dir build/armhf --output-on-failure -j $(JOBS) -R ^unit
	packaging/run-armhf $(SYSROOT) build/armhf/moniconf -v

# The package on an emulated board of the box's kind: its desktop in a browser page, or its tests.
board check-board: build/armhf/complete
	packaging/install-build-packages packaging/board-packages.txt
	PATH="$$PATH:/usr/sbin:/sbin" $(MAKE) -f board/Makefile $@

# The box's package, and the unit tests for its processor, made anew when a source has changed.
build/armhf/complete: $(SYSROOT)/complete $(shell git ls-files '*.cpp' '*.h' '*.ui' '*.ts' '*CMakeLists.txt' \
		CHANGELOG.md CMakePresets.json debian packaging resources 2>/dev/null)
	SYSROOT=$(SYSROOT) packaging/build-package build/armhf/packages armhf
	cmake --preset armhf -DMONICONF_WERROR=$(WERROR)
	cmake --build --preset armhf -j $(JOBS)
	touch $@

$(SYSROOT)/complete: packaging/make-sysroot packaging/extract-armhf | armhf-tools
	packaging/make-sysroot $(SYSROOT)

package-tools:
	packaging/install-build-packages packaging/build-packages.txt packaging/package-packages.txt

armhf-tools: package-tools
	packaging/install-build-packages packaging/armhf-packages.txt
