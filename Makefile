# Two commands do everything, on a fresh Debian 12 machine too: `make run` and `make test`.
# `make test` runs every test, and those of the rooms once more under the sanitizers.
BUILD := build/dev
JOBS ?= $(shell nproc)

.PHONY: run test tests style build packages sanitize monkey fuzz bench clean

run: build
	scripts/run-designer.sh $(BUILD)

test: tests
	$(MAKE) --no-print-directory sanitize

tests: build
	@echo "== Running all tests"
	QT_QPA_PLATFORM=offscreen ctest --test-dir $(BUILD) --output-on-failure -j $(JOBS) $(CTEST_ARGS)

# Layout and rules over all sources, clang-tidy over what has changed since BASE (default: since the main branch).
style: build
	@echo "== Holding the sources against the rules"
	scripts/check-style.sh $(BASE)

build: packages
	@echo "== Configuring $(BUILD)"
	cmake --preset dev
	@echo "== Building with $(JOBS) jobs"
	cmake --build $(BUILD) -j $(JOBS)

packages:
	@echo "== Checking packages"
	scripts/install-packages.sh

# The tests of the rooms and a short run of the monkey under the address and undefined-behaviour sanitizers. Programs that
# the designer generates are no part of it: they would have to be linked with the sanitizers too.
sanitize: packages
	@echo "== Running the tests of the rooms with sanitizers"
	cmake --preset asan
	cmake --build build/asan -j $(JOBS)
	QT_QPA_PLATFORM=offscreen ctest --test-dir build/asan --output-on-failure -j $(JOBS) $(CTEST_ARGS)

# Random mouse and keys on the designer, with sanitizers: EVENTS acts from SEED on. What fails is left in
# build/monkey-failures as the few acts that lead to it.
monkey: packages
	cmake --preset asan
	cmake --build build/asan -j $(JOBS) --target monkey
	build/asan/tests/monkey/monkey --events $(or $(EVENTS),20000) --seed $(or $(SEED),1) --jobs $(JOBS) \
	  --keep build/monkey-failures

# Each fuzz target runs SECONDS seconds (default 60).
fuzz: packages
	scripts/run-fuzzers.sh $(or $(SECONDS),60)

bench: packages
	cmake --preset release && cmake --build build/release -j $(JOBS)
	scripts/run-benchmarks.sh build/release

clean:
	rm -rf build
