"""Starts the screen reader Orca beside others of the same user, each of which listens on a display of its own.

    another_orca.py COMMAND [OPTION...]    COMMAND is the path of orca

By itself it gives way to any other, wherever that one runs.
"""

import sys
from importlib.machinery import SourceFileLoader
from importlib.util import module_from_spec, spec_from_loader

path = sys.argv.pop(1)
command = module_from_spec(spec_from_loader("orca_command", SourceFileLoader("orca_command", path)))
command.__loader__.exec_module(command)
command.otherOrcas = lambda: []
sys.exit(command.main())
