# SPDX-License-Identifier: MIT
# The front door. Each target sets up what it needs first; a second run finds it there.
SHELL := /bin/bash
.DEFAULT_GOAL := help
.PHONY: help demo app test asan fuzz bench bench-player samples shots screenshots guide golden lint format install package clean

DEMO_BOOK := build/demo-book
PREFIX ?= /usr/local

help: ## Show the targets
	@awk -F ':.*## ' '/^[a-z-]+:.*## / { printf "  make %-12s %s\n", $$1, $$2 }' $(MAKEFILE_LIST)

demo: ## Set up, build, and turn the sample PDF into a book
	@tools/setup build
	@tools/build headless
	@build/headless/bin/leafcast publish samples/magazine.pdf $(DEMO_BOOK) --force
	@echo
	@echo "The book lies in $(CURDIR)/$(DEMO_BOOK)."
	@echo "Look at it: open $(CURDIR)/$(DEMO_BOOK)/index.html in a browser,"
	@echo "or: xdg-open $(DEMO_BOOK)/index.html"
	@echo "On a tablet: build/headless/bin/leafcast serve $(DEMO_BOOK) shows the address and its QR code."

app: ## Set up, build and start the desktop application
	@tools/setup app
	@tools/build release
	@build/release/bin/leafcast-desktop

test: ## Set up, build and run every test
	@tools/setup test
	@tools/build dev
	@ctest --preset dev --parallel $$(nproc)
	@LEAFCAST="$(CURDIR)/build/dev/bin/leafcast" npm test --silent

fuzz: ## Run each fuzz target for a minute, or for FUZZ_SECONDS
	@tools/setup lint
	@tools/build fuzz
	@tools/fuzz

asan: ## Run the unit tests under the address and undefined behaviour sanitizers
	@tools/setup test
	@tools/build asan
	@ctest --preset asan --parallel $$(nproc)

bench: ## Measure speed, memory and size beside other programs
	@tools/setup bench
	@tools/build release
	@bench/run

bench-player: ## Measure the player beside others, against its budgets
	@tools/setup bench-player
	@tools/build release
	@node bench/player/run.mjs

samples: ## Make the sample magazine, the first book's pages, the templates, their pictures and the icon anew
	@tools/setup samples
	@node samples/make-magazine.mjs
	@node tools/make-demo-images.mjs
	@node tools/make-templates.mjs
	@node tools/make-template-art.mjs
	@node tools/make-icons.mjs

shots: ## Take the pictures of the styles from a real book
	@tools/setup samples
	@tools/build headless
	@LEAFCAST="$(CURDIR)/build/headless/bin/leafcast" node tools/make-shots.mjs

screenshots: ## Photograph every window of the application, into build/screenshots
	@tools/setup screenshots
	@tools/build release
	@cmake --build --preset release --target leafcast-screenshots
	@tools/screenshots/take release

guide: screenshots ## Print the guide and its pictures anew
	@tools/screenshots/pick
	@node tools/make-guide.mjs

golden: ## Draw the golden pictures of the turning leaf anew; look at them before a commit
	@tools/setup test
	@GOLDEN=renew node --test tests/e2e/curl.test.mjs

lint: ## Check formatting, includes and clang-tidy on changed files
	@tools/setup lint
	@tools/lint

format: ## Format the changed files
	@tools/setup lint
	@tools/changed-sources | xargs -r clang-format -i

install: ## Install the release build (PREFIX, DESTDIR)
	@tools/setup app
	@tools/build release
	@DESTDIR="$(DESTDIR)" cmake --install build/release --prefix "$(PREFIX)"

package: ## Build the Debian packages and check them
	@tools/setup package
	@tools/build release
	@tools/package

clean: ## Remove everything that was built
	@rm -rf build
