# The demo: a program folder of its own whose sites are pages of a small web server. Sourced from the root of the
# repository.
# shellcheck shell=bash

# start_demo_server: sets demo_site and demo_refused to the server's addresses. The server ends when this shell, or the
# program that it becomes, is gone: that is the only one to hold the other end of the server's input.
start_demo_server() {
  local told
  told=$(mktemp -d)
  mkfifo "$told/addresses"
  # shellcheck disable=SC2034  # held, never read
  exec {demo_hold}> >(exec python3 scripts/lib/demo_server.py {demo_lock}>&- >"$told/addresses")
  read -r demo_site demo_refused <"$told/addresses" || true
  rm -r "$told"
  if [[ -z $demo_refused ]]; then
    echo "The web server of the demo did not start; the reason is above." >&2
    return 1
  fi
  # A proxy could not reach the pages.
  local without=${no_proxy:-${NO_PROXY:-}}
  export no_proxy=127.0.0.1${without:+,$without}
}

# lay_demo_folder BUILT: sets demo_folder to a fresh program folder beside that of the build.
lay_demo_folder() {
  local built=$1 program said
  demo_folder=$built/demo
  # One demo at a time: the folder of a running one is not swept away. The program inherits the lock.
  exec {demo_lock}>"$built/demo.lock"
  if ! flock --nonblock "$demo_lock"; then
    echo "The demo is running already. End that one first: Ctrl+C in its terminal, or close its window." >&2
    return 1
  fi
  rm -rf "$demo_folder"
  said=$(cmake -D FOLDER="$demo_folder" -D ASSETS="$PWD/assets" -D HELP="$built/help" -D SQLITE3="$(command -v sqlite3)" \
    -P cmake/LayProgramFolder.cmake 2>&1) || {
    printf '%s\n' "$said" "The folder of the demo could not be laid out; the reason is above." >&2
    return 1
  }
  # The programs look for their folder where they lie, through symbolic links: so these are links of the other kind, or
  # copies.
  for program in tarnwick tarnwickctl; do
    ln "$built/tarnwick/$program" "$demo_folder/" 2>/dev/null || cp "$built/tarnwick/$program" "$demo_folder/"
  done
}

# fill_demo_folder: puts the pages into the list, as anybody would.
fill_demo_folder() {
  # Its first start lays the list beside it.
  local tool=("$demo_folder/tarnwickctl") id
  {
    "${tool[@]}" add "$demo_site/steady" --interval 1
    "${tool[@]}" add "$demo_site/news" --interval 1
    "${tool[@]}" add "$demo_site/slow" --interval 1
    "${tool[@]}" add "$demo_site/login" --interval 1 --method post --post user=monitor --post "action=sign in"
    # Well while their baselines are taken, and never again.
    id=$("${tool[@]}" add "$demo_site/prices" --interval 1)
    "${tool[@]}" baseline "$id" load
    id=$("${tool[@]}" add "$demo_site/shop" --interval 1)
    "${tool[@]}" baseline "$id" load
    id=$("${tool[@]}" add "$demo_refused/" --interval 1)
    echo "What the page was while there was one." | "${tool[@]}" baseline "$id" set -
    "${tool[@]}" add "$demo_site/archive" --inactive
  } >/dev/null
}
