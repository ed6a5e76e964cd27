#!/usr/bin/env python3
"""Checks what the build cannot: who may include whom, and where conditional compilation may stand.

usage: layers.py REPOSITORY    prints one line per violation; the exit status is 1 when there is any
"""

import re
import sys
from pathlib import Path

SOURCES = Path("Sources/Tocca")

CONTROLLERS = {"Audio", "Keyboard", "App", "UI"}

# What each layer may include of our own, besides itself.
LAYERS = {
    "Support": set(),
    "Platform": {"Support"},
    "Player": {"Support", "Platform"},
    "UI/views": {"Support", "Platform"} | CONTROLLERS,
    **{name: {"Support", "Platform"} | CONTROLLERS for name in CONTROLLERS},
    "Platform/Memory": {"Support", "Platform"},
    "Platform/Linux": {"Support", "Platform", "Player"},
}
LAYERS["main"] = set(LAYERS)

# Folders of Platform that hold interfaces; its others are implementations.
INTERFACES = {"Desktop"}

# Headers of libraries and of the processor that a layer may use besides the standard library's.
FOREIGN = {
    "Support": {"unicode/normalizer2.h", "unicode/uchar.h", "unicode/unistr.h"},
    "Audio": {"json/json.h", "simdjson.h"},
    "Player": {"mpg123.h", "sndfile.h", "soxr.h", "immintrin.h", "xmmintrin.h"},
}
UNRESTRICTED = {"Platform/Linux", "UI/views", "main"}
BRANCHING = {"Platform/Linux", "main"}

# The compiler is asked whether it knows an attribute; there is no other way to ask.
CONDITIONAL = {SOURCES / "Support/Realtime.h"}

STANDARD = set(
    """algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv chrono cinttypes climits
    clocale cmath codecvt compare complex concepts condition_variable coroutine csetjmp csignal cstdarg cstddef cstdint
    cstdio cstdlib cstring ctime cuchar cwchar cwctype deque exception execution filesystem format forward_list fstream
    functional future initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map memory
    memory_resource mutex new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator semaphore
    set shared_mutex source_location span sstream stack stdexcept stop_token streambuf string string_view strstream
    syncstream system_error thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility valarray
    variant vector version""".split()
)

INCLUDE = re.compile(r'^\s*#\s*include\s*(?:<([^>]+)>|"([^"]+)")')
CONDITION = re.compile(r"^\s*#\s*(if|ifdef|ifndef|elif|else)\b")
MODULE = re.compile(r"\b(?:app_module|set|list)\s*\(([^)]*)\)")
HEADER_LISTS = {"HEADERS": "", "TOCCA_UI_HEADERS": "UI/"}  # and what their names are relative to
UNIT_LISTS = {"UNITS": "", "TOCCA_UI_UNITS": "UI/"}

# The parts of the interface that stand on Qt.
VIEW = re.compile(r"^UI/((Access|Quick|Controls|Symbols)/.*|(.*ViewModel|Interface)\.(h|cpp))$")


def layer(path):
    """The layer of a file or include below Sources/Tocca; None for what belongs to none."""
    parts = Path(path).parts
    if len(parts) == 1:
        return "main" if parts[0] == "main.cpp" else None
    if VIEW.match(str(path)):
        return "UI/views"
    if parts[0] == "Platform" and len(parts) > 2 and parts[1] not in INTERFACES:
        return "/".join(parts[:2]) if "/".join(parts[:2]) in LAYERS else None
    return parts[0] if parts[0] in LAYERS else None


def include_problem(own, path, root):
    target = layer(path)
    if target is None or not (root / SOURCES / path).is_file():
        return f'"{path}" is not a file of a known layer'
    if target != own and target not in LAYERS[own]:
        return f'{own} must not include {target} ("{path}")'
    return None


def library_problem(own, header):
    if own in UNRESTRICTED or header in STANDARD or header in FOREIGN.get(own, ()):
        return None
    return f"{own} must not include <{header}>"


def file_problems(root, file):
    own = layer(file.relative_to(root / SOURCES))
    if own is None:
        yield 1, "belongs to no known layer"
        return
    mayBranch = own in BRANCHING or file.relative_to(root) in CONDITIONAL
    for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
        if CONDITION.match(line) and not mayBranch:
            yield number, "conditional compilation outside main.cpp and Platform/Linux"
        match = INCLUDE.match(line)
        problem = match and (library_problem(own, match[1]) if match[1] else include_problem(own, match[2], root))
        if problem:
            yield number, problem


def listed(root):
    """Every header without a source, and every unit, that stands in a list of the build."""
    headers, units = set(), set()
    for file in [*root.glob(f"{SOURCES}/**/*.cmake"), *root.glob(f"{SOURCES}/**/CMakeLists.txt")]:
        text = re.sub(r"#.*", "", file.read_text(encoding="utf-8"))
        for module in MODULE.findall(text):
            keyword = None
            for word in module.split():
                if re.fullmatch(r"[A-Z_]+", word):
                    keyword = word
                elif keyword in HEADER_LISTS:
                    headers.add(HEADER_LISTS[keyword] + word)
                elif keyword in UNIT_LISTS:
                    units.add(UNIT_LISTS[keyword] + word)
    return headers, units


def header_problem(root, name, headers, units):
    """What keeps a header from being compiled alone somewhere."""
    if name in headers:
        return None
    if name.removesuffix(".h") not in units:
        return "is in the UNITS or HEADERS of no app_module, so nothing proves that it compiles alone"
    text = (root / SOURCES / name).with_suffix(".cpp").read_text(encoding="utf-8")
    first = next((match[2] for match in map(INCLUDE.match, text.splitlines()) if match), None)
    return None if first == name else "is not what its source includes first, so nothing proves that it compiles alone"


def problems(root):
    headers, units = listed(root)
    for file in sorted((root / SOURCES).rglob("*")):
        if file.suffix not in {".h", ".cpp"}:
            continue
        name = file.relative_to(root)
        for number, problem in file_problems(root, file):
            yield f"{name}:{number}: {problem}"
        problem = file.suffix == ".h" and header_problem(root, str(file.relative_to(root / SOURCES)), headers, units)
        if problem:
            yield f"{name}:1: {problem}"


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    found = list(problems(Path(sys.argv[1])))
    for line in found:
        print(line)
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
