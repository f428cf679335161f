#!/usr/bin/env bash
# One entry point for set-up, build, run and test on a Debian 12 machine.
#   ./dev.sh run        install what is missing, build kalhost, run an ANOVA session on the sample data
#   ./dev.sh test       install what is missing, build both presets, run every test
#   ./dev.sh fuzz [S]   build the libFuzzer targets with clang, run each S seconds (60), one per processor at a time
#   ./dev.sh bench [A]  build and run the benchmarks (A: Google Benchmark options), print every goal
#   ./dev.sh lint       check formatting (.clang-format), then the library and host with clang-tidy (.clang-tidy)
#   ./dev.sh package    build the Debian package (build/package/*.deb)
#   ./dev.sh screenshots  draw every page of every available dialog (docs/images, docs/gallery.md)
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
    clang-tidy clang-format
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
    sed -n '2,10p' "$0"
}

# The GitHub anchor of a heading: lower case, punctuation dropped, blanks
# turned into hyphens.
anchor() {
    printf '%s' "$1" | tr '[:upper:]' '[:lower:]' | tr -cd 'a-z0-9 _-' | tr ' ' '-'
}

# The text of menu command ID, without its mnemonic and dots.
menu_text() {
    grep -B1 "\"id\": $1\b" resources/menus.json | sed -n 's/.*"text": "\(.*\)",/\1/p' | tr -d '&' | sed 's/\.\.\.$//'
}

# The page an action script ends on (0 without a page line).
script_page() {
    local page
    page=$(sed -n 's/^page \([0-9]*\).*/\1/p' "$1" | tail -n 1)
    echo "${page:-0}"
}

# screenshots: every page of every available dialog, drawn by kalhost
# offscreen into docs/images, and docs/gallery.md showing them all. A page
# is drawn by each action script of docs/gallery that opens its dialog and
# ends on it (the picture takes the script's name, its first comment is the
# caption, a "# kalhost OPTIONS" line gives kalhost options); a page
# without a script is drawn as it opens, and named after its dialog.
screenshots() {
    local k=build/default/bin/kalhost
    local work
    work=$(mktemp -d)
    trap 'rm -rf "$work"' RETURN
    local failed=0 md="$work/gallery.md"
    rm -f docs/images/*.png
    cat >"$md" <<'TEXT'
# Gallery

Every page of every dialog the module holds, as the Qt view draws it (kalhost
`--gui --screenshot`, offscreen). Each picture comes from the action script of
the same name in [`gallery/`](gallery); `./dev.sh screenshots` draws them all
again. The section titles lead to the lines each dialog writes.
TEXT
    # render NAME ID OPTIONS < ACTIONS: one picture; a failure is reported.
    render() {
        local name="$1" id="$2" options="$3" status=0
        # shellcheck disable=SC2086 # the options are words
        "$k" $options open "$id" --actions - --gui --screenshot "docs/images/$name.png" \
            >"$work/out" 2>"$work/err" || status=$?
        if [ "$status" -ne 0 ] || [ -s "$work/err" ]; then
            echo "!! docs/images/$name.png: kalhost ended with status $status" >&2
            cat "$work/err" >&2
            failed=1
        fi
    }
    local id class title page script name caption
    # The menu path has blanks: fields are counted from the status at the end.
    for id in $("$k" list --available | awk '$NF == "available" && $(NF-1) != "not" {print $1}'); do
        class=$("$k" list --available | awk -v id="$id" '$1 == id {print $(NF-2)}')
        title=$(sed -n "s/^## \(.*($id).*\)$/\1/p" docs/commands.md | head -n 1)
        if [ -z "$title" ]; then
            printf '\n## %s (%s)\n' "$class" "$id" >>"$md"
        elif [ "$(grep '^## ' "$md" | tail -n 1)" != "## [$title](commands.md#$(anchor "$title"))" ]; then
            # A section shared by commands of two menus comes again where
            # the second one is listed.
            printf '\n## [%s](commands.md#%s)\n' "$title" "$(anchor "$title")" >>"$md"
        fi
        # Dialogs that share a section: each under its menu entry's name.
        if [ "$(grep -c "^## .*($id)" docs/commands.md)" -eq 1 ] && [ "$(grep -o '([0-9]*)' <<<"$title" | wc -l)" -gt 1 ]; then
            printf '\n### %s (%s)\n' "$(menu_text "$id")" "$id" >>"$md"
        fi
        local single
        for page in $(seq 0 20); do
            single=0
            printf 'page %d\ncancel\n' "$page" | "$k" open "$id" --actions - >/dev/null 2>"$work/err" || true
            # A dialog without pages is drawn once, as its one page.
            if [ "$page" -eq 0 ] && grep -q "has no pages" "$work/err"; then
                single=1
            elif grep -q "no page\|has no pages" "$work/err"; then
                break
            fi
            # A page out of use as the dialog opens is drawn by the scripts
            # that bring it into use (repeated measures after two dependents).
            local drawn=0 available=1
            grep -q "not available" "$work/err" && available=0
            for script in docs/gallery/*.kal; do
                grep -qx "open $id" "$script" || continue
                [ "$(script_page "$script")" = "$page" ] || continue
                name=$(basename "$script" .kal)
                caption=$(sed -n '/^[^#]/q; /^# kalhost /d; s/^# *//p' "$script" | paste -sd ' ')
                grep -v '^open ' "$script" | render "$name" "$id" "$(sed -n 's/^# kalhost //p' "$script" | head -n 1)"
                printf '\n![%s](images/%s.png)\n\n%s ([script](gallery/%s.kal))\n' \
                    "$caption" "$name" "$caption" "$name" >>"$md"
                drawn=1
            done
            if [ "$drawn" -eq 0 ] && [ "$available" -eq 1 ]; then
                name="$(echo "$class" | sed 's/^C//; s/TabDlg$//; s/Dlg$//' | tr '[:upper:]' '[:lower:]')-page-$((page + 1))"
                echo "note: no script in docs/gallery draws page $page of command $id; drawn as it opens" >&2
                if [ "$single" -eq 1 ]; then
                    render "$name" "$id" "" </dev/null
                else
                    printf 'page %d\n' "$page" | render "$name" "$id" ""
                fi
                printf '\n![Page %d](images/%s.png)\n' "$((page + 1))" "$name" >>"$md"
            fi
            [ "$single" -eq 0 ] || break
        done
    done
    cp "$md" docs/gallery.md
    ls docs/images/*.png
    # Every script is drawn into the gallery: one that opens no available
    # dialog, or ends on no page of it, drew nothing and is stale.
    for script in docs/gallery/*.kal; do
        name=$(basename "$script" .kal)
        if [ ! -f "docs/images/$name.png" ] || ! grep -qF "(images/$name.png)" docs/gallery.md; then
            echo "!! $script drew no picture: check its open line and its last page line" >&2
            failed=1
        fi
    done
    return "$failed"
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
    # One target per processor at a time, each with its own copy of its
    # seed corpus; a target's output is shown whole when it ends.
    fuzz_one() {
        local corpus="$1" name work status=0
        name="fuzz_$(basename "$corpus" | tr - _)"
        work="build/fuzz/corpus/$(basename "$corpus")"
        mkdir -p "$work"
        cp -n "$corpus"* "$work"/ 2>/dev/null || true
        "build/fuzz/bin/$name" -max_total_time="$seconds" -print_final_stats=1 "$work" \
            >"build/fuzz/$name.log" 2>&1 || status=$?
        echo "== $name for ${seconds}s (status $status)"
        cat "build/fuzz/$name.log"
        return "$status"
    }
    failed=0
    running=()
    for corpus in fuzz/corpus/*/; do
        fuzz_one "$corpus" &
        running+=("$!")
        if [ "${#running[@]}" -ge "$(nproc)" ]; then
            wait "${running[0]}" || failed=1
            running=("${running[@]:1}")
        fi
    done
    for pid in "${running[@]}"; do
        wait "$pid" || failed=1
    done
    exit "$failed"
    ;;
bench)
    # Every benchmark five times (further arguments go to each program),
    # then the goals of all of them in one table.
    shift
    deps
    build default
    log=$(mktemp)
    trap 'rm -f "$log"' EXIT
    for b in build/default/bin/bench_*; do
        echo "== $(basename "$b")"
        "$b" --benchmark_repetitions=5 "$@" | tee -a "$log"
    done
    echo
    echo "== every goal (min and median of five runs)"
    awk '/^measurement +against/ { if (!shown++) print; table = 1; next }
         NF == 0 { table = 0 }
         table { print }' "$log"
    ;;
lint)
    deps
    # Formatting first: it takes a second and names every file that is off.
    git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run --Werror ||
        { echo "clang-format: run  git ls-files '*.cpp' '*.h' | xargs clang-format -i"; exit 1; }
    echo "clang-format: every source is formatted"
    # clang-tidy reads the compile commands of the default build; the
    # library and host sources are checked, with the headers they include.
    # The analyses are checked in the batches they are compiled in (the
    # unity files), a sixth of the time of checking them one by one.
    cmake --preset default >/dev/null
    sources="$(git ls-files 'Msg/*.cpp' 'Source/*.cpp' 'framework/*.cpp' 'platform/*.cpp' 'private/*.cpp' 'refhost/*.cpp' |
        sed 's|\.|\\.|g; s|^|/|; s|$|$|') /kalanalyses\.dir/Unity/"
    # shellcheck disable=SC2086 # one pattern per source
    run-clang-tidy -quiet -j "$(nproc)" -p build/default $sources >build/clang-tidy.log 2>&1 ||
        { grep -E 'error:|warning:' build/clang-tidy.log; echo "clang-tidy: see build/clang-tidy.log"; exit 1; }
    echo "clang-tidy: no findings"
    ;;
package)
    deps
    cmake -S . -B build/package -G Ninja -DCMAKE_BUILD_TYPE=Release -DKAL_BUILD_TESTS=OFF -DKAL_BUILD_BENCH=OFF >/dev/null
    cmake --build build/package
    (cd build/package && cpack -G DEB)
    ls build/package/*.deb
    ;;
screenshots)
    deps
    build default kalhost
    screenshots
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
