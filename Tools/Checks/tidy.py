#!/usr/bin/env python3
"""Runs clang-tidy over every source of ours that a build directory compiles.

usage: tidy.py BUILD_DIRECTORY

Most of the checker's time goes into the headers of libraries, so sources that are compiled alike are looked at several at a
time. Those that cannot be compiled together, for two of them have the same name for different things, are taken apart again.

A source passes without being looked at again while its compile command, the checks and every file of the repository that
it is made of are what they were when it last passed, in whichever checkout that was; the stamps are in the user's cache.
"""

import hashlib
import json
import os
import re
import shlex
import subprocess
import sys
import time
from collections import defaultdict
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

TIDY = "clang-tidy"
FOLDERS = ("Sources", "Tools", "Tests", "Benchmarks")
ROOT = Path(__file__).resolve().parents[2]
STAMPS = Path(os.environ.get("XDG_CACHE_HOME") or Path.home() / ".cache") / "tocca/tidy"
OLD = 60 * 24 * 3600  # seconds after which a stamp that nobody asked for goes
MOST_TOGETHER = 10


def is_ours(path):
    return path.is_relative_to(ROOT) and path.relative_to(ROOT).parts[0] in FOLDERS


def dependencies(build):
    """The repository's own files that each object was made of, as the compiler reported them to ninja."""
    result, current = {}, None
    text = subprocess.run(["ninja", "-C", build, "-t", "deps"], capture_output=True, text=True, check=True).stdout
    for line in text.splitlines():
        if line.startswith(" "):
            path = Path(os.path.normpath(build / line.strip()))
            if is_ours(path) and path.exists():
                current.append(path)
        elif ": #deps" in line:
            current = result.setdefault(line.split(": #deps")[0], [])
    return result


def apart(entry):
    """A compile command for each source: those that are compiled together include one another in a file that CMake writes."""
    file = Path(entry["file"])
    together = file.parent.name == "Unity" and re.findall(r'^#include "(.*)"$', file.read_text(), re.MULTILINE)
    return [{**entry, "file": source, "unity": entry["file"]} for source in together] if together else [entry]


def output(entry):
    words = shlex.split(entry["command"])
    return words[words.index("-o") + 1]


def flags(entry):
    """What a compile command says beside the names of its files. The checker reads headers itself, not the compiler's precompiled ones."""
    words = shlex.split(entry["command"])
    at = words.index("-o")
    words = words[:at] + words[at + 2:]
    for i, word in reversed(list(enumerate(words))):
        if word == "-include" and "cmake_pch" in words[i + 1]:
            del words[i:i + 2]
    return tuple(word for word in words if word not in (entry["file"], entry.get("unity"), "-c", "-Winvalid-pch"))


def fingerprint(entry, files, common):
    digest = hashlib.sha256(common)
    digest.update(entry["command"].replace(str(ROOT), "").encode())
    for file in sorted({Path(entry["file"]), *files}):
        digest.update(f"\n{file.relative_to(ROOT)}\n".encode())
        digest.update(file.read_bytes())
    return digest.hexdigest()


def clear_old(folder):
    for stamp in folder.iterdir():
        if time.time() - stamp.stat().st_mtime > OLD:
            stamp.unlink(missing_ok=True)


def configurations():
    return [ROOT / ".clang-tidy", *(file for folder in FOLDERS for file in sorted((ROOT / folder).rglob(".clang-tidy")))]


def configuration_of(file):
    """The folder whose checks hold for a source."""
    return next(folder for folder in Path(file).parents if (folder / ".clang-tidy").exists())


class Checker:
    """Looks at sources together. Threads: any."""

    def __init__(self, folder):
        self.folder = folder
        self.configurations = {}

    def configure(self, where):
        """Writes down the checks of a folder: those of the place where the sources are put together would be others."""
        path = self.folder / f"{where.relative_to(ROOT).as_posix().replace('/', '-')}.yaml"
        dump = subprocess.run([TIDY, "--dump-config", where / "any.cpp"], capture_output=True, text=True, check=True)
        path.write_text(dump.stdout)
        self.configurations[where] = path

    def check(self, where, command, directory, files):
        """Returns the sources that passed, and what there is to say about the others."""
        name = hashlib.sha256("\n".join(files).encode()).hexdigest()[:16]
        together = self.folder / f"{name}.cpp"
        together.write_text("".join(f'#include "{file}" // NOLINT\n' for file in files))
        run = subprocess.run(
            [TIDY, f"--config-file={self.configurations[where]}", "--quiet", together, "--", *command,
             "-Wno-unknown-warning-option"], capture_output=True, text=True, cwd=directory)
        together.unlink()
        clash = re.search(r"^(.*?):\d+:\d+: error: .*\[clang-diagnostic-error\]$", run.stdout, re.MULTILINE)
        if clash and len(files) > 1:
            first = files.index(clash[1]) if clash[1] in files[1:] else len(files) // 2
            parts = [self.check(where, command, directory, part) for part in (files[:first], files[first:])]
            return parts[0][0] + parts[1][0], "\n".join(report for _, report in parts if report)
        noise = "warnings generated", "warning generated", "warnings treated as errors"
        errors = [line for line in run.stderr.splitlines() if not any(word in line for word in noise)]
        report = "\n".join([run.stdout.rstrip(), *errors]).strip()
        return (files, report) if run.returncode == 0 else ([], report or f"{TIDY} failed")


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    build = Path(sys.argv[1]).resolve()
    work = build / "tidy"
    work.mkdir(exist_ok=True)
    STAMPS.mkdir(parents=True, exist_ok=True)
    clear_old(STAMPS)
    version = subprocess.run([TIDY, "--version"], capture_output=True, text=True, check=True).stdout
    common = version.encode() + b"".join(file.read_bytes() for file in configurations())
    made_of = dependencies(build)

    groups = defaultdict(dict)  # (folder of the checks, flags, directory) -> source -> its stamps
    total = 0
    entries = json.loads((build / "compile_commands.json").read_text())
    for entry in (source for entry in entries for source in apart(entry)):
        if not is_ours(Path(entry["file"])):
            continue
        total += 1
        stamp = STAMPS / fingerprint(entry, made_of.get(output(entry), ()), common)
        if stamp.exists():
            stamp.touch()
        else:
            key = configuration_of(entry["file"]), flags(entry), entry["directory"]
            groups[key].setdefault(entry["file"], []).append(stamp)
    print(f"{total} sources, {sum(map(len, groups.values()))} to look at", flush=True)

    checker = Checker(work)
    for where in {where for where, _, _ in groups}:
        checker.configure(where)
    failed = False

    def run(item):
        nonlocal failed
        key, files = item
        where, (_, *command), directory = key
        passed, report = checker.check(where, command, directory, files)
        for file in passed:
            for stamp in groups[key][file]:
                stamp.touch()
        failed |= len(passed) < len(files)
        if report:
            print(report, flush=True)

    jobs = []
    for key, sources in groups.items():
        files = sorted(sources)
        count = -(-len(files) // MOST_TOGETHER)
        jobs += [(key, files[i * len(files) // count:(i + 1) * len(files) // count]) for i in range(count)]
    jobs.sort(key=lambda job: -len(job[1]))
    with ThreadPoolExecutor(len(os.sched_getaffinity(0))) as pool:
        list(pool.map(run, jobs))
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    main()
