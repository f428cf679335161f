#!/usr/bin/env bash
# Writes the settings-store seeds of fuzz_settings_store: a store per sample
# script and one with the defaults of every available menu row, so that
# every settings class's record is in the corpus. Run after a build:
#   fuzz/make-store-seeds.sh [build/default/bin/kalhost]
set -euo pipefail
cd "$(dirname "$0")/.."
kalhost="${1:-build/default/bin/kalhost}"
out=fuzz/corpus/settings_store
mkdir -p "$out"
for script in samples/*.kal; do
    name=$(basename "$script" .kal)
    # A sample on a data file of its own says so in a comment line
    # "#   kalhost OPTIONS play samples/NAME.kal".
    read -r -a data <<< "$(sed -n 's/^#[[:space:]]*kalhost \(.*\) play .*/\1/p' "$script" | head -1)"
    rm -f "$out/$name.store"
    "$kalhost" "${data[@]}" --store "$out/$name.store" play "$script" > /dev/null
done
rm -f "$out/defaults.store"
for id in $("$kalhost" list | awk '$NF == "available" && $(NF-1) != "not" { print $1 }'); do
    echo ok | "$kalhost" --store "$out/defaults.store" open "$id" --actions - > /dev/null
done
ls -l "$out"
