# What the product needs of the Debian archive, and how a script gets it. Sourced, not run.
# shellcheck shell=bash disable=SC2034

# Compiler, build tools and the headers of the libraries; sqlite3 makes the fresh database from the schema,
# python3-markdown-it the pages of the help, and qt6-l10n-tools the translations.
build_packages=(
  g++ cmake ninja-build ccache
  qt6-base-dev qt6-l10n-tools libgl1-mesa-dev qtkeychain-qt6-dev
  libcurl4-openssl-dev libssl-dev zlib1g-dev libbrotli-dev libzstd-dev
  libsqlite3-dev sqlite3 libcli11-dev nlohmann-json3-dev
  libre2-dev libsimdjson-dev libxml2-dev libyaml-cpp-dev libzip-dev mdbtools-dev pkgconf
  python3 python3-markdown-it
)

# The certificates that https addresses are verified with, a font for the window, the desktop's opener for pages and
# reports, and a player for the alert sound. Qt's own plug-ins come with its libraries.
run_packages=(ca-certificates fonts-dejavu-core xdg-utils pulseaudio-utils)

# The test libraries, the mail server of the tests, the system's certificates and what makes the tests' own, a display
# to start the program on, a sound server that records what is played, other people's encoders, what the documentation
# reads JSON with, and a bus of a desktop with a key ring.
test_packages=(
  libgtest-dev libgmock-dev ca-certificates openssl python3 python3-aiosmtpd
  xvfb openbox xdotool wmctrl fonts-dejavu-core
  pulseaudio pulseaudio-utils sharutils jq
  dbus-daemon gnome-keyring
)

# What makes the packages: dependencies and compression; and for the archive what lets a program find the libraries
# beside it, the texts of Qt's own boxes, and everything that ends up in it.
package_packages=(dpkg-dev binutils file fakeroot gzip xz-utils patchelf qt6-translations-l10n)
# What looks at them, and makes the bare systems that they are tried on.
package_test_packages=(lintian appstream desktop-file-utils man-db mmdebstrap zsh fish)

# What the benchmark runs beside the product, and the server they all fetch from.
bench_packages=(
  python3 time curl nginx-light urlwatch monitoring-plugins-basic monitoring-plugins-standard liburiparser1
  libbenchmark-dev
)

# The style checks.
style_packages=(clang-format python3)

is_installed() {
  [[ "$(dpkg-query --show --showformat='${db:Status-Status}' "$1" 2>/dev/null)" == installed ]]
}

# need_packages PACKAGE...: installs those of the packages that are missing. It says so in one line, asks nothing, and
# does nothing when everything is there.
need_packages() {
  if ! command -v dpkg-query >/dev/null; then
    return # not a Debian system: the packages are the user's own affair, and the build names what it misses
  fi
  local package missing=()
  for package in "$@"; do
    is_installed "$package" || missing+=("$package")
  done
  if ((${#missing[@]} == 0)); then
    return
  fi

  local as_root=()
  if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
      echo "Missing packages; install them as root: apt-get install ${missing[*]}" >&2
      exit 1
    fi
    # Asks on the terminal; without one by the helper that the user has named.
    as_root=(sudo ${SUDO_ASKPASS:+-A})
  fi
  echo "Installing ${missing[*]} ..."
  local said
  said=$(
    "${as_root[@]}" apt-get update -qq 2>&1 &&
      "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" 2>&1
  ) || {
    printf '%s\n' "$said" "The packages could not be installed; the reason is above." >&2
    exit 1
  }
}
