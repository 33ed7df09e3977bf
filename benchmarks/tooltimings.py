#!/usr/bin/env python3
"""Side-by-side timings of tvxtool against the programs that bound it, run by hand:

  benchmarks/tooltimings.py start BUILD_DIR
      a bare `tvxtool` start (usage text, exit code 2) against a minimal QtCore program
      (a QCoreApplication and nothing else, compiled here with c++ and pkg-config Qt6Core);
  benchmarks/tooltimings.py cloud BUILD_DIR SCAN.tvx
      `tvxtool cloud --step 1` against `cp` of the PLY it writes (and `dd` of it, for what a copy
      through user space costs), and `--step 5` against `cat` of the scan's data file.

Each round runs every command once, in turn, so that the machine's state (page cache, other
load) is shared; the median of the rounds is reported with the ratio. Make a large scan first,
for example: BUILD_DIR/bin/tvxtool demo /tmp/big --scans 1 --columns 10000 --rows 5000
"""
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

MINIMAL_QTCORE = r"""
#include <QCoreApplication>
int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    return 0;
}
"""


def elapsed(command, prepare=None):
    """Wall time of one run, output to /dev/null; posix_spawn adds less of Python's own time."""
    if prepare:
        prepare()
    program = shutil.which(command[0])
    quiet = [(os.POSIX_SPAWN_OPEN, 1, os.devnull, os.O_WRONLY, 0), (os.POSIX_SPAWN_OPEN, 2, os.devnull, os.O_WRONLY, 0)]
    start = time.perf_counter()
    pid = os.posix_spawn(program, command, os.environ, file_actions=quiet)
    os.waitpid(pid, 0)
    return time.perf_counter() - start


def remove(path):
    return lambda: os.path.exists(path) and os.remove(path)


def report(rounds, runs):
    """runs: (name, command, prepare, bound name); each is timed once per round."""
    times = {name: [] for name, _, _, _ in runs}
    for _ in range(rounds):
        for name, command, prepare, _ in runs:
            times[name].append(elapsed(command, prepare))
    medians = {name: statistics.median(values) for name, values in times.items()}
    for name, _, _, bound in runs:
        line = f"{name:<40} {medians[name] * 1000:9.2f} ms"
        if bound:
            line += f"   {medians[name] / medians[bound]:5.2f} x {bound}"
        print(line)


def minimal_qtcore_program(folder):
    source = os.path.join(folder, "minimal.cpp")
    program = os.path.join(folder, "minimal-qtcore")
    with open(source, "w") as file:
        file.write(MINIMAL_QTCORE)
    flags = subprocess.run(["pkg-config", "--cflags", "--libs", "Qt6Core"], check=True, capture_output=True,
                           text=True).stdout.split()
    subprocess.run(["c++", "-O2", "-fPIC", source, "-o", program] + flags, check=True)
    return program


def start(build):
    tool = os.path.join(build, "bin", "tvxtool")
    with tempfile.TemporaryDirectory() as folder:
        minimal = minimal_qtcore_program(folder)
        report(200, [("minimal QtCore program", [minimal], None, None),
                     ("tvxtool (bare start)", [tool], None, "minimal QtCore program")])


def cloud(build, scan):
    tool = os.path.join(build, "bin", "tvxtool")
    data = os.path.splitext(scan)[0] + ".tvxsd"
    with tempfile.TemporaryDirectory(dir=os.path.dirname(os.path.abspath(scan))) as folder:
        ply = os.path.join(folder, "step1.ply")
        copy = os.path.join(folder, "copy.ply")
        sparse = os.path.join(folder, "step5.ply")
        subprocess.run([tool, "cloud", scan, "--output", ply], check=True)
        kept = os.path.join(folder, "kept.ply")
        shutil.copyfile(ply, kept)
        # dd copies through user space in 4 MiB blocks, as tvxtool writes; cp copies inside the kernel.
        report(7, [("cp of the step 1 PLY", ["cp", kept, copy], remove(copy), None),
                   ("dd bs=4M of the step 1 PLY", ["dd", f"if={kept}", f"of={copy}", "bs=4M", "status=none"],
                    remove(copy), "cp of the step 1 PLY"),
                   ("tvxtool cloud --step 1", [tool, "cloud", scan, "--output", ply], remove(ply),
                    "cp of the step 1 PLY"),
                   ("cat of the data file", ["cat", data], None, None),
                   ("tvxtool cloud --step 5", [tool, "cloud", scan, "--output", sparse, "--step", "5"],
                    remove(sparse), "cat of the data file")])


if __name__ == "__main__":
    if len(sys.argv) == 3 and sys.argv[1] == "start":
        start(sys.argv[2])
    elif len(sys.argv) == 4 and sys.argv[1] == "cloud":
        cloud(sys.argv[2], sys.argv[3])
    else:
        sys.exit(__doc__)
