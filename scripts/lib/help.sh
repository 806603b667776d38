# What a script says of itself when it is asked. Sourced from the root of the repository.
# shellcheck shell=bash

# show_help: prints the comment at the head of the script that runs, and ends it.
show_help() {
  sed -n '2,$ { /^#/!q; s/^# \{0,1\}//p }' "scripts/${0##*/}"
  exit 0
}

# help_if_asked ARGUMENT...: does so when the first argument asks for it.
help_if_asked() {
  case "${1:-}" in
    -h | --help) show_help ;;
  esac
}
