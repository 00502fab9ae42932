"""The wheel: the package that CMake builds, with the library inside its extension module."""
import os
import re
import shutil
import subprocess
import sys
from pathlib import Path

from setuptools import Extension, setup
from setuptools.command.build_ext import build_ext

ROOT = Path(__file__).resolve().parent.parent
HEADER = (ROOT / 'include' / 'JournalServiceHelper.h').read_text()


WORK = ROOT / 'build' / 'wheel'
WORK.mkdir(parents=True, exist_ok=True)


class CMakeBuild(build_ext):
    def run(self):
        """In the folder of an earlier build, if one is given."""
        build = Path(
            os.environ.get('JOURNAL_PYTHON_BUILD', Path(self.build_temp) / 'cmake')
        ).resolve()
        subprocess.check_call(
            [
                'cmake',
                '-G',
                'Ninja',
                '-S',
                ROOT,
                '-B',
                build,
                '-DCMAKE_BUILD_TYPE=Release',
                '-DBUILD_SHARED_LIBS=OFF',
                '-DJOURNAL_BUILD_TESTING=OFF',
                '-DJOURNAL_BUILD_PYTHON=ON',
                f'-DPython_EXECUTABLE={sys.executable}',
            ]
        )
        subprocess.check_call(['cmake', '--build', build])
        target = Path(self.build_lib) / 'journalmessages'
        shutil.rmtree(target, ignore_errors=True)
        shutil.copytree(
            build / 'python' / 'journalmessages',
            target,
            ignore=shutil.ignore_patterns('__pycache__'),
        )


setup(
    name='journalmessages',
    version=re.search('define JOURNALSERVICEHELPER_VERSION "(.*)"', HEADER)[1],
    description='Messages of the call-log service of a telephony device: built, read and checked',
    license='MIT',
    python_requires='>=3.9',
    packages=[],
    py_modules=[],
    ext_modules=[Extension('journalmessages._native', [])],
    cmdclass={'build_ext': CMakeBuild},
    entry_points=(Path(__file__).parent / 'entry_points.txt').read_text(),
    zip_safe=False,
    options={'build': {'build_base': str(WORK)}, 'egg_info': {'egg_base': str(WORK)}},
)
