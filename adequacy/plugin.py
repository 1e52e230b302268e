"""The plug-in built once more, in whole or in part, beside the release build, and test-plugin run against that.

The program finds the library by LD_LIBRARY_PATH, so neither the tree nor the release build is touched, and what costs
most, the tests, is not compiled again. `commands` are those of the release build.
"""
import collections
import json
import os
import shlex
import subprocess
import time

TREE = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
BUILD = os.path.join(TREE, "build", "release")
ROOM = os.path.join("DaceL3Unicast", "DaceFapNiPlugin")


def sources():
    return sorted(os.path.join(ROOM, file) for file in os.listdir(os.path.join(TREE, ROOM)) if file.endswith(".cpp"))


class Library:
    """Compiles sources by the commands of the release build, and links them in place of its objects."""

    def __init__(self, folder):
        self.folder = folder
        os.makedirs(os.path.join(folder, "lib"), exist_ok=True)
        told = subprocess.run(["ninja", "-C", BUILD, "-t", "commands", "L3SmPlugin"], capture_output=True, text=True, check=True)
        lines = told.stdout.splitlines()
        self.link_command = next(line for line in reversed(lines) if "-o lib/libL3SmPlugin.so" in line)
        self.commands = {}
        for line in lines:
            words = shlex.split(line)
            if "-c" in words:
                self.commands[os.path.relpath(words[words.index("-c") + 1], TREE)] = words

    def compile(self, source, into, text=None, options=()):
        """`text` is compiled as if it stood in the source. Whether it compiles."""
        words = [word for word in self.commands[source] if "ccache" not in word and not word.startswith("-W")]
        for option in ("-MT", "-MF"):
            place = words.index(option)
            del words[place:place + 2]
        words.remove("-MD")
        original = os.path.join(TREE, source)
        if text is not None:
            given = os.path.join(self.folder, "broken.cpp")
            with open(given, "w", encoding="utf-8") as out:
                out.write(f'#line 1 "{original}"\n{text}')
            words[words.index("-c") + 1] = given
            words += ["-iquote", os.path.dirname(original)]
        words[words.index("-o") + 1] = into
        return subprocess.run(words + ["-w", *options], cwd=BUILD, capture_output=True).returncode == 0

    def link(self, objects, options=""):
        """`objects` by source, the others are the release build's."""
        command = self.link_command
        for source, built in objects.items():
            words = self.commands[source]
            command = command.replace(words[words.index("-o") + 1] + " ", built + " ", 1)
        command = command.replace("-o lib/libL3SmPlugin.so", f"{options} -o {self.folder}/lib/libL3SmPlugin.so", 1)
        return subprocess.run(command, shell=True, cwd=BUILD, capture_output=True).returncode == 0


class Tests:
    """test-plugin in pieces, each a process: a suite, or a test where its suite doesn't go together."""

    def __init__(self, folder):
        self.program = os.path.join(BUILD, "bin", "test-plugin")
        self.seconds = {}
        # Which pieces there are is remembered as long as neither the tests nor the plug-in are built anew.
        known = os.path.join(folder, "pieces.json")
        stamp = [os.path.getmtime(self.program), os.path.getmtime(BUILD + "/lib/libL3SmPlugin.so")]
        if os.path.exists(known):
            with open(known, encoding="utf-8") as file:
                told = json.load(file)
            if told["stamp"] == stamp:
                self.seconds = told["seconds"]
                return
        listed = subprocess.run([self.program, "--gtest_list_tests"], capture_output=True, text=True, check=True).stdout
        suites = collections.defaultdict(list)
        for line in listed.splitlines():
            name = line.split("#")[0].strip()
            if not line.startswith(" "):
                suite = name
            else:
                suites[suite].append(suite + name)
        for suite, tests in suites.items():
            # A toggle is read once in a process, so some tests don't go with others.
            for piece in [suite + "*"] if self.measure(suite + "*") else tests:
                self.measure(piece)
        os.makedirs(folder, exist_ok=True)
        with open(known, "w", encoding="utf-8") as file:
            json.dump({"stamp": stamp, "seconds": self.seconds}, file)

    def measure(self, piece):
        begin = time.time()
        passes = self.passes(piece, BUILD + "/lib", 120)
        if passes:
            self.seconds[piece] = time.time() - begin
        return passes

    def passes(self, piece, library, seconds=None, **variables):
        environment = dict(os.environ, LD_LIBRARY_PATH=library, **{"RC_PARAMS": "seed=20", **variables})
        try:
            run = subprocess.run([self.program, "--gtest_filter=" + piece, "--gtest_brief=1", "--gtest_fail_fast"],
                                 capture_output=True, env=environment, timeout=seconds or 20 + 10 * self.seconds[piece])
        except subprocess.TimeoutExpired:
            return False
        return run.returncode == 0
