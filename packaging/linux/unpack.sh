#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Brindock authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Brindock 2005 @VERSION@, packed behind the last line of this script.
#
#   FILE           puts it over the suite that downloaded it into its own folder and starts that; anywhere else, into
#                  ~/.local/lib/brindock
#   FILE FOLDER    puts it into a folder
set -eu

here=$(cd "$(dirname "$0")" && pwd)
start=
if [ $# -gt 0 ]; then
  target=$1
elif [ "$(basename "$here")" = TempUpdater ] && [ -f "$(dirname "$here")/brindock" ]; then
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

# give_up REASON: the suite that ended for this one goes on as it was.
give_up() {
  echo "$0: $1; nothing was changed" >&2
  rm -rf "$new"
  [ -z "$start" ] || exec "$target/brindock"
  exit 1
}

# can_take FILE: whether a file of the folder can take its place there.
can_take() {
  mkdir -p "$(dirname "$target/$1")" && [ -w "$(dirname "$target/$1")" ] && [ ! -d "$target/$1" ]
}

sed '1,/^exit$/d' "$0" | tar -xz -C "$new" || give_up "what it should hold is damaged"
# The address of the server is set where the suite is installed.
[ ! -e "$target/updater.cfg" ] || rm -f "$new/updater.cfg"
files=$(cd "$new" && find . ! -type d)
echo "$files" | while IFS= read -r file; do
  can_take "$file" || exit 1
done || give_up "$target can't take it"
# Each takes the place of its forerunner at once, also of one that runs.
echo "$files" | while IFS= read -r file; do
  mv -f "$new/$file" "$target/$file"
done
rm -rf "$new"
trap - EXIT
[ -z "$start" ] || exec "$target/brindock"
echo "Brindock 2005 @VERSION@ is in $target"
exit
