#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Brindock authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Brindock 2005 @VERSION@, packed behind the last line of this script.
#
#   FILE           puts it over the suite that downloaded it and starts that; anywhere else, into ~/.local/lib/brindock
#   FILE FOLDER    puts it into a folder
set -eu

here=$(cd "$(dirname "$0")" && pwd)
start=
if [ $# -gt 0 ]; then
  target=$1
elif [ "$(basename "$here")" = TempUpdater ]; then
  target=$(dirname "$here")
  start=yes
else
  target=$HOME/.local/lib/brindock
fi

mkdir -p "$target"
new=$target/.unpacked-$$
mkdir "$new"
trap 'rm -rf "$new"' EXIT
trap 'exit 1' HUP INT TERM
sed '1,/^exit$/d' "$0" | tar -xz -C "$new" || {
  echo "$0: what it should hold is damaged; nothing was changed" >&2
  exit 1
}
# The address of the server is set where the suite is installed.
[ ! -e "$target/updater.cfg" ] || rm -f "$new/updater.cfg"
# All is unpacked: each file takes the place of its forerunner at once, also of one that runs.
(cd "$new" && find . -type f) | while IFS= read -r file; do
  mkdir -p "$target/$(dirname "$file")"
  mv -f "$new/$file" "$target/$file"
done
rm -rf "$new"
trap - EXIT
[ -z "$start" ] || exec "$target/brindock"
echo "Brindock 2005 @VERSION@ is in $target"
exit
