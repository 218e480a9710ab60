#!/bin/sh
# Times `glotta scan` over a tree of units against `rg -o "'[^']*'"` over the same files, in one run: both warm, best
# of several. Prints both times and their ratio.
# Usage: bench/compare_rg.sh TREE [GLOTTA] [RUNS]
set -eu
tree=${1:?usage: compare_rg.sh TREE [GLOTTA] [RUNS]}
glotta=${2:-$(dirname "$0")/../build/release/bin/glotta}
runs=${3:-7}

exec python3 - "$tree" "$glotta" "$runs" <<'PYTHON'
import subprocess, sys, time

tree, glotta, runs = sys.argv[1], sys.argv[2], int(sys.argv[3])
globs = [arg for ext in ("pas", "dpr", "cpp", "c", "h") for arg in ("--iglob", "*." + ext)]
commands = {
    "rg": ["rg", "--no-ignore", "-a", *globs, "-o", "'[^']*'", tree],
    "glotta scan": [glotta, "scan", tree],
}

def once(command):
    start = time.perf_counter()
    done = subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
    seconds = time.perf_counter() - start
    if done.returncode not in (0, 1):
        sys.exit(f"{command[0]} failed: {done.stderr.decode(errors='replace').strip()}")
    return seconds

best = {name: min(once(command) for _ in range(runs + 1)) for name, command in commands.items()}
for name, seconds in best.items():
    print(f"{name:12} {seconds * 1000:8.1f} ms")
print(f"ratio        {best['glotta scan'] / best['rg']:8.2f}")
PYTHON
