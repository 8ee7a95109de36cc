# The commands of the README. Each installs what is missing, builds, and does its job.
.PHONY: run test bench fuzz tidy format messages packages release

release_bin := build/release/bin
fuzz_seconds ?= 60
fuzz_bin := build/asan/bin

run: release
	@packaging/run.sh $(release_bin)

test: packages
	cmake --preset dev
	cmake --build --preset dev
	ctest --preset dev

bench: release
	cmake --build --preset release --target map_bench
	@bench/run.sh $(release_bin)
	@$(release_bin)/map_bench $(release_bin)/gzmp32d.dat

# Every fuzz target in turn, under the sanitizers, from the example files.
fuzz: packages
	cmake --preset asan
	cmake --build --preset asan
	tests/fuzz/run.sh $(fuzz_bin) $(fuzz_seconds)

tidy: packages
	cmake --preset dev
	cmake --build --preset dev
	run-clang-tidy -quiet -p build/dev -extra-arg=-Wno-unknown-warning-option 'src/.*'

# docs/messages.tsv, from the program's own tables.
messages: packages
	cmake --preset dev
	cmake --build --preset dev --target messages

format:
	git ls-files '*.h' '*.cpp' | xargs clang-format -i

release: packages
	cmake --preset release $(cmake_options)
	cmake --build --preset release

packages:
	@packaging/install-packages.sh
