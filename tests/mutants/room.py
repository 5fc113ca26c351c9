"""A copy of the tree with a build of its own, where mutants are made and tried. The checkout is only read."""

import json
import os
import re
import shlex
import shutil
import subprocess
import threading
from pathlib import Path

import layers

_CONFIGURATION = [
    "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O1", "-DCMAKE_CXX_COMPILER=clang++",
    "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld", "-DCALVORO_BUILD_WINDOW=OFF", "-DCALVORO_STATIC_RUNTIME=OFF",
    "-DCALVORO_PRECOMPILE=ON",
]


def file_of_tree(path, tree, build):
    """Which file of a tree the compiler means that names a path, from its build folder or from the root; None for one
    that is not of the tree. An include root holds links to the folders, by their names."""
    path = os.path.normpath(Path(build) / path)
    below = re.fullmatch(re.escape(f"{build}/include_roots/") + "[^/]+/(.*)", path)
    if below:
        return below.group(1)
    return path.removeprefix(f"{tree}/") if path.startswith(f"{tree}/") else None


class Room:
    def __init__(self, checkout, place):
        self.checkout = Path(checkout)
        self.place = Path(place).resolve()
        self.tree = self.place / "tree"
        self.build = self.place / "build"
        self.lock = threading.Lock()

    def prepare(self, tests, jobs):
        """Brings the copy up to date and builds the programs of some tests."""
        self._copy()
        if not (self.build / "build.ninja").exists():
            subprocess.run(["cmake", "-G", "Ninja", "-S", self.tree, "-B", self.build, *_CONFIGURATION], check=True,
                           stdout=subprocess.DEVNULL)
        targets = [layers.target_of(test) for test in tests]
        targets += layers.HELPERS if "command" in tests else []
        subprocess.run(["cmake", "--build", self.build, "-j", str(jobs), "--target", *targets], check=True)
        self._read_commands(tests)
        self._read_dependencies()
        self.compared = {}
        shutil.rmtree(self.place / "compared", ignore_errors=True)
        (self.place / "compared").mkdir()

    def object_to_compare(self, name):
        """The bytes of an object as it is without a mutant, compiled by the very command that a mutant is: a
        launcher in front of the compiler may have changed the one that was built."""
        with self.lock:
            if name not in self.compared:
                to = self.place / "compared" / f"{len(self.compared)}.o"
                words = list(self.compile[name])
                words[words.index("-o") + 1] = str(to)
                subprocess.run(words, cwd=self.build, check=True, capture_output=True)
                self.compared[name] = to.read_bytes()
            return self.compared[name]

    def check_made_of(self, files):
        """Every change of a file would be taken for the same code if no object were known to be made of it.
        throws   RuntimeError  naming such a file"""
        made_of = set().union(*(self.made_of.get(name, set()) for names in self.objects.values() for name in names))
        for file in files:
            if file not in made_of:
                raise RuntimeError(f"no object of the tests is made of {file}")

    def leave_out(self, test):
        """Has a test do without being run."""
        self.objects[test] = []

    def program(self, target):
        found = [path for path in self.build.glob(f"**/{target}") if path.is_file() and "CMakeFiles" not in path.parts]
        return str(found[0])

    def _copy(self):
        listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard"], cwd=self.checkout, check=True,
                                capture_output=True, text=True).stdout.splitlines()
        wanted = {name for name in listed if (self.checkout / name).is_file()}
        for path in [path for path in self.tree.rglob("*") if path.is_file()] if self.tree.exists() else []:
            if str(path.relative_to(self.tree)) not in wanted:
                path.unlink()
        for name in wanted:
            to = self.tree / name
            contents = (self.checkout / name).read_bytes()
            if to.exists() and to.read_bytes() == contents:
                continue
            to.parent.mkdir(parents=True, exist_ok=True)
            to.write_bytes(contents)
            to.chmod((self.checkout / name).stat().st_mode)

    def _read_commands(self, tests):
        # object -> how it is compiled; test -> how its program is linked, and of which objects.
        self.compile = {}
        for entry in json.loads((self.build / "compile_commands.json").read_text()):
            words = shlex.split(entry["command"])
            while not words[0].endswith("clang++"):
                words.pop(0)
            self.compile[words[words.index("-o") + 1]] = words
        self.link = {}
        self.objects = {}
        for test in tests:
            lines = self._ninja("-t", "commands", layers.target_of(test)).splitlines()
            line = next(line for line in reversed(lines) if " -fuse-ld=lld " in line)
            words = shlex.split(next(part for part in line.split(" && ") if " -fuse-ld=lld " in part))
            self.link[test] = words
            self.objects[test] = self._objects_of(words)

    def _objects_of(self, link):
        objects = [word for word in link if word.endswith(".o")]
        for archive in (word for word in link if word.endswith(".a") and not word.startswith("/")):
            folder = Path(archive).parent / "CMakeFiles" / (Path(archive).stem.removeprefix("lib") + ".dir")
            objects += [name for name in self.compile if name.startswith(f"{folder}/")]
        return objects

    def _read_dependencies(self):
        # object -> the files of the tree that it is made of
        self.made_of = {}
        name = None
        for line in self._ninja("-t", "deps").splitlines():
            if not line.startswith(" "):
                name = line.split(":")[0]
                self.made_of[name] = set()
                continue
            file = file_of_tree(line.strip(), self.tree, self.build)
            if file:
                self.made_of[name].add(file)
        for name, words in self.compile.items():
            if words[-1].startswith(str(self.tree)):
                self.made_of.setdefault(name, set()).add(str(Path(words[-1]).relative_to(self.tree)))

    def _ninja(self, *words):
        return subprocess.run(["ninja", "-C", self.build, "--quiet", *words], check=True, capture_output=True, text=True).stdout
