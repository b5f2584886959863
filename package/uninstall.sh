#!/bin/sh
# Takes away what install.sh has put in place, file by file. Your data stays.
set -eu

program=$HOME/.local/lib/velnor
share=${XDG_DATA_HOME:-$HOME/.local/share}

rm -f "$HOME/.local/bin/velnor" "$share/applications/velnor.desktop" \
  "$share/icons/hicolor/256x256/apps/velnor.png"
for file in velnor velnor.exe README.txt README.md uninstall.sh; do
  rm -f "$program/$file"
done
rmdir "$program" 2>/dev/null || true # stays when there is something of yours in it

echo "Removed. Your data is still in $share/velnor"
[ ! -d "$share/velnor-wine" ] ||
  echo "Wine's folder $share/velnor-wine holds nothing of yours and may be deleted."
