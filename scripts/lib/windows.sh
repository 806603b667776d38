# Builds the libraries that the Windows program is made of, from the sources in the Debian archive. Sourced from the root
# of the repository, after packages.sh.
# shellcheck shell=bash

# Where the libraries are kept between two runs.
windows_cache=${TARNWICK_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/tarnwick-windows}

# The compiler, what runs its programs, and the headers and test libraries that are the same on every system. The last
# three make the tables of letters that RE2 has in it.
windows_core_packages=(
  g++-mingw-w64-x86-64-posix wine64 wine cmake ninja-build ccache
  dpkg-dev gcc libc6-dev make tcl googletest sqlite3 python3 python3-six unicode-data perl
)
# For the window: Qt's tools of the same version as its sources, and the display that its tests look at.
windows_packages=(
  "${windows_core_packages[@]}"
  qt6-base-dev qt6-base-dev-tools libz-mingw-w64-dev libcli11-dev nlohmann-json3-dev python3-markdown-it
  zip unzip nsis openssl python3-aiosmtpd xvfb openbox xdotool wmctrl imagemagick
)

# quietly LOG COMMAND...: runs the command with its output in the file LOG, which is shown when it fails.
quietly() {
  local log=$1
  shift
  if ! "$@" >"$log" 2>&1; then
    tail -40 "$log" >&2
    echo "Failed: $* (all of its output is in $log)" >&2
    return 1
  fi
}

# apt_in_cache COMMAND ARGUMENT...: a command of apt with lists of sources that are the cache's own: those of the system
# are left as they are.
apt_in_cache() {
  local apt=$windows_cache/apt command=$1
  shift
  "$command" -o "Dir::Etc::SourceList=$apt/sources.list" -o Dir::Etc::SourceParts=/dev/null \
    -o "Dir::State::Lists=$apt/lists" -o "Dir::Cache=$apt/cache" -o APT::Sandbox::User=root "$@"
}

# update_source_lists: learns what Debian has today. Without a network what was known before has to do.
update_source_lists() {
  local apt=$windows_cache/apt release
  release=$(. /etc/os-release && echo "$VERSION_CODENAME")
  mkdir -p "$apt/lists/partial" "$apt/cache" "$windows_cache/src" "$windows_cache/log"
  cat >"$apt/sources.list" <<END
deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] http://deb.debian.org/debian $release main
deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] http://deb.debian.org/debian-security $release-security main
END
  apt_in_cache apt-get update --error-on=any >"$windows_cache/log/update.log" 2>&1 ||
    echo "Debian was not asked for newer libraries; the reason is in $windows_cache/log/update.log" >&2
}

# source_version PACKAGE: the newest version of the source package; empty when none is known.
source_version() {
  apt_in_cache apt-cache showsrc --only-source "$1" 2>/dev/null | sed -n 's/^Version: //p' | sort -V | tail -1
}

# package_versions PACKAGE...: the versions of installed packages, in one line.
package_versions() {
  dpkg-query -W -f '${Version} ' "$@" | sed 's/ $//'
}

# fetch_source PACKAGE: lays the unpacked source of the Debian package into the cache folder, as src/PACKAGE.
fetch_source() {
  local package=$1
  local target=$windows_cache/src/$1
  echo "Fetching the source of $package ..."
  rm -rf "$target" "$target.part"
  mkdir -p "$target.part"
  (
    cd "$target.part"
    quietly "$windows_cache/log/fetch.log" apt_in_cache apt-get source --download-only "$package"
    # The archive's signatures have vouched for the files already.
    quietly "$windows_cache/log/fetch.log" dpkg-source --no-check -x ./*.dsc source
  )
  mv "$target.part/source" "$target"
  rm -rf "$target.part"
  keep_notice "$package"
}

# keep_notice PACKAGE: the licence of the library, beside what is built of it.
keep_notice() {
  mkdir -p "$windows_cache/notices"
  cp "$windows_cache/src/$1/debian/copyright" "$windows_cache/notices/$1"
}

# need_notices: the licences of everything that ends up in the programs. Where a library was built without keeping its
# own, its source is fetched once more.
need_notices() {
  local package
  for package in sqlite3 re2 libxml2 simdjson curl qt6-base; do
    if [[ ! -e $windows_cache/notices/$package ]]; then
      if [[ -e $windows_cache/src/$package/debian/copyright ]]; then
        keep_notice "$package"
      else
        fetch_source "$package"
        rm -rf "${windows_cache:?}/src/$package"
      fi
    fi
  done
  for package in libz-mingw-w64-dev gcc-mingw-w64-base mingw-w64-common; do
    cp -L "/usr/share/doc/$package/copyright" "$windows_cache/notices/$package"
  done
}

# build_version NAME VERSION COMMAND...: runs the command, which installs a library into the cache's root folder, unless
# that version of it is there. Where no version is known, the one that is there is kept.
build_version() {
  local name=$1 version=$2 from=$SECONDS
  shift 2
  local mark=$windows_cache/root/.built-$name
  if [[ -e $mark && (-z $version || $(<"$mark") == "$version") ]]; then
    return
  fi
  mkdir -p "$windows_cache"/{root/lib,root/include,build,log}
  rm -f "$mark"
  # What an earlier build of another clone left names that clone's folders.
  rm -rf "$windows_cache/build/$name"
  echo "Building $name $version for Windows, once ..."
  "$@" || exit 1
  echo "$version" >"$mark"
  echo "Built $name in $((SECONDS - from)) s."
}

# library_versions: what the program is made of, a library a line.
library_versions() {
  local mark
  for mark in "$windows_cache"/root/.built-*; do
    echo "${mark##*/.built-} $(<"$mark")"
  done | grep -v '^googletest '
  echo "zlib $(package_versions libz-mingw-w64-dev)"
  echo "compiler $(package_versions g++-mingw-w64-x86-64-posix)"
}

# cross_configure SOURCE BUILD ARGUMENT...: CMake with the compiler for Windows and the libraries of the cache.
cross_configure() {
  local source=$1 build=$2
  shift 2
  cmake -S "$source" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/windows/mingw.cmake" -DTARNWICK_WINDOWS_ROOT="$windows_cache/root" "$@"
}

build_sqlite() {
  fetch_source sqlite3
  local build=$windows_cache/build/sqlite
  rm -rf "$build"
  mkdir -p "$build"
  (
    cd "$build"
    # The sources are put together into one file by programs of this system.
    quietly "$windows_cache/log/sqlite.log" "$windows_cache/src/sqlite3/configure" --disable-tcl --disable-readline
    quietly "$windows_cache/log/sqlite.log" make -j"$jobs" sqlite3.c
    quietly "$windows_cache/log/sqlite.log" x86_64-w64-mingw32-gcc-posix -c -O2 -o sqlite3.o sqlite3.c \
      -DSQLITE_THREADSAFE=1 -DSQLITE_ENABLE_COLUMN_METADATA -DSQLITE_OMIT_LOAD_EXTENSION
    x86_64-w64-mingw32-gcc-ar-posix rcs "$windows_cache/root/lib/libsqlite3.a" sqlite3.o
    cp sqlite3.h "$windows_cache/root/include/"
  )
}

build_googletest() {
  local build=$windows_cache/build/googletest
  quietly "$windows_cache/log/googletest.log" cross_configure /usr/src/googletest "$build" \
    -DCMAKE_INSTALL_PREFIX="$windows_cache/root"
  quietly "$windows_cache/log/googletest.log" cmake --build "$build" --target install -- -j"$jobs"
}

# make_re2_tables: what Debian leaves out of the source, and makes of its own data.
make_re2_tables() {
  local name
  perl make_perl_groups.pl >perl_groups.cc
  for name in groups casefold; do
    /usr/bin/python3 "make_unicode_$name.py" >"unicode_$name.cc"
  done
}

# What finds the parts of pages that rules name.
build_re2() {
  fetch_source re2
  local build=$windows_cache/build/re2
  (cd "$windows_cache/src/re2/re2" && make_re2_tables)
  quietly "$windows_cache/log/re2.log" cross_configure "$windows_cache/src/re2" "$build" \
    -DCMAKE_INSTALL_PREFIX="$windows_cache/root" -DRE2_BUILD_TESTING=OFF
  quietly "$windows_cache/log/re2.log" cmake --build "$build" --target install -- -j"$jobs"
}

# HTML, XML and XPath from memory: no files that are compressed, no addresses, no schemas.
build_libxml2() {
  fetch_source libxml2
  local build=$windows_cache/build/libxml2 without=() feature
  for feature in C14N CATALOG DEBUG DOCB FTP HTTP ICONV LEGACY LZMA MODULES PROGRAMS PYTHON SCHEMAS SCHEMATRON TESTS \
    WRITER XINCLUDE XPTR ZLIB; do
    without+=("-DLIBXML2_WITH_$feature=OFF")
  done
  quietly "$windows_cache/log/libxml2.log" cross_configure "$windows_cache/src/libxml2" "$build" \
    -DCMAKE_INSTALL_PREFIX="$windows_cache/root" -DBUILD_SHARED_LIBS=OFF "${without[@]}"
  quietly "$windows_cache/log/libxml2.log" cmake --build "$build" --target install -- -j"$jobs"
}

# Without the variants of 32 bytes at a time: the compiler does not align the stack to that on Windows.
build_simdjson() {
  fetch_source simdjson
  local source=$windows_cache/src/simdjson/singleheader build=$windows_cache/build/simdjson
  mkdir -p "$build"
  quietly "$windows_cache/log/simdjson.log" x86_64-w64-mingw32-g++-posix -c -O2 -std=c++17 -o "$build/simdjson.o" \
    "$source/simdjson.cpp" -DSIMDJSON_IMPLEMENTATION_HASWELL=0 -DSIMDJSON_IMPLEMENTATION_ICELAKE=0
  x86_64-w64-mingw32-gcc-ar-posix rcs "$windows_cache/root/lib/libsimdjson.a" "$build/simdjson.o"
  cp "$source/simdjson.h" "$windows_cache/root/include/"
}

# The transfer library with the certificates and the cryptography of Windows itself.
build_curl() {
  fetch_source curl
  local build=$windows_cache/build/curl
  quietly "$windows_cache/log/curl.log" cross_configure "$windows_cache/src/curl" "$build" \
    -DCMAKE_INSTALL_PREFIX="$windows_cache/root" -DBUILD_SHARED_LIBS=OFF -DBUILD_CURL_EXE=OFF -DBUILD_TESTING=OFF \
    -DCURL_USE_SCHANNEL=ON -DCURL_WINDOWS_SSPI=ON -DUSE_WIN32_IDN=ON -DUSE_LIBIDN2=OFF -DUSE_UNIX_SOCKETS=OFF \
    -DCURL_USE_LIBSSH2=OFF -DCURL_USE_LIBPSL=OFF -DUSE_NGHTTP2=OFF -DCURL_BROTLI=OFF -DCURL_ZSTD=OFF -DCURL_ZLIB=ON \
    -DCURL_DISABLE_LDAP=ON -DCURL_DISABLE_LDAPS=ON -DCURL_DISABLE_TELNET=ON -DCURL_DISABLE_DICT=ON \
    -DCURL_DISABLE_TFTP=ON -DCURL_DISABLE_GOPHER=ON -DCURL_DISABLE_MQTT=ON \
    -DCURL_DISABLE_SMB=ON -DCURL_DISABLE_RTSP=ON -DCURL_DISABLE_POP3=ON -DCURL_DISABLE_IMAP=ON \
    -DENABLE_UNICODE=ON
  quietly "$windows_cache/log/curl.log" cmake --build "$build" --target install -- -j"$jobs"
}

# Widgets, network and what they stand on, as static libraries: about a quarter of an hour on two processors.
build_qt() {
  fetch_source qt6-base
  local build=$windows_cache/build/qt without=() feature
  # Nothing of these is used; the last two do not build or link with Debian's source and this compiler.
  for feature in sql dbus opengl direct2d vulkan printsupport xml concurrent pkg_config zstd brotli glib icu \
    tabletevent directwrite3; do
    without+=("-DFEATURE_$feature=OFF")
  done
  # What Qt brings along instead of the libraries of this system.
  for feature in zlib pcre2 png jpeg freetype harfbuzz doubleconversion; do
    without+=("-DFEATURE_system_$feature=OFF")
  done
  quietly "$windows_cache/log/qt.log" cross_configure "$windows_cache/src/qt6-base" "$build" --log-level=WARNING \
    -DCMAKE_INSTALL_PREFIX="$windows_cache/root" -DQT_HOST_PATH=/usr \
    -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/cmake" \
    -DBUILD_SHARED_LIBS=OFF -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DQT_USE_CCACHE=ON -DINPUT_opengl=no \
    -DFEATURE_schannel=ON \
    "${without[@]}"
  quietly "$windows_cache/log/qt.log" cmake --build "$build" -- -j"$jobs"
  quietly "$windows_cache/log/qt.log" cmake --install "$build"
  # A gigabyte that nothing needs any more.
  rm -rf "$build" "$windows_cache/src/qt6-base"
}

# Libraries of headers only are the same on every system; they are copied so that nothing else of this system is found.
build_headers() {
  mkdir -p "$windows_cache/root/share/cmake"
  cp -r /usr/include/CLI /usr/include/nlohmann "$windows_cache/root/include/"
  cp -r /usr/share/cmake/CLI11 /usr/share/cmake/nlohmann_json "$windows_cache/root/share/cmake/"
}

build_core_libraries() {
  update_source_lists
  build_version sqlite "$(source_version sqlite3)" build_sqlite
  build_version googletest "$(package_versions googletest)" build_googletest
  build_version re2 "$(source_version re2)" build_re2
  build_version libxml2 "$(source_version libxml2)" build_libxml2
  build_version simdjson "$(source_version simdjson)" build_simdjson
}

build_libraries() {
  build_core_libraries
  build_version headers "$(package_versions libcli11-dev nlohmann-json3-dev)" build_headers
  # One that was built before mails left through it knows no mail servers.
  if ! grep -qs '^ *for protocol in .*SMTP' "$windows_cache/root/bin/curl-config"; then
    rm -f "$windows_cache/root/.built-curl"
  fi
  build_version curl "$(source_version curl)" build_curl
  build_version qt "$(source_version qt6-base)" build_qt
}

# pack FOLDER: the program folder of the build in FOLDER as a zip archive beside it, and as an installer. Both are the same
# to the byte whoever packs them, and when.
pack() {
  local stage=$PWD/$1/stage version time name
  version=$(sed -n 's/^project(Tarnwick VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
  time=${SOURCE_DATE_EPOCH:-$(date -u -d "$(sed -n 's/^## \[[0-9.]*\] - //p' CHANGELOG.md | head -1)" +%s)}
  name=$PWD/$1/tarnwick-$version-windows-x86_64
  rm -rf "$stage" "$name.zip" "$name-setup.exe"
  quietly "$1/install.log" cmake --install "$1" --strip --component portable --prefix "$stage"
  if x86_64-w64-mingw32-objdump -p "$stage"/tarnwick/*.exe | grep -iE 'DLL Name: (lib|zlib|qt|sqlite)'; then
    echo "The program needs the libraries named above, which Windows does not have." >&2
    exit 1
  fi
  library_versions >"$stage/tarnwick/libraries.txt"
  need_notices
  sed 's/$/\r/' LICENSE >"$stage/tarnwick/LICENSE.txt"
  sed 's/$/\r/' packaging/windows/README.txt >"$stage/tarnwick/README.txt"
  /usr/bin/python3 packaging/made_of.py windows --version "$version" --time "$time" --folder "$stage/tarnwick" \
    --libraries "$stage/tarnwick/libraries.txt" --notices "$windows_cache/notices"
  find "$stage" -exec touch --date="@$time" {} +
  (
    cd "$stage"
    find tarnwick -print | LC_ALL=C sort | TZ=UTC zip -q -X -@ "$name.zip"
  )
  make_installer "$stage/tarnwick" "$version" "$time" "$name-setup.exe"
  echo "The program for Windows is packed as $name.zip and $name-setup.exe"
}

# make_installer PROGRAM_FOLDER VERSION TIME INSTALLER
make_installer() {
  local folder=$1 version=$2 time=$3 installer=$4
  local files=$folder.files.nsh
  # The mark of an installation that all share: also for one user alone the list lies elsewhere.
  cp packaging/shared-installation.txt "$folder/"
  touch --date="@$time" "$folder/shared-installation.txt"
  (
    cd "$folder"
    find . -type f -printf 'Delete "$INSTDIR\\%P"\n' | LC_ALL=C sort
    find . -mindepth 1 -type d -printf 'RMDir "$INSTDIR\\%P"\n' | LC_ALL=C sort -r
  ) | tr / '\\' >"$files"
  quietly "$folder.nsis.log" env SOURCE_DATE_EPOCH="$time" makensis -V2 -INPUTCHARSET UTF8 -DVERSION="$version" \
    -DSTAGE="$folder" -DFILES="$files" -DICON="$PWD/assets/windows/tarnwick.ico" -DOUTPUT="$installer" \
    packaging/windows/installer.nsi
  rm -f "$folder/shared-installation.txt" "$files"
}

# skipped_under_wine PROGRAM: the tests of the program that Wine cannot run, as a filter; they are named with the reason.
skipped_under_wine() {
  local program=$1 case reason all=
  while read -r name case reason; do
    if [[ $name == "$program" ]]; then
      echo "  not under Wine: $case - $reason" >&2
      all+=:$case
    fi
  done < <(grep -v '^#' tests/wine_skips.txt)
  echo "${all#:}"
}

# run_under_wine FOLDER: runs the test programs of the build in FOLDER, each as a whole, and shows what fails.
run_under_wine() {
  local program name log status=0 filter from=$SECONDS
  export WINEPREFIX=$PWD/$1/wine WINEDEBUG=-all QT_QPA_PLATFORM=offscreen no_proxy='*' NO_PROXY='*'
  mkdir -p "$1/wine-logs"
  echo "Setting up Wine ..."
  # What Wine leaves running in the background would hold a pipe open, so all of its output goes into files.
  wineboot --init >"$1/wine-logs/wineboot.log" 2>&1 </dev/null || true
  while IFS= read -r program; do
    name=$(basename "$program" .exe)
    log=$PWD/$1/wine-logs/$name.log
    filter=$(skipped_under_wine "$name")
    if (cd "$(dirname "$program")" &&
      timeout 900 wine "./$name.exe" --gtest_brief=1 "--gtest_filter=-$filter" >"$log" 2>&1 </dev/null) &&
      grep -aq '\[  PASSED  \]' "$log"; then # a program that crashes may leave with 0 there
      echo "$name: $(grep -a 'PASSED' "$log" | tr -d '\r')"
    else
      tr -d '\r' <"$log" | tail -60 >&2
      echo "$name: FAILED under Wine; all of its output is in $log" >&2
      status=1
    fi
  done < <(find "$1/tests" -name 'test_*.exe' | sort)
  wineserver -k || true
  echo "Tests under Wine: $([[ $status == 0 ]] && echo passed || echo FAILED) in $((SECONDS - from)) s."
  return "$status"
}
