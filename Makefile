# What people type. CMakePresets.json says how things are built, scripts/install-packages what must be there.

BUILD := build/release
VEXA := $(BUILD)/bin/vexa

FUZZ_SECONDS ?= 60

.PHONY: help packages demo test bench linearity bounds soak tsan fuzz fuzz-coverage format clean

help:
	@echo "make demo       build, and draw every example into out/"
	@echo "make test       build, and run all tests"
	@echo "make bench      build, and run the benchmarks"
	@echo "make linearity  count instructions: work must grow no faster than documents"
	@echo "make bounds     memory and time of documents that ask for much, beside what SECURITY.md allows"
	@echo "make soak       render 100,000 documents in one process: no memory and no descriptor may get lost"
	@echo "make tsan       render on 8 threads under the thread sanitizer"
	@echo "make fuzz       build the fuzz targets, and run each for FUZZ_SECONDS ($(FUZZ_SECONDS))"
	@echo "make fuzz-coverage  tell which lines their inputs reach"
	@echo "make format     format all C++ sources"
	@echo "make clean      remove build/ and out/"

demo: $(BUILD)/build.ninja
	cmake --build --preset release --target vexa_cli
	$(VEXA) render examples/*.xml --out-dir out --to svg
	$(VEXA) render examples/*.xml --out-dir out --to png --scale 2
	$(VEXA) render examples/*.xml --out-dir out --to json
	$(VEXA) render examples/*.xml -o out/examples.pdf
	@echo "The pictures are in out/"

test: $(BUILD)/build.ninja
	cmake --build --preset release
	ctest --preset release -j "$$(nproc)"

bench: $(BUILD)/build.ninja
	cmake --build --preset release
	$(BUILD)/bench/vexa_bench
	bench/process.sh $(BUILD)

linearity: $(BUILD)/build.ninja
	@scripts/install-packages proof
	cmake --build --preset release --target vexa_linearity
	bench/linearity.sh $(BUILD)

bounds: $(BUILD)/build.ninja
	cmake --build --preset release --target vexa_bounds
	$(BUILD)/bench/vexa_bounds
	$(BUILD)/bench/vexa_bounds examples/*.xml tests/regressions/documents/* fuzz/corpus/fuzz_document_*/*

soak: $(BUILD)/build.ninja
	cmake --build --preset release --target vexa_soak
	$(BUILD)/tests/vexa_soak

# Only what is compiled with the sanitizer is watched: the system's libraries are not. Where addresses are randomised
# widely the sanitizer's own memory does not fit in between.
tsan: packages
	cmake --preset threads
	cmake --build --preset threads --target test_load test_core
	VEXA_LOAD_DOCUMENTS=1000 TSAN_OPTIONS="ignore_noninstrumented_modules=1 halt_on_error=1" \
	    setarch -R ctest --test-dir build/threads --output-on-failure --no-tests=error -R '^(load|core)\.'

fuzz:
	scripts/install-packages build test fuzz
	scripts/fuzz --seconds $(FUZZ_SECONDS)

fuzz-coverage:
	scripts/install-packages build test fuzz
	scripts/fuzz --coverage

format:
	scripts/install-packages lint
	scripts/cxx-sources -z | xargs -0 clang-format -i

clean:
	rm -rf build out

packages:
	@scripts/install-packages build test

# The packages are looked at each time, which takes a moment; ninja configures again by itself when a list changes.
$(BUILD)/build.ninja: CMakePresets.json | packages
	cmake --preset release
	@touch $@
