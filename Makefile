# Two commands do everything, on a fresh Debian 12 machine too: `make run` and `make test`.
BUILD := build/dev
JOBS ?= $(shell nproc)

.PHONY: run test build packages fuzz bench clean

run: build
	scripts/run-designer.sh $(BUILD)

test: build
	@echo "== Running all tests"
	QT_QPA_PLATFORM=offscreen ctest --test-dir $(BUILD) --output-on-failure -j $(JOBS) $(CTEST_ARGS)

build: packages
	@echo "== Configuring $(BUILD)"
	cmake --preset dev
	@echo "== Building with $(JOBS) jobs"
	cmake --build $(BUILD) -j $(JOBS)

packages:
	@echo "== Checking packages"
	scripts/install-packages.sh

# Each fuzz target runs SECONDS seconds (default 60).
fuzz: packages
	scripts/run-fuzzers.sh $(or $(SECONDS),60)

bench: packages
	cmake --preset release && cmake --build build/release -j $(JOBS)
	scripts/run-benchmarks.sh build/release

clean:
	rm -rf build
