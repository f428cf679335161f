#!/usr/bin/env bash
# One entry point for set-up, build, run and test on a Debian 12 machine.
#   ./dev.sh run        install what is missing, build kalhost, run an ANOVA session on the sample data
#   ./dev.sh test       install what is missing, build both presets, run every test
#   ./dev.sh fuzz [S]   build the libFuzzer targets with clang, run each S seconds (60)
#   ./dev.sh bench      build and run the benchmarks
#   ./dev.sh package    build the Debian package (build/package/*.deb)
#   ./dev.sh deps       only install the build dependencies
set -euo pipefail
cd "$(dirname "$0")"

# Fonts: DejaVu draws Latin, Greek, Cyrillic, Arabic and Hebrew names and
# stays the dialogs' font; Noto CJK adds Chinese, Japanese and Korean.
PACKAGES=(
    cmake ninja-build g++ clang libclang-rt-14-dev
    libgtest-dev libgmock-dev libbenchmark-dev
    nlohmann-json3-dev libcli11-dev libcsv-dev
    qt6-base-dev fonts-dejavu-core fonts-noto-cjk pkgconf
)

deps() {
    local missing=()
    for p in "${PACKAGES[@]}"; do
        dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    local sudo=()
    [ "$(id -u)" -eq 0 ] || sudo=(sudo)
    echo "Installing: ${missing[*]}"
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -q
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
}

# build PRESET [TARGET...]: configure, then build the targets (all without any).
build() {
    local preset="$1"
    shift
    cmake --preset "$preset" >/dev/null
    if [ $# -gt 0 ]; then
        cmake --build --preset "$preset" --target "$@"
    else
        cmake --build --preset "$preset"
    fi
}

usage() {
    sed -n '2,8p' "$0"
}

case "${1:-}" in
run)
    deps
    build default kalhost
    echo "== kalhost play samples/anova.kal"
    build/default/bin/kalhost play samples/anova.kal
    ;;
test)
    deps
    build default
    ctest --preset default
    build asan
    ctest --preset asan
    ;;
fuzz)
    seconds="${2:-60}"
    if ! [[ "$seconds" =~ ^[0-9]+$ ]]; then
        echo "usage: ./dev.sh fuzz [SECONDS]   run every fuzz target SECONDS seconds (default 60)"
        [ "$seconds" = --help ] || [ "$seconds" = -h ] && exit 0
        exit 2
    fi
    deps
    build fuzz
    for corpus in fuzz/corpus/*/; do
        name="fuzz_$(basename "$corpus" | tr - _)"
        work="build/fuzz/corpus/$(basename "$corpus")"
        mkdir -p "$work"
        cp -n "$corpus"* "$work"/ 2>/dev/null || true
        echo "== $name for ${seconds}s"
        "build/fuzz/bin/$name" -max_total_time="$seconds" -print_final_stats=1 "$work"
    done
    ;;
bench)
    deps
    build default
    for b in build/default/bin/bench_*; do "$b"; done
    ;;
package)
    deps
    cmake -S . -B build/package -G Ninja -DCMAKE_BUILD_TYPE=Release -DKAL_BUILD_TESTS=OFF -DKAL_BUILD_BENCH=OFF >/dev/null
    cmake --build build/package
    (cd build/package && cpack -G DEB)
    ls build/package/*.deb
    ;;
deps)
    deps
    ;;
-h|--help|help)
    usage
    ;;
*)
    usage
    exit 2
    ;;
esac
