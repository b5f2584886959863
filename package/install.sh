#!/bin/sh
# Installs Velnor calorie counter for you alone, or brings it up to date: the program into
# ~/.local/lib/velnor, the command "velnor" into ~/.local/bin and an entry into your menu.
# uninstall.sh takes all of it away again. Neither touches your data.
set -eu

here=$(dirname "$(readlink -f "$0")")
program=$HOME/.local/lib/velnor
share=${XDG_DATA_HOME:-$HOME/.local/share}

mkdir -p "$program" "$HOME/.local/bin" "$share/applications" "$share/icons/hicolor/256x256/apps"
for file in velnor velnor.exe README.txt README.md uninstall.sh; do
  # Not written into the file that is there: it may be running.
  cp "$here/$file" "$program/$file.new"
  mv -f "$program/$file.new" "$program/$file"
done
ln -sf "$program/velnor" "$HOME/.local/bin/velnor"
cp "$here/velnor.png" "$share/icons/hicolor/256x256/apps/velnor.png"
{
  grep -v '^Exec=' "$here/velnor.desktop"
  printf 'Exec="%s"\n' "$program/velnor" # menus do not look into ~/.local/bin everywhere
} >"$share/applications/velnor.desktop"

echo "Installed. Start it from your menu or with $HOME/.local/bin/velnor"
echo "Your data will lie in $share/velnor"
command -v wine >/dev/null || echo "It needs Wine, and there is none: install the package \"wine\"."
