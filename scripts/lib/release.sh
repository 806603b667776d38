# The steps of a release that come after its artefacts are made. Sourced from the root of the repository.
# shellcheck shell=bash

# release_notes VERSION: what the change log says of the version, without its heading.
release_notes() {
  awk -v heading="## [$1]" '
    index($0, "## [") == 1 { inside = index($0, heading) == 1; next }
    inside && (seen || NF) { seen = 1; lines[++count] = $0 }
    inside && NF { last = count }
    END { for (i = 1; i <= last; i++) print lines[i] }' CHANGELOG.md
}

# refuse_what_is_no_release VERSION: the version must be that of the project and of the newest entry of the change log,
# and everything must be in the repository.
refuse_what_is_no_release() {
  local version=$1 project newest
  project=$(sed -n 's/^project(Tarnwick VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
  newest=$(sed -n 's/^## \[\([0-9.]*\)\] - .*/\1/p' CHANGELOG.md | head -1)
  if [[ $version != "$project" || $version != "$newest" ]]; then
    echo "The project is version $project and CHANGELOG.md begins with $newest: write $version into both first." >&2
    return 1
  fi
  if [[ -z $(release_notes "$version") ]]; then
    echo "CHANGELOG.md says nothing of version $version." >&2
    return 1
  fi
  if [[ -n $(git status --porcelain) ]]; then
    echo "There are changes that are not committed; a release is made of what is in the repository." >&2
    return 1
  fi
  if git rev-parse -q --verify "refs/tags/v$version" >/dev/null; then
    echo "The tag v$version is there already." >&2
    return 1
  fi
}

# signing_key: the key to sign with: TARNWICK_SIGNING_KEY, or else the first secret key there is. Nothing without one.
signing_key() {
  if [[ -n ${TARNWICK_SIGNING_KEY:-} ]]; then
    echo "$TARNWICK_SIGNING_KEY"
  elif command -v gpg >/dev/null; then
    gpg --batch --list-secret-keys --with-colons 2>/dev/null | awk -F: '$1 == "fpr" { print $10; exit }'
  fi
}

# write_sums FOLDER: the sums of all files in it, in SHA256SUMS, and beside it the signature where there is a key.
write_sums() {
  local folder=$1 key sums
  key=$(signing_key)
  (
    cd "$folder"
    rm -f SHA256SUMS SHA256SUMS.asc
    sums=$(find . -maxdepth 1 -type f -printf '%P\n' | LC_ALL=C sort | xargs -d '\n' sha256sum)
    echo "$sums" >SHA256SUMS
    if [[ -n $key ]]; then
      gpg --batch --yes --armor --local-user "$key" --detach-sign --output SHA256SUMS.asc SHA256SUMS
      gpg --batch --verify SHA256SUMS.asc SHA256SUMS 2>/dev/null
    fi
  )
}

# tag_release VERSION: the tag, with the notes, signed where there is a key.
tag_release() {
  local version=$1 key
  key=$(signing_key)
  if [[ -n $key ]]; then
    release_notes "$version" | git tag --cleanup=verbatim --local-user="$key" --file=- "v$version"
  else
    release_notes "$version" | git tag --cleanup=verbatim --annotate --file=- "v$version"
  fi
}
