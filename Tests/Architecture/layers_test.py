#!/usr/bin/env python3
"""Plants one violation at a time into a small tree and expects exactly that one to be found."""

import tempfile
import unittest
from pathlib import Path

from layers import problems

CLEAN = {
    "CMakeLists.txt": """
        app_module(support HEADERS Support/Ring.h Support/Realtime.h)
        app_module(platform UNITS Platform/Host DEPENDS support)
        app_module(controllers UNITS App/Mute HEADERS Audio/Engine.h)
        app_module(player UNITS Player/Mixing/Mixer)""",
    "Platform/Linux/Linux.cmake": "app_module(desktop HEADERS Platform/Linux/Tap.h) # HEADERS Platform/Host.h",
    "Support/Ring.h": "#pragma once\n#include <atomic>\n",
    "Support/Realtime.h": "#ifdef __has_cpp_attribute\n#endif\n",
    "Platform/Host.h": '#include "Support/Ring.h"\n',
    "Platform/Host.cpp": '#include "Platform/Host.h"\n#include <cstdio>\n',
    "Platform/Memory/Clock.cpp": '#include "Platform/Host.h"\n',
    "Platform/Linux/Tap.h": '#include "Player/Mixing/Mixer.h"\n#include <xcb/xcb.h>\n#if WITH_TAP\n#endif\n',
    "Audio/Engine.h": '#include "App/Mute.h"\n',
    "App/Mute.h": '#include "Platform/Host.h"\n',
    "App/Mute.cpp": '#include "App/Mute.h"\n#include "Audio/Engine.h"\n',
    "Player/Mixing/Mixer.h": '#include "Support/Ring.h"\n',
    "Player/Mixing/Mixer.cpp": '#include "Player/Mixing/Mixer.h"\n#include <soxr.h>\n',
    "main.cpp": '#include "Platform/Linux/Tap.h"\n#include "App/Mute.h"\n#ifdef __linux__\n#endif\n',
}

# file, what is added to it, what must be said about it
PLANTED = [
    ("Support/Ring.h", '#include "Platform/Host.h"', "Support must not include Platform"),
    ("Platform/Host.h", '#include "App/Mute.h"', "Platform must not include App"),
    ("Platform/Host.cpp", '#include "Platform/Linux/Tap.h"', "Platform must not include Platform/Linux"),
    ("Platform/Memory/Clock.cpp", '#include "Player/Mixing/Mixer.h"', "Platform/Memory must not include Player"),
    ("Platform/Linux/Tap.h", '#include "Audio/Engine.h"', "Platform/Linux must not include Audio"),
    ("Player/Mixing/Mixer.cpp", '#include "Audio/Engine.h"', "Player must not include Audio"),
    ("Player/Mixing/Mixer.cpp", "#include <pipewire/stream.h>", "Player must not include <pipewire/stream.h>"),
    ("Audio/Engine.h", '#include "Player/Mixing/Mixer.h"', "Audio must not include Player"),
    ("Audio/Engine.h", '#  include "Platform/Memory/Clock.cpp"', "Audio must not include Platform/Memory"),
    ("App/Mute.cpp", "#include <QObject>", "App must not include <QObject>"),
    ("App/Mute.cpp", "#include <unistd.h>", "App must not include <unistd.h>"),
    ("App/Mute.cpp", '#include "Mute.h"', "not a file of a known layer"),
    ("App/Mute.cpp", "#ifdef __linux__", "conditional compilation"),
    ("Player/Mixing/Mixer.h", "  # if 0", "conditional compilation"),
    ("App/Unlisted.h", "#pragma once", "UNITS or HEADERS of no app_module"),
    ("Extra/New.cpp", "", "belongs to no known layer"),
]


class Layers(unittest.TestCase):
    def found(self, changes=()):
        with tempfile.TemporaryDirectory() as directory:
            root = Path(directory)
            for name, text in {**CLEAN, **dict(changes)}.items():
                path = root / "Sources/Tocca" / name
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8")
            return list(problems(root))

    def test_a_clean_tree_has_no_problem(self):
        self.assertEqual(self.found(), [])

    def test_each_planted_violation_is_the_one_found(self):
        for file, line, expected in PLANTED:
            with self.subTest(file=file, line=line):
                found = self.found({file: CLEAN.get(file, "") + line + "\n"})
                self.assertEqual(len(found), 1, found)
                self.assertIn(expected, found[0])
                self.assertIn(file, found[0])

    def test_a_unit_includes_its_own_header_first(self):
        found = self.found({"App/Mute.cpp": '#include "Audio/Engine.h"\n#include "App/Mute.h"\n'})
        self.assertEqual(found, ["Sources/Tocca/App/Mute.h:1: is not what its source includes first, "
                                 "so nothing proves that it compiles alone"])


if __name__ == "__main__":
    unittest.main()
