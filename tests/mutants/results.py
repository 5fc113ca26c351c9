"""What was found out about mutants, kept in a file, line by line, so that a run can go on where it ended."""

import json
import threading
from collections import Counter
from pathlib import Path

import trial


class Results:
    def __init__(self, path):
        self.path = Path(path)
        self.found = {}
        self._lock = threading.Lock()
        if self.path.exists():
            for line in self.path.read_text().splitlines():
                result = json.loads(line)
                self.found[result["key"]] = result

    def add(self, mutant, verdict, test, seconds):
        result = {"key": mutant.key, "verdict": verdict, "test": test, "seconds": round(seconds, 1)}
        with self._lock:
            self.found[mutant.key] = result
            self.path.parent.mkdir(parents=True, exist_ok=True)
            with self.path.open("a") as file:
                file.write(json.dumps(result) + "\n")

    def verdict(self, mutant):
        """None when nothing is known of it."""
        result = self.found.get(mutant.key)
        return result["verdict"] if result else None


def report(sample, results, equivalent):
    """Tells what became of a sample.
    sample      the mutants that were drawn and compile
    equivalent  keys of those that are listed as changing nothing
    returns     the share of those that can change anything that was killed, in percent; None without any"""
    counts = Counter()
    survivors = []
    for mutant in sample:
        verdict = results.verdict(mutant)
        if mutant.key in equivalent and verdict == trial.SURVIVED:
            verdict = "listed as equivalent"
        counts[verdict] += 1
        if verdict == trial.SURVIVED:
            survivors.append(mutant)
    for mutant in survivors:
        print(f"SURVIVED {mutant.file}:{mutant.number}: {mutant.change}\n    {mutant.line}")
    for verdict, count in sorted(counts.items()):
        print(f"{count:6} {verdict}")
    killed = sum(counts[one] for one in (trial.KILLED_BY_COMPILER, trial.KILLED_BY_TEST, trial.KILLED_BY_TIME))
    able = killed + len(survivors)
    if not able:
        return None
    share = 100 * killed / able
    print(f"{len(sample)} mutants, {able} of them can change something, {killed} killed: {share:.1f} %")
    return share
