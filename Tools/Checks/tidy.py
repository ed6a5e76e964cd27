#!/usr/bin/env python3
"""Runs clang-tidy over every source of ours that a build directory compiles.

usage: tidy.py BUILD_DIRECTORY

A source passes without being looked at again while its compile command, the checks and every file of the repository that
it is made of are what they were when it last passed; the stamps are in BUILD_DIRECTORY/tidy.
"""

import hashlib
import json
import os
import shlex
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

TIDY = "clang-tidy-14"
FOLDERS = ("Sources", "Tools", "Tests", "Benchmarks")
ROOT = Path(__file__).resolve().parents[2]


def is_ours(path):
    return path.is_relative_to(ROOT) and path.relative_to(ROOT).parts[0] in FOLDERS


def dependencies(build):
    """The repository's own files that each object was made of, as the compiler reported them to ninja."""
    result, current = {}, None
    text = subprocess.run(["ninja", "-C", build, "-t", "deps"], capture_output=True, text=True, check=True).stdout
    for line in text.splitlines():
        if line.startswith(" "):
            path = Path(os.path.normpath(build / line.strip()))
            if is_ours(path):
                current.append(path)
        elif ": #deps" in line:
            current = result.setdefault(line.split(": #deps")[0], [])
    return result


def output(entry):
    words = shlex.split(entry["command"])
    return words[words.index("-o") + 1]


def fingerprint(entry, files, common):
    digest = hashlib.sha256(common)
    digest.update(entry["command"].encode())
    for file in sorted({Path(entry["file"]), *files}):
        digest.update(f"\n{file.relative_to(ROOT)}\n".encode())
        digest.update(file.read_bytes())
    return digest.hexdigest()


def configurations():
    return [ROOT / ".clang-tidy", *(file for folder in FOLDERS for file in sorted((ROOT / folder).rglob(".clang-tidy")))]


def check(build, file):
    run = subprocess.run([TIDY, "-p", build, "--quiet", "--extra-arg=-Wno-unknown-warning-option", file],
                         capture_output=True, text=True)
    noise = "warnings generated", "warning generated", "warnings treated as errors"
    errors = [line for line in run.stderr.splitlines() if not any(word in line for word in noise)]
    return run.returncode == 0, "\n".join([run.stdout.rstrip(), *errors]).strip()


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    build = Path(sys.argv[1]).resolve()
    stamps = build / "tidy"
    stamps.mkdir(exist_ok=True)
    version = subprocess.run([TIDY, "--version"], capture_output=True, text=True, check=True).stdout
    common = version.encode() + b"".join(file.read_bytes() for file in configurations())
    made_of = dependencies(build)

    todo = {}
    total = 0
    for entry in json.loads((build / "compile_commands.json").read_text()):
        if not is_ours(Path(entry["file"])):
            continue
        total += 1
        stamp = stamps / fingerprint(entry, made_of.get(output(entry), ()), common)
        if not stamp.exists():
            todo.setdefault(entry["file"], []).append(stamp)
    print(f"{total} sources, {len(todo)} to look at", flush=True)

    failed = 0

    def run(item):
        nonlocal failed
        file, passed_stamps = item
        passed, report = check(build, file)
        if passed:
            for stamp in passed_stamps:
                stamp.touch()
        else:
            failed += 1
            print(f"{Path(file).relative_to(ROOT)}:\n{report}", flush=True)

    with ThreadPoolExecutor(len(os.sched_getaffinity(0))) as pool:
        list(pool.map(run, todo.items()))
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    main()
