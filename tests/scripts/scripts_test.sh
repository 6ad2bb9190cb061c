#!/usr/bin/env bash
# scripts_test.sh TEST: runs one test of the scripts, by its name.
set -euo pipefail
cd "$(dirname "$0")/../.."
source scripts/common.sh

# expect WHAT EXPECTED ACTUAL
expect() {
  [ "$2" = "$3" ] && return 0
  printf '%s\nexpected: %s\n  actual: %s\n' "$1" "$2" "$3" >&2
  exit 1
}

# clang_names RELEASE: what it takes for the clang tools.
clang_names() {
  release=$1
  packages check | grep clang | sort | paste -sd ' '
}

EachReleaseTakesItsOwnPackages() {
  expect "Debian 12" "clang-14 clang-format-14 clang-tidy-14 libclang-rt-14-dev" \
    "$(clang_names bookworm)"
  expect "Debian 13" "clang-19 clang-tidy-19 libclang-rt-19-dev" "$(clang_names trixie)"
  release=bookworm
  expect "its clang" 14 "$(clang_version)"
  expect "pictures in one package" "" "$(packages run | grep svg-plugins || true)"
  release=trixie
  expect "its clang" 19 "$(clang_version)"
  expect "pictures in a package of their own" qt6-svg-plugins "$(packages run | grep svg-plugins)"
  expect "what has no release" cmake "$(packages run | grep -x cmake)"
}

AnUnknownReleaseTakesThoseOfTheNewest() {
  expect "a release to come" "clang-19 clang-tidy-19 libclang-rt-19-dev" "$(clang_names duke)"
}

TheFormatIsNotJudgedByAnotherVersion() {
  local folder tool code=0 said
  folder=$(mktemp -d)
  for tool in bash dirname env nproc sed; do ln -s "$(command -v $tool)" "$folder/"; done
  printf '#!/bin/sh\necho "clang-format version 19.1.7"\n' >"$folder/clang-format"
  chmod +x "$folder/clang-format"
  said=$(PATH=$folder bash scripts/check_format 2>&1) || code=$?
  rm -r "$folder"
  expect "not checked" 77 $code
  expect "and why" "the sources are formatted with clang-format 14, which is not here" "$said"
}

"$1"
