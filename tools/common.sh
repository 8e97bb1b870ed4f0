# SPDX-FileCopyrightText: 2026 The Brindock authors
# SPDX-License-Identifier: GPL-3.0-or-later

# What ./run, ./test and the scripts of packaging/ share: how they speak, how they fail, how packages get installed.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# A machine without a locale of its own would make Qt warn, and file names with accents fail.
if [ -z "${LC_ALL:-}${LC_CTYPE:-}${LANG:-}" ]; then export LANG=C.UTF-8; fi

# What the build needs; the display packages serve pictures of windows where there is no screen.
build_packages=(g++ cmake ninja-build ccache qt6-base-dev qt6-qpa-plugins zlib1g-dev libcli11-dev libgtest-dev
  libbenchmark-dev librsvg2-bin imagemagick cmark-gfm python3 libdevil-dev libstb-dev libsdl2-mixer-dev libzip-dev
  libsodium-dev pkg-config)
# What the tests run besides: other programs read what is written here.
test_packages=(clang-format python3 gettext unzip p7zip-full libarchive-tools minisign nsis)
display_packages=(xvfb xdotool openbox fonts-dejavu-core)

say() { printf '%s\n' "$*"; }

fail() {
  printf '%s: %s\n' "$(basename "$0")" "$*" >&2
  exit 1
}

as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    fail "this needs root, and there is no sudo: run as root: $*"
  fi
}

# missing_packages NAME...: those that are not installed, one a line.
missing_packages() {
  local installed
  installed=$(dpkg-query -W -f='${Package} ${db:Status-Status}\n' "$@" 2>/dev/null |
    awk '$2 == "installed" { print $1 }') || true
  printf '%s\n' "$@" | grep -vxF -e "$installed" || true
}

# need_packages NAME...: installs what is missing through apt; on a system without apt it looks for the compiler's
# commands only and says what Debian calls the rest.
need_packages() {
  if ! command -v apt-get >/dev/null; then
    local command absent=()
    for command in c++ cmake ninja; do
      command -v "$command" >/dev/null || absent+=("$command")
    done
    [ ${#absent[@]} -eq 0 ] ||
      fail "missing commands: ${absent[*]}. Debian's names of all that is needed: $*"
    return
  fi
  local missing
  missing=$(missing_packages "$@")
  [ -n "$missing" ] || return 0
  say "Installing: $(echo $missing)"
  as_root apt-get update -qq || fail "apt-get update failed: is the network there?"
  # shellcheck disable=SC2086 # a list of words
  as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing </dev/null \
    >"${TMPDIR:-/tmp}/brindock-apt.log" 2>&1 ||
    fail "apt-get could not install them; its words are in ${TMPDIR:-/tmp}/brindock-apt.log"
}

# debian_places deb|deb-src: the places that the system's own sources name for Debian's packages, as lines for apt; the main
# one first, as not every mirror holds the sources of the others.
debian_places() {
  local keys=/usr/share/keyrings/debian-archive-keyring.gpg
  places() {
    apt-get indextargets --format "$1 [signed-by=$keys] \$(REPO_URI) \$(CODENAME) \$(COMPONENT)" \
      'Created-By: Packages' 'Origin: Debian' | sort -ru
  }
  # A new system has no lists yet, and apt tells of no place without them.
  [ -n "$(places "$1")" ] || as_root apt-get update -qq || fail "apt-get update failed: is the network there?"
  places "$1" | grep . || fail "the system's apt sources name no place of Debian's packages"
}

# build PRESET [TARGET...]: configures and builds.
build() {
  local preset=$1 log=$root/build/$1-configure.log
  shift
  mkdir -p "$root/build"
  (cd "$root" && cmake --preset "$preset" >"$log" 2>&1) || {
    tail -n 30 "$log" >&2
    fail "cmake could not configure the preset $preset; all of it is in $log"
  }
  (cd "$root" && cmake --build --preset "$preset" ${1:+--target "$@"}) ||
    fail "the preset $preset does not build; the compiler's words are above"
}

# start_display: starts a virtual display on a free number and points DISPLAY at it.
start_display() {
  local number=${TMPDIR:-/tmp}/brindock-display.$$
  # It would reset itself whenever its last program ends, and refuse the next one while it does.
  Xvfb -noreset -displayfd 3 -screen 0 "${1:-1280x1024x24}" -nolisten tcp 3>"$number" 2>/dev/null &
  display_process=$!
  for _ in $(seq 100); do
    [ -s "$number" ] && break
    sleep 0.1
  done
  [ -s "$number" ] || fail "the virtual display (Xvfb) did not start"
  DISPLAY=:$(cat "$number")
  export DISPLAY
  rm -f "$number"
}

stop_display() {
  [ -z "${display_process:-}" ] || kill "$display_process" 2>/dev/null || true
  display_process=
}

# start_window_manager: for frames, and so that the window in front has the keyboard. A window that is mapped while the
# manager starts may never be seen.
start_window_manager() {
  local ready=${TMPDIR:-/tmp}/brindock-manager.$$
  rm -f "$ready"
  openbox --sm-disable --startup "touch '$ready'" >/dev/null 2>&1 &
  manager_process=$!
  for _ in $(seq 100); do
    [ -e "$ready" ] && break
    sleep 0.1
  done
  [ -e "$ready" ] || fail "the window manager (openbox) did not start"
  rm -f "$ready"
}

stop_window_manager() {
  [ -z "${manager_process:-}" ] || kill "$manager_process" 2>/dev/null || true
  manager_process=
}

# start_server FOLDER LOG: serves a folder on a free port of this machine, which server_port tells; the log gets a line
# for each request.
start_server() {
  local told=${TMPDIR:-/tmp}/brindock-server.$$
  python3 -u -m http.server --bind 127.0.0.1 --directory "$1" 0 >"$told" 2>"$2" &
  server_process=$!
  for _ in $(seq 100); do
    server_port=$(sed -n 's/.* port \([0-9]*\) .*/\1/p' "$told")
    [ -z "$server_port" ] || break
    sleep 0.1
  done
  rm -f "$told"
  [ -n "$server_port" ] || fail "the server (http.server of python3) did not start"
}

stop_server() {
  [ -z "${server_process:-}" ] || kill "$server_process" 2>/dev/null || true
  server_process=
}

# wait_for_window SECONDS: the number of the first visible window with a title, or failure.
wait_for_window() {
  local window
  for _ in $(seq $((10 * $1))); do
    window=$(xdotool search --onlyvisible --name '.' 2>/dev/null | head -n 1) || true
    if [ -n "$window" ]; then
      echo "$window"
      return 0
    fi
    sleep 0.1
  done
  return 1
}

# take_picture FILE: the whole display as a PNG. It fails where the display shows one colour only.
take_picture() {
  mkdir -p "$(dirname "$1")"
  import -window root "$1" || return 1
  [ "$(identify -format '%k' "$1")" -gt 1 ]
}
