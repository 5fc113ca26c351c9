"""One mutant: compiled, compared, linked and tried."""

import json
import os
import re
import resource
import shutil
import signal
import subprocess
import time
from pathlib import Path

import layers

NOT_A_MUTANT = "does not compile"
SAME_CODE = "same code"
KILLED_BY_COMPILER = "killed by a static assertion"
KILLED_BY_TEST = "killed by a test"
KILLED_BY_TIME = "killed by time"
SURVIVED = "survived"

_MEMORY = 4 << 30
_FILE_SIZE = 8 << 30  # a test makes a file that is too large to be read, most of it holes


class TimeIsUp(Exception):
    pass


def run(words, cwd, cpu_seconds, environment=None):
    """Runs a command, within a time of the processor; thrice and more that of the clock, as others may run too.
    returns  whether it succeeded
    throws   TimeIsUp"""

    def limit():
        os.setsid()
        resource.setrlimit(resource.RLIMIT_CPU, (int(cpu_seconds), int(cpu_seconds) + 2))
        resource.setrlimit(resource.RLIMIT_AS, (_MEMORY, _MEMORY))
        resource.setrlimit(resource.RLIMIT_FSIZE, (_FILE_SIZE, _FILE_SIZE))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

    process = subprocess.Popen(words, cwd=cwd, preexec_fn=limit, env=environment, stdin=subprocess.DEVNULL,
                               stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        status = process.wait(timeout=6 * cpu_seconds + 30)
    except subprocess.TimeoutExpired:
        raise TimeIsUp from None
    finally:
        # What it may have started ends with it.
        try:
            os.killpg(process.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        process.wait()
    if status == -signal.SIGXCPU:
        raise TimeIsUp
    return status == 0


def environment_for(folder):
    """What the tests are given: few cases of the properties, always the same ones."""
    names = dict(os.environ, TMPDIR=str(folder), LC_ALL="C.UTF-8", RC_PARAMS="seed=1 max_success=100")
    return names


class Trial:
    """Tries mutants, one at a time, in a folder of its own."""

    def __init__(self, room, folder, seconds):
        self.room = room
        self.folder = Path(folder)
        self.seconds = seconds  # processor time of every test when nothing is wrong

    def try_mutant(self, mutant, source):
        """returns  a verdict, and the test that decided it or an empty text"""
        shutil.rmtree(self.folder, ignore_errors=True)
        self.folder.mkdir(parents=True)
        overlay = self._overlay(mutant.file, mutant.apply(source))
        compiled = {}
        differs = False
        for test in layers.tests_of(mutant.file):
            objects = [name for name in self.room.objects[test] if mutant.file in self.room.made_of.get(name, ())]
            changed = {}
            for name in objects:
                if name not in compiled:
                    compiled[name], verdict = self._compile(name, overlay, len(compiled))
                    if verdict:
                        return verdict, ""
                if compiled[name]:
                    changed[name] = compiled[name]
            if not changed:
                continue
            differs = True
            verdict = self._try_test(test, changed)
            if verdict:
                return verdict, test
        return (SURVIVED if differs else SAME_CODE), ""

    # The compiler sees the mutant wherever it looks for the file.
    def _overlay(self, file, text):
        changed = self.folder / "mutant"
        changed.write_text(text)
        roots = sorted((self.room.build / "include_roots").glob(f"*/{file.split('/')[0]}"))
        places = [str(self.room.tree / file)] + [str(root.parent / file) for root in roots]
        overlay = self.folder / "overlay.json"
        overlay.write_text(json.dumps({
            "version": 0, "use-external-names": "false",
            "roots": [{"type": "file", "name": place, "external-contents": str(changed)} for place in places],
        }))
        return overlay

    def _compile(self, name, overlay, number):
        to = self.folder / f"{number}.o"
        words = list(self.room.compile[name])
        words[words.index("-o") + 1] = str(to)
        words[1:1] = ["-ivfsoverlay", str(overlay), "-Werror=return-type"]
        done = subprocess.run(words, cwd=self.room.build, capture_output=True, text=True, check=False)
        if done.returncode == 0:
            return (None if to.read_bytes() == self.room.object_to_compare(name) else to), None
        errors = [line for line in done.stderr.splitlines() if re.search(r"\berror: ", line)]
        asserted = bool(errors) and all("static_assert" in line for line in errors)
        return None, KILLED_BY_COMPILER if asserted else NOT_A_MUTANT

    def _try_test(self, test, changed):
        program = self.folder / "program"
        words = [str(changed.get(word, word)) for word in self.room.link[test]]
        words[words.index("-o") + 1] = str(program)
        # In front of the archives, so that what they hold of it is not taken.
        inside = [str(path) for name, path in changed.items() if name not in self.room.link[test]]
        words[1:1] = inside
        linked = subprocess.run(words, cwd=self.room.build, capture_output=True, check=False)
        if linked.returncode != 0:
            return NOT_A_MUTANT
        work = self.folder / "work"
        work.mkdir(exist_ok=True)
        for at, command in enumerate(layers.commands_of(test, str(program), self.room)):
            try:
                normal = self.seconds[test][at]
                if not run(command, work, 3 * normal + 10, environment_for(work)):
                    return KILLED_BY_TEST
            except TimeIsUp:
                return KILLED_BY_TIME
        return None


def measure(room, tests, folder):
    """Runs every test as it is.
    returns  the processor time of its commands
    throws   RuntimeError  when one fails"""
    seconds = {}
    shutil.rmtree(folder, ignore_errors=True)
    Path(folder).mkdir(parents=True)
    for test in tests:
        seconds[test] = []
        begin = time.time()
        for command in layers.commands_of(test, room.program(layers.target_of(test)), room):
            before = resource.getrusage(resource.RUSAGE_CHILDREN)
            if not run(command, folder, 600, environment_for(folder)):
                raise RuntimeError(f"{test} fails without any mutant: {' '.join(command)}")
            after = resource.getrusage(resource.RUSAGE_CHILDREN)
            seconds[test].append(after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime)
        print(f"{test}: {sum(seconds[test]):.1f} s of the processor, {time.time() - begin:.1f} s", flush=True)
    return seconds
