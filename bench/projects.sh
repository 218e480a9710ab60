#!/usr/bin/env bash
# Times `glotta forms`, `glotta scan` and `glotta replace --all` (a dry run) over generated projects of 30, 300 and 3,000
# forms, copies of the sample's form under numbered names. Prints wall times, best of three, and the ratios.
# Usage: bench/projects.sh [GLOTTA]
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
glotta=$(realpath "${1:-$root/build/release/bin/glotta}")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export GLOTTA_REGISTRY=$work/settings.reg

make_project() { # FORMS
    local folder=$work/$1 uses='' i
    mkdir -p "$folder"
    for ((i = 1; i <= $1; ++i)); do
        sed "s/CustomerEdit/Customer$i/g; s/CustomerForm/CustomerForm$i/g" \
            "$root/samples/delphi/OrderDesk/CustomerEdit.pas" >"$folder/Customer$i.pas"
        sed "s/CustomerForm/CustomerForm$i/g" "$root/samples/delphi/OrderDesk/CustomerEdit.dfm" >"$folder/Customer$i.dfm"
        uses+=$',\r\n  '"Customer$i in 'Customer$i.pas' {CustomerForm$i}"
    done
    printf 'program Many;\r\n\r\nuses\r\n  Forms%s;\r\n\r\nbegin\r\nend.\r\n' "$uses" >"$folder/Many.dpr"
}

best() { # COMMAND...: the best wall time of three in ms
    local least=999999999 start took run
    for run in 1 2 3; do
        start=$(date +%s%N)
        "$@" >/dev/null
        took=$((($(date +%s%N) - start) / 1000))
        ((took < least)) && least=$took
    done
    echo $least
}

printf '%-10s %12s %12s %12s %10s %10s\n' command '30 forms' '300 forms' '3000 forms' '30->300' '300->3000'
for forms in 30 300 3000; do make_project $forms; done
for command in "forms" "scan" "replace --all"; do
    declare -A took=()
    for forms in 30 300 3000; do
        # shellcheck disable=SC2086 # the command's words
        took[$forms]=$(best "$glotta" $command "$work/$forms/Many.dpr")
    done
    awk -v c="$command" -v a="${took[30]}" -v b="${took[300]}" -v d="${took[3000]}" 'BEGIN {
        printf "%-13s %6.1f ms %9.1f ms %9.1f ms %9.1fx %9.1fx\n", c, a/1000, b/1000, d/1000, b/a, d/b }'
done
