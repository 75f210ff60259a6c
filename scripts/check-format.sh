#!/usr/bin/env bash
# Fails, naming the files, when a C++ source file does not match .clang-format.
# "bash scripts/check-format.sh --fix" rewrites them instead.
set -euo pipefail
cd "$(dirname "$0")/.."
command -v clang-format >/dev/null || bash scripts/install-deps.sh
mapfile -t sources < <(git ls-files '*.cpp' '*.h')
if [[ ${1:-} == --fix ]]; then
    clang-format -i "${sources[@]}"
    exit 0
fi
unformatted=()
for file in "${sources[@]}"; do
    clang-format --dry-run --Werror "$file" >/dev/null 2>&1 || unformatted+=("$file")
done
if ((${#unformatted[@]})); then
    printf 'format: %s does not match .clang-format\n' "${unformatted[@]}"
    echo "format: run 'bash scripts/check-format.sh --fix' and commit the result"
    exit 1
fi
echo "format: ${#sources[@]} files match .clang-format"
