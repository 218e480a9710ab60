#!/usr/bin/env bash
# Takes a picture of every window, light and dark, without a screen: scripts/screenshots.sh [FOLDER]
# The default folder is out/pictures. GLOTTA_BUILD names a build folder to take instead of build/release.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
folder=$(mkdir -p "${1:-$root/out/pictures}" && cd "${1:-$root/out/pictures}" && pwd)
binaries=${GLOTTA_BUILD:-}
if [ -z "$binaries" ]; then
    . "$root/scripts/setup.sh"
    install_missing qt6-base-dev libqscintilla2-qt6-dev
    build release test_workbench TGlotta_Common
    binaries=$root/build/release
fi
for theme in Light Dark; do
    QT_QPA_PLATFORM=offscreen GLOTTA_THEME=$theme GLOTTA_PICTURES=$folder \
        "$binaries/bin/test_workbench" --gtest_brief=1 --gtest_filter='Views.*:HostWindow.*:Designer.*' 2>/dev/null
done
ls "$folder"
