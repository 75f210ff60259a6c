#!/usr/bin/env bash
# Builds the libFuzzer targets (the "fuzz" preset, in build-fuzz/) and runs
# each for FUZZ_SECONDS (30 unless set) from its seed corpus. Any crash, leak
# or sanitizer report fails the run; the input that caused it is kept in
# build-fuzz/artifacts/.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${FUZZ_SECONDS:-30}
launcher=()
if command -v ccache >/dev/null; then
    launcher=(-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
cmake --preset fuzz -UORVAN_SUBSYSTEMS "${launcher[@]}" >/dev/null
cmake --build build-fuzz -j2 --target fuzz_property_list fuzz_pageranges type42_fuzzer type42_fuzz_seeds \
    watermark_file_fuzzer fuzz_vcard

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
artifacts=$PWD/build-fuzz/artifacts
mkdir -p "$artifacts" "$work/type42_fuzzer"
build-fuzz/fuzz/type42_fuzz_seeds "$work/type42_fuzzer"
cp -r fuzz/plist/corpus "$work/fuzz_property_list"
cp -r fuzz/pageranges/corpus "$work/fuzz_pageranges"
cp -r fuzz/watermark/corpus "$work/watermark_file_fuzzer"
cp -r fuzz/vcard/corpus "$work/fuzz_vcard"

# fuzzer [extra libFuzzer flags...]: runs it on a copy of its corpus, so that
# what it finds stays out of the source tree.
fuzz() {
    local name=$1
    shift
    echo "fuzz: $name for ${seconds} s"
    build-fuzz/fuzz/"$name" -max_total_time="$seconds" -print_final_stats=1 \
        -artifact_prefix="$artifacts/$name-" "$@" "$work/$name" 2>"$work/$name.log" || {
        tail -n 60 "$work/$name.log"
        return 1
    }
    grep -E "stat::number_of_executed_units|stat::peak_rss_mb" "$work/$name.log" | sed "s/^/fuzz: $name /"
}
fuzz fuzz_property_list
fuzz fuzz_pageranges
fuzz type42_fuzzer -dict=fuzz/type42/type42.dict
fuzz watermark_file_fuzzer -dict=fuzz/watermark/watermark.dict
fuzz fuzz_vcard
