# `make run` and `make test` are all that a newcomer needs; both install what is missing first.
.DEFAULT_GOAL := help
.PHONY: help run build test test-vm check-macos bench format format-check tidy install clean

RELEASE := build/release
KINESTA := $(RELEASE)/bin/kinesta

help: ## This list
	@sed -nE 's/^([a-z-]+):.*## (.*)/\1|\2/p' $(MAKEFILE_LIST) | while IFS='|' read -r target text; do \
		printf '  make %-14s %s\n' "$$target" "$$text"; done

run: build ## Build Kinesta and start it; without a display, watch it recognize real recordings
	@if [ -n "$$DISPLAY$$WAYLAND_DISPLAY" ]; then $(KINESTA); else $(KINESTA) demo; fi

build: ## Build the optimized programs; build/release/bin/kinesta starts them all
	@scripts/install-dependencies build
	@scripts/build release programs

test: ## Build and run every test
	@scripts/install-dependencies test
	@scripts/build dev
	@scripts/run-tests dev

test-vm: ## Test with virtual touchpads on a real kernel, in a virtual machine
	@scripts/install-dependencies vm
	@scripts/build dev vm_tests kinesta
	@scripts/run-vm-test

check-macos: ## Check the macOS layer on Linux: types, wrong uses, its tests, and making Kinesta.app where that is possible
	@scripts/install-dependencies macos
	@scripts/check-macos

bench: ## Run the benchmarks and count the instructions of a frame
	@scripts/install-dependencies bench
	@scripts/build release
	@$(RELEASE)/bin/kinesta_benchmarks
	@scripts/count-instructions

format: ## Format every source file in place
	@scripts/format --write

format-check: ## Tell what is not formatted
	@scripts/format --check

tidy: ## Run clang-tidy over src/
	@scripts/tidy

install: build ## Install under PREFIX (default /usr/local), honouring DESTDIR
	@DESTDIR=$(DESTDIR) cmake --install $(RELEASE) --prefix $(or $(PREFIX),/usr/local)

clean: ## Remove everything that was built
	@rm -rf build
