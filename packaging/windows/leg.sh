# SPDX-FileCopyrightText: 2026 The Brindock authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The Windows leg of ./test, which reads this file in: everything built for Windows, its tests run under Wine in a fresh
# prefix, and a picture of the suite there.

wine64=/usr/lib/wine/wine64
windows_bin=$root/build/windows/bin

fresh_prefix() {
  export WINEPREFIX=$root/build/wineprefix WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml='
  rm -rf "$WINEPREFIX"
  mkdir -p "$WINEPREFIX"
  # A 64-bit prefix alone: the missing 32-bit half is told on standard error, and nothing here needs it.
  $wine64 wineboot -i >"$root/build/wineboot.log" 2>&1 || fail "wine could not make a prefix; see build/wineboot.log"
  wineserver -w
}

windows_picture() {
  local picture=build/screenshots/windows.png program
  # What the tests left of Wine has a desktop without this display.
  wineserver -k || true
  wineserver -w
  $wine64 "$windows_bin/brindock-cli.exe" setting set TradFileName English.lng || {
    say "brindock-cli.exe can't write the registry"
    return 1
  }
  $wine64 "$windows_bin/brindock.exe" >build/wine-brindock.log 2>&1 &
  program=$!
  wait_for_window 60 >/dev/null || { cat build/wine-brindock.log; say "no window came up"; return 1; }
  sleep 3
  take_picture $picture || { say "no picture of the window"; return 1; }
  kill -0 "$program" 2>/dev/null || { cat build/wine-brindock.log; say "brindock.exe ended by itself"; return 1; }
  say "Picture: $picture"
  wineserver -k
  wait "$program" 2>/dev/null || true
}

# in_locale LOCALE PAGE [FILTER]: the platform's tests on a system of another language, whose code page they hold against
# theirs.
in_locale() {
  wineserver -k || true
  wineserver -w
  LC_ALL=$1 BRINDOCK_TEST_ACP=$2 $wine64 "$windows_bin/platform_tests.exe" --gtest_brief=1 --gtest_filter="${3:-*}"
  local code=$?
  wineserver -k || true
  wineserver -w
  return $code
}

begin "Windows leg: packages"
need_packages "${build_packages[@]}" g++-mingw-w64-x86-64-posix libz-mingw-w64-dev googletest wine wine64 locales-all

begin "Windows leg: build"
BRINDOCK_WINDOWS_SDK=$(packaging/windows/sdk --where)
export BRINDOCK_WINDOWS_SDK
build windows

begin "Windows leg: a fresh Wine prefix"
fresh_prefix

begin "Windows leg: tests under Wine"
run_tests windows
check "Windows leg: a Japanese system" in_locale ja_JP.UTF-8 932
# Left out are those that hold letters of Windows-1252's own.
check "Windows leg: a Polish system" in_locale pl_PL.UTF-8 1250 "-AnsiCodec.*:FileRegistryTest.*Utf8*:IniTest.WhatWasWritten*"

start_display
check "Windows leg: brindock.exe starts" windows_picture
check "Windows leg: a release is found, downloaded and started" tools/try-update windows build/screenshots/update-windows.png
stop_display
