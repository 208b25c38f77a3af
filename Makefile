# Quick start:  make demo  |  make test
# Every target installs the Debian packages it needs first (scripts/install-deps).

.PHONY: all deps build demo test test-release test-asan consumer bench format format-check clean

all: build

deps:
	@scripts/install-deps

build: deps
	cmake --preset release
	cmake --build --preset release

demo: build
	@scripts/demo build/release/tools/wlccw

test-release: build
	ctest --preset release

test-asan: deps
	cmake --preset asan
	cmake --build --preset asan
	ctest --preset asan

consumer: build
	scripts/check-consumer build/release

test: test-release test-asan consumer format-check

bench: deps
	cmake --preset bench
	cmake --build --preset bench
	build/bench/bench/wlccw_bench_tree

format:
	git ls-files '*.hpp' '*.cpp' '*.hpp.in' | xargs clang-format -i

format-check: deps
	git ls-files '*.hpp' '*.cpp' | xargs clang-format --dry-run --Werror

clean:
	rm -rf build
