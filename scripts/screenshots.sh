#!/usr/bin/env bash
# Takes a picture of every window, light and dark, without a screen: scripts/screenshots.sh [FOLDER]
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/scripts/setup.sh"
folder=${1:-$root/out/pictures}
install_missing "${desktop_packages[@]}" fonts-dejavu-core
build release test_workbench TGlotta_Common
mkdir -p "$folder"
for theme in Light Dark; do
    QT_QPA_PLATFORM=offscreen GLOTTA_THEME=$theme GLOTTA_PICTURES=$(realpath "$folder") \
        "$root/build/release/bin/test_workbench" --gtest_brief=1 >&2
done
ls "$folder"
