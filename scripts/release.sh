#!/bin/bash
# Makes a release: every artefact, tried on bare systems and under Wine, in build/release-VERSION, with the sums, the notes
# from the change log, signatures where there is a key, and the tag. Nothing is published.
#
#   scripts/release.sh 1.1.0                 all of it, in an hour or two
#   scripts/release.sh 1.1.0 --no-windows    without the artefacts for Windows
#   scripts/release.sh 1.1.0 --no-tag        everything but the tag, also where not all is committed
#
# The key is the one that TARNWICK_SIGNING_KEY names, or the first secret key of gpg. Without one nothing is signed.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/lib/release.sh
source scripts/lib/help.sh

version=
windows=yes
tag=yes
for argument in "$@"; do
  case $argument in
    --no-windows) windows= ;;
    --no-tag) tag= ;;
    -h | --help) show_help ;;
    [0-9]*.[0-9]*.[0-9]*) version=$argument ;;
    *)
      echo "scripts/release.sh does not know \"$argument\"; see scripts/release.sh --help" >&2
      exit 2
      ;;
  esac
done
if [[ -z $version ]]; then
  echo "Which version? See scripts/release.sh --help" >&2
  exit 2
fi
if [[ -n $tag ]]; then
  refuse_what_is_no_release "$version"
fi
# Readers find the artefacts by the names that the documentation tells them.
/usr/bin/python3 tests/docs_test.py .

scripts/package.sh --test
if [[ -n $windows ]]; then
  scripts/windows.sh --test
fi

folder=build/release-$version
rm -rf "$folder"
mkdir -p "$folder"
cp build/package/tarnwick-"$version"-linux-*.tar.gz build/package/tarnwick*_"$version"-*.deb "$folder/"
if [[ -n $windows ]]; then
  cp build/windows-x86_64/tarnwick-"$version"-windows-x86_64{.zip,-setup.exe} "$folder/"
fi
git archive --format=tar --prefix="tarnwick-$version/" HEAD | gzip -9n >"$folder/tarnwick-$version.tar.gz"
release_notes "$version" >"$folder/NOTES.md"
write_sums "$folder"
if [[ -n $tag ]]; then
  tag_release "$version"
fi
cat "$folder/SHA256SUMS"
if [[ -e $folder/SHA256SUMS.asc ]]; then
  echo "The sums are signed in $folder/SHA256SUMS.asc"
else
  echo "There is no key to sign with, so nothing is signed."
fi
echo "The release is in $folder${tag:+, and its commit is tagged v$version}"
