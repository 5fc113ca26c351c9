"""Changes the program's own code a little, here and there, and looks whether a test notices.

See scripts/mutants for how it is called.
"""

import argparse
import sys
import threading
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import equivalents
import layers
import mutations
import results
import room
import sample
import trial

_CHECKOUT = Path(__file__).resolve().parents[2]
_GOOD_SHARE = 95


def read_options(words):
    parser = argparse.ArgumentParser(prog="scripts/mutants", description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("--seed", type=int, default=1, help="draws the sample (1)")
    parser.add_argument("--sample", type=int, default=600, help="how many mutants over all files; 0: every one (600)")
    parser.add_argument("--files", nargs="*", default=[], metavar="PATTERN", help="only the share of these files or folders")
    parser.add_argument("--jobs", type=int, default=2, help="how many are tried at a time (2)")
    parser.add_argument("--place", default=str(_CHECKOUT / "build/mutants"), help="where the copy is built (build/mutants)")
    parser.add_argument("--results", help="a file that is gone on with (PLACE/results-SEED.jsonl)")
    parser.add_argument("--without", nargs="*", default=[], metavar="TEST", help="tests that are not run")
    parser.add_argument("--again", action="store_true", help="try those once more that survived")
    parser.add_argument("--minutes", type=float, default=0, help="begin with no further one after this time")
    parser.add_argument("--report", action="store_true", help="tell what is known, and try nothing")
    return parser.parse_args(words)


class Run:
    def __init__(self, options):
        self.options = options
        self.sources = {file: (_CHECKOUT / file).read_text() for file in layers.files_of(_CHECKOUT)}
        enums = mutations.enumerators(self.sources.values())
        self.mutants = {file: mutations.mutants_of(file, source, enums) for file, source in self.sources.items()}
        entries = equivalents.read_entries((Path(__file__).parent / "equivalents.txt").read_text())
        equivalents.check_entries(entries, [one for of_file in self.mutants.values() for one in of_file])
        self.equivalent = {entry.key for entry in entries}
        counts = {file: len(of_file) for file, of_file in self.mutants.items()}
        self.shares = sample.shares(counts, options.sample or sum(counts.values()))
        path = options.results or Path(options.place) / f"results-{options.seed}.jsonl"
        self.results = results.Results(path)
        self.end = None
        self._lock = threading.Lock()

    def files(self):
        chosen = [file for file in self.shares if layers.fits(file, self.options.files)]
        return sorted(chosen, key=lambda file: -self.shares[file])

    def draw(self, file, tried=None):
        """The share of a file, as far as it is known or can be tried; those that do not compile are no mutants."""
        drawn = []
        for mutant in sample.order(file, self.mutants[file], self.options.seed):
            if len(drawn) == self.shares[file]:
                break
            if tried:
                tried(mutant)
            verdict = self.results.verdict(mutant)
            if verdict is not None and verdict != trial.NOT_A_MUTANT:
                drawn.append(mutant)
            elif verdict is None:
                break
        return drawn

    def try_all(self):
        tests = sorted({test for file in self.files() for test in layers.tests_of(file)} - set(self.options.without))
        place = room.Room(_CHECKOUT, self.options.place)
        place.prepare(tests, self.options.jobs)
        place.check_made_of(self.files())
        for test in self.options.without:
            place.leave_out(test)
        seconds = trial.measure(place, tests, place.place / "measured")
        if self.options.minutes:
            self.end = time.time() + 60 * self.options.minutes
        local = threading.local()
        numbers = iter(range(self.options.jobs))

        def try_mutant(mutant):
            verdict = self.results.verdict(mutant)
            again = self.options.again and verdict == trial.SURVIVED and mutant.key not in self.equivalent
            if (verdict is not None and not again) or (self.end and time.time() > self.end):
                return
            if not hasattr(local, "trial"):
                with self._lock:
                    local.trial = trial.Trial(place, place.place / f"trial-{next(numbers)}", seconds)
            begin = time.time()
            verdict, test = local.trial.try_mutant(mutant, self.sources[mutant.file])
            self.results.add(mutant, verdict, test, time.time() - begin)
            if verdict != trial.NOT_A_MUTANT:
                print(f"{verdict:28} {mutant.file}:{mutant.number}: {mutant.change}", flush=True)

        with ThreadPoolExecutor(self.options.jobs) as pool:
            list(pool.map(lambda file: self.draw(file, try_mutant), self.files()))

    def report(self):
        drawn = [mutant for file in self.files() for mutant in self.draw(file)]
        wanted = sum(self.shares[file] for file in self.files())
        print(f"{len(drawn)} of {wanted} mutants tried, of {sum(map(len, self.mutants.values()))} that could be drawn")
        return results.report(drawn, self.results, self.equivalent)


def main(words):
    try:
        run = Run(read_options(words))
        if not run.options.report:
            run.try_all()
    except (equivalents.BadList, RuntimeError) as error:
        print(error, file=sys.stderr)
        return 2
    share = run.report()
    return 0 if share is not None and share >= _GOOD_SHARE else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
