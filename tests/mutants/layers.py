"""Which files are mutated, and which tests belong to them, the likeliest to notice first."""

import fnmatch
from pathlib import Path

_COMMAND = ["cli_test", "command"]

# By folder; the longest that fits a file counts.
_TESTS = {
    "calendar": ["calendar_test", "calendar_properties_test", "datetext_test", "quicktext_test", "compute_test", "cli_test"],
    "datetext": ["datetext_test", "quicktext_test", "compute_test", "datetext_properties_test", "list_lines_test",
                 "settings_file_test"] + _COMMAND,
    "csvtext": ["csvtext_test", "list_lines_test"] + _COMMAND,
    "quicktext": ["quicktext_test", "quicktext_properties_test"] + _COMMAND,
    "text": ["text_test", "text_out_of_memory_test", "compute_test", "settings_file_test"] + _COMMAND,
    "compute": ["compute_test", "compute_properties_test"] + _COMMAND,
    "cli": _COMMAND,
    "mainwindow/settings": ["settings_file_test", "SettingsFileFuzz"],
    "windows/list/lines": ["list_lines_test", "ListTextFuzz"],
}

# A program that is no test itself, and is run by others.
PROGRAMS = {"command": "calvoro-cli"}
HELPERS = ["TranscriptRunner"]

# Nothing but the start of a program.
_LEFT_OUT = ["cli/main.cpp"]


def files_of(tree):
    """Every file that is mutated, as paths below the tree."""
    found = []
    for folder in _TESTS:
        pattern = "**/*" if folder == "cli" else "*"
        for path in sorted((Path(tree) / folder).glob(pattern)):
            if path.suffix in (".cpp", ".h"):
                found.append(str(path.relative_to(tree)))
    return [file for file in found if file not in _LEFT_OUT]


def fits(file, patterns):
    return not patterns or any(fnmatch.fnmatch(file, pattern) or file.startswith(pattern + "/") for pattern in patterns)


def tests_of(file):
    """The tests of a file, in the order in which they are run."""
    folders = [folder for folder in _TESTS if file.startswith(folder + "/")]
    return _TESTS[max(folders, key=len)]


def all_tests():
    return sorted({test for tests in _TESTS.values() for test in tests})


def target_of(test):
    """The target of the build that makes a test's program."""
    return PROGRAMS.get(test, test)


def commands_of(test, program, room):
    """The command lines that run a test with a program."""
    tree = room.tree
    if test == "command":
        runner = room.program("TranscriptRunner")
        transcripts = sorted((tree / "tests/cli/transcripts").glob("*.txt"))
        python = [["python3", "-B", str(tree / f"tests/cli/{name}_test.py"), program] for name in ("columns", "csv")]
        return [[runner, program, str(transcript)] for transcript in transcripts] + python
    if test.endswith("Fuzz"):
        return [[program, str(tree / "tests/fuzz/corpus" / test)]]
    return [[program, "--gtest_fail_fast", "--gtest_brief=1"]]
