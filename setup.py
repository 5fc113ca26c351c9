"""Builds the Python module: `pip install --no-build-isolation .` (docs/python.md). The extension is built by
CMake, as everything else is."""

import os
import pathlib
import re
import subprocess
import sys

from setuptools import Extension, setup
from setuptools.command.build_ext import build_ext

ROOT = pathlib.Path(__file__).resolve().parent


def project_version():
    text = (ROOT / "CMakeLists.txt").read_text(encoding="utf-8")
    return re.search(r"project\(calvoro VERSION ([0-9.]+)", text).group(1)


class BuildByCMake(build_ext):
    def build_extension(self, ext):
        target = pathlib.Path(self.get_ext_fullpath(ext.name)).resolve()
        # A folder of choice stays between builds, so that nothing is compiled twice.
        tree = pathlib.Path(os.environ.get("CALVORO_PYTHON_TREE", self.build_temp)).resolve()
        subprocess.run(
            ["cmake", "-G", "Ninja", "-S", str(ROOT), "-B", str(tree), "-DCMAKE_BUILD_TYPE=Release",
             "-DCALVORO_BUILD_PYTHON=ON", "-DCALVORO_BUILD_WINDOW=OFF", "-DCALVORO_BUILD_TESTS=OFF",
             "-DCALVORO_JOIN_SOURCES=ON",
             f"-DCALVORO_PYTHON={sys.executable}"], check=True)
        subprocess.run(["cmake", "--build", str(tree), "--target", "calvoro_python"], check=True)
        target.parent.mkdir(parents=True, exist_ok=True)
        self.copy_file(str(next((tree / "python" / "calvoro").glob("_engine*.so"))), str(target))


setup(version=project_version(), ext_modules=[Extension("calvoro._engine", sources=[])],
      cmdclass={"build_ext": BuildByCMake})
