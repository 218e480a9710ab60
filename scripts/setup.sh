# Sourced by ./run, ./test and .ci/run: installs what is missing on a Debian machine, configures and builds.
# Needs bash; `root` is the project's folder.

packages=(g++ cmake ninja-build ccache mold pkg-config libpcre2-dev libpugixml-dev libcli11-dev nlohmann-json3-dev
          libdtl-dev libgtest-dev)

# What the desktop host needs on top.
desktop_packages=(qt6-base-dev libqscintilla2-qt6-dev)

say() { printf '%s\n' "$*" >&2; }

install_missing() {
    local missing=() package
    local installed
    installed=$(dpkg-query -W -f='${db:Status-Abbrev} ${Package}\n' "${packages[@]}" "$@" 2>/dev/null | awk '$1=="ii"{print $2}')
    for package in "${packages[@]}" "$@"; do
        grep -qxF -- "$package" <<<"$installed" || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    say "Installing: ${missing[*]}"
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then as_root=(sudo); fi
    "${as_root[@]}" apt-get update -qq >/dev/null || true
    DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# build PRESET TARGET...: configures (again when a target is missing, as when its library came only now), builds the targets (all without any) and shows output only when it fails.
build() {
    local preset=$1
    shift
    local dir=$root/build/$preset
    if [ ! -f "$dir/build.ninja" ] || { [ $# -gt 0 ] && ! ninja -C "$dir" -t query "$@" >/dev/null 2>&1; }; then
        say "Configuring $preset"
        (cd "$root" && cmake --preset "$preset") >"$root/build-$preset.log" 2>&1 ||
            { cat "$root/build-$preset.log" >&2; return 1; }
        rm -f "$root/build-$preset.log"
    fi
    if [ -t 2 ]; then
        ninja -C "$dir" "$@" >&2
    else
        local log
        log=$(mktemp)
        if ! ninja -C "$dir" "$@" >"$log" 2>&1; then
            tail -n 100 "$log" >&2
            rm -f "$log"
            return 1
        fi
        rm -f "$log"
    fi
}
