# Quick start:  make demo  |  make test
# Every target installs the Debian packages it needs first (scripts/install-deps).

.PHONY: all deps build demo test test-release test-asan test-tsan test-fuzz package package-check docs \
	bench fuzz memcheck format format-check clean

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

test-tsan: deps
	cmake --preset tsan
	cmake --build --preset tsan
	# Without address-space randomisation: ThreadSanitizer's fixed memory layout then never meets
	# a mapping the kernel placed where it expects its shadow.
	setarch "$$(uname -m)" -R ctest --preset tsan

# The Debian packages libwlccw0, libwlccw-dev and wlccw-tools of the Release build, in
# build/release/packages/ (cmake/packaging.cmake).
package: build
	rm -rf build/release/packages
	cd build/release && cpack -G DEB

# The packages unpacked into a scratch root: every example under examples/ built against them and
# run, the consumer example built through pkg-config too, and the packaged tool run.
package-check: package
	scripts/check-packages build/release/packages

# The API reference of the public headers in build/docs/html (docs/Doxyfile); any Doxygen warning
# (an undocumented public name included) fails. The configure step generates <wlccw/version.hpp>.
docs: deps
	cmake --preset release >/dev/null
	WLCCW_VERSION="$$(sed -n 's/^project(wlccw VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)" \
	  WLCCW_GENERATED_INCLUDE=build/release/include doxygen docs/Doxyfile
	@echo "docs: build/docs/html/index.html"

test: test-release test-asan test-tsan test-fuzz package-check docs format-check

# Release benchmarks. The poll runs three times, its benchmarks interleaved in random order so that
# a slow spell of the machine does not fall on one of them; its report and the chart of time per client
# against N land in build/bench/ (poll.json, poll-per-client.svg) with the ratio tables printed.
BENCH := build/bench/bench
bench: deps
	cmake --preset bench
	cmake --build --preset bench
	$(BENCH)/wlccw_bench_poll --benchmark_repetitions=3 --benchmark_enable_random_interleaving=true \
	  --benchmark_report_aggregates_only=true \
	  --benchmark_out=build/bench/poll.json --benchmark_out_format=json
	scripts/plot-poll build/bench/poll.json build/bench/poll-per-client.svg
	$(BENCH)/wlccw_bench_monitoring
	$(BENCH)/wlccw_bench_primitives
	$(BENCH)/wlccw_bench_enums
	$(BENCH)/wlccw_bench_client
	$(BENCH)/wlccw_bench_tree
	$(BENCH)/wlccw_bench_hostile

FUZZ_SECONDS ?= 60

fuzz: deps
	cmake --preset fuzz
	cmake --build --preset fuzz
	scripts/fuzz build/fuzz $(FUZZ_SECONDS)

# The smoke run of the test command: every fuzz target for 10 s from its seeds.
test-fuzz:
	$(MAKE) fuzz FUZZ_SECONDS=10

memcheck: build
	scripts/memcheck build/release

format:
	git ls-files '*.hpp' '*.cpp' '*.hpp.in' | xargs clang-format -i

format-check: deps
	git ls-files '*.hpp' '*.cpp' | xargs clang-format --dry-run --Werror

clean:
	rm -rf build
