#!/bin/sh
# Compares what a host sees of two commits of the library: reports, trees written back and records of the views, over
# all kept inputs, the example sets, generated sets and mutations of them, strictly and tolerantly, from eight sources;
# and every validator's answers to 100,000 texts. Prints the first document that differs, and how, and ends with 1.
#
#   same.sh OLD [NEW [COUNT]]    NEW is the working tree when not told or "."; COUNT mutations, 50,000 when not told
#
# What is compared is compiled from the working tree against the headers of either, in build/same.
set -eu
. "$(dirname -- "$0")/lib.sh"

[ $# -ge 1 ] || { echo "usage: scripts/same.sh OLD [NEW [COUNT]]" >&2; exit 2; }
count=${3:-50000}
top=$PWD
same=$top/build/same
mkdir -p "$same"

# shellcheck disable=SC2086  # a list of words
install_packages $build_packages git python3 >&2

# The sources of a commit, checked out once.
sources_of() {
  [ "$1" != . ] || { echo "$top"; return; }
  commit=$(git rev-parse --verify "$1^{commit}")
  [ -d "$same/$commit/source" ] || {
    git worktree prune
    git worktree add --detach --force "$same/$commit/source" "$commit" >&2
  }
  echo "$same/$commit/source"
}

# build <sources> <build directory>: the library, and what looks at it.
build() {
  cmake -S "$1" -B "$2" -G Ninja -DCMAKE_BUILD_TYPE=Release -DISOXML_BUILD_TOOLS=OFF -DISOXML_BUILD_EXAMPLES=OFF \
    -DISOXML_BUILD_TESTS=OFF >&2
  cmake --build "$2" --parallel "$(nproc)" --target isoxml >&2
  ${CXX:-c++} -std=c++17 -O2 -I "$1" -I "$top/tests" -I "$same" "$top/tests/same/witness.cpp" -o "$2/witness" \
    -L "$2" -lisoxml -Wl,-rpath,"$2"
}

# The inputs, of the working tree.
rm -rf "$same/documents"
mkdir -p "$same/documents"
cp -R fuzz/corpus fuzz/regressions examples/sets "$same/documents/"
python3 -B tests/generator/transfer_set.py --size 15000 "$same/documents/generated"
python3 -B tests/generator/faulty_documents.py "$same/documents/faulty"
sed -n 's/^ISOXML_API lmx::elmx_error \([A-Za-z]*Validator[0-9]*\)(.*/VALIDATOR(\1)/p' isoxmllib/validators.h \
  >"$same/validators.inc"

# look <side> <commit>: builds it and writes down what is seen.
look() {
  sources=$(sources_of "$2")
  build "$sources" "$same/$1"
  mkdir -p "$same/$1/work"
  "$same/$1/witness" "$same/documents" "$count" "$same/$1/work" >"$same/$1/seen"
}

look old "$1"
look new "${2:-.}"
if cmp -s "$same/old/seen" "$same/new/seen"; then
  echo "The same: $(wc -l <"$same/new/seen") lines"
  exit 0
fi
first=$(diff "$same/old/seen" "$same/new/seen" | sed -n 's/^[<>] \([^ ]*\) .*/\1/p' | head -n 1)
echo "$(diff "$same/old/seen" "$same/new/seen" | grep -c '^>') lines differ; the first is of $first"
case $first in
  *Validator*) ;;
  *)
    for side in old new; do
      "$same/$side/witness" "$same/documents" "$count" "$same/$side/work" "$first" >"$same/$side/first"
    done
    diff -a "$same/old/first" "$same/new/first" | head -n 60
    ;;
esac
exit 1
