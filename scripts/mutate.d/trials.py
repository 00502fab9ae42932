"""The copies of the tree in which mutants are built and tested."""
import hashlib
import json
import os
import re
import shutil
import signal
import subprocess
import time
from collections import namedtuple
from contextlib import contextmanager
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
WORK = ROOT / 'build' / 'mutate'
LIBRARIES = 'journal_service_helper', 'journal_client_utils'
UNITS = 'journal_bytes_test', 'journal_bytes_by_words_test', 'journal_bytes_for_size_test'  # soon built from a few sources

# Unoptimised code builds fastest. `memory` bounds what a test may take, so that a mutant that
# takes more and more fails; sanitizers and qemu reserve more than they use.
Build = namedtuple('Build', 'name arguments memory', defaults=(None,))
PLAIN = Build('plain', ['-DCMAKE_CXX_FLAGS=-O0 -w -D_GLIBCXX_ASSERTIONS'], 4 << 30)
OTHERS = [
    Build('sanitized', ['-DCMAKE_CXX_FLAGS=-O0 -w -fsanitize=address,undefined '
                        '-fno-sanitize-recover=all']),
    Build('size', ['-DCMAKE_CXX_FLAGS=-O0 -w -D__OPTIMIZE_SIZE__=1'], 4 << 30),
]
if shutil.which('mips-linux-gnu-g++') and shutil.which('qemu-mips'):
    OTHERS.append(Build('mips', ['-DCMAKE_CXX_FLAGS=-O1 -w', '-DCMAKE_TOOLCHAIN_FILE='
                                 'cmake/toolchains/mips-linux-gnu.cmake']))
FEW_TEXTS = {'JOURNAL_DIFFERENTIAL_TEXTS': '10000'}
SLOW_SUITE = 0.2  # seconds; suites that take longer run after all others


class Failed(Exception):
    """What went wrong, in a word or two."""


def run(command, cwd, log, seconds=None, memory=None, env=None):
    """Runs a command; tells how it ended, None when it took too long and was killed."""
    limits = ['prlimit', '--core=0', *([f'--as={memory}'] if memory else [])]
    with open(log, 'wb') as out:
        process = subprocess.Popen([*limits, *command], cwd=cwd, stdin=subprocess.DEVNULL,
                                   stdout=out, stderr=subprocess.STDOUT, start_new_session=True,
                                   env={**os.environ, **(env or {})})
        try:
            return process.wait(seconds)
        except BaseException as stopped:
            os.killpg(process.pid, signal.SIGKILL)
            process.wait()
            if isinstance(stopped, subprocess.TimeoutExpired):
                return None
            raise


class Tests:
    """The test programs of one build. Their suites that take long run after all others."""

    def __init__(self, folder, build):
        self.folder, self.build = folder, build
        self.programs = {}  # command line of a GoogleTest program -> names of its slow suites
        self.others = []
        self.own = set()  # programs that are built from the libraries' sources themselves
        self.seconds = {}
        shown = subprocess.run(['ctest', '--show-only=json-v1'], cwd=folder, check=True,
                               capture_output=True, text=True)
        for test in json.loads(shown.stdout)['tests']:
            command = test.get('command', [])
            filters = [i for i, word in enumerate(command) if word.startswith('--gtest_filter=')]
            if filters:
                self.programs[tuple(command[:filters[0]])] = []
            elif command:
                self.others.append(test['name'])
        self.measure()

    def measure(self):
        """Runs all on the unchanged source, which has to pass."""
        report = self.folder / 'measured.json'
        for program in self.programs:
            self.run_program(program, [f'--gtest_output=json:{report}'], FEW_TEXTS)
            suites = json.loads(report.read_text())['testsuites']
            self.programs[program] = [suite['name'] for suite in suites
                                      if float(suite['time'].rstrip('s')) > SLOW_SUITE]
        self.run(FEW_TEXTS)

    def run(self, env):
        for program in self.programs:
            self.run_program(program, ['--gtest_filter=-' + self.pattern(self.programs[program])], {})
        self.slow(env)
        self.rest()

    def rest(self):
        for name in self.others:
            self.timed(['ctest', '-R', f'^{re.escape(name)}$'], FEW_TEXTS, name)

    def quick(self, since=None):
        """The quick suites: of the programs that only use the libraries, or of those that were built
        after some time. The latter are built from the libraries' sources themselves; until they are
        built anew they are still what an earlier mutant made of them."""
        if since is not None:
            self.own.update(program for program in self.programs if self.built(program) >= since)
        for program, slow in self.programs.items():
            if (program in self.own) == (since is not None):
                self.run_program(program, ['--gtest_filter=-' + self.pattern(slow)], {})

    @staticmethod
    def built(program):
        return max(os.path.getmtime(word) for word in program if os.path.isfile(word))

    def slow(self, env):
        for program, slow in self.programs.items():
            if slow:
                self.run_program(program, ['--gtest_filter=' + self.pattern(slow)], env)

    @staticmethod
    def pattern(suites):
        return ':'.join(f'{suite}.*' for suite in suites)

    def run_program(self, program, arguments, env):
        self.timed([*program, '--gtest_fail_fast', '--gtest_brief=1', *arguments], env,
                   Path(program[-1]).name)

    def timed(self, command, env, name):
        key = tuple(command), *env
        known = self.seconds.get(key)
        log = self.folder / 'tests.log'
        started = time.monotonic()
        ended = run(command, self.folder, log, max(15, 10 * known) if known else 3600,
                    self.build.memory, env)
        if ended is None:
            raise Failed(f'{self.build.name} {name}: takes too long')
        if ended != 0:
            test = re.search(r'\[  FAILED  \] ([\w./]+)', log.read_text(errors='replace'))
            raise Failed(f'{self.build.name} {name}: {test[1] if test else f"ends with {ended}"}')
        self.seconds.setdefault(key, time.monotonic() - started)


def files_below(tree):
    """The names of a tree's files, without what is built and what git keeps."""
    names = set()
    for folder, folders, files in os.walk(tree):
        if Path(folder) == tree:
            folders[:] = [name for name in folders if name not in ('.git', 'build')]
        names.update(Path(folder, name).relative_to(tree).as_posix() for name in files)
    return names


@contextmanager
def changed(copy, mutant):
    """Makes a copy the mutant for a while."""
    original = (copy.tree / mutant.file).read_bytes()
    copy.write(mutant.file, mutant.source.encode())
    try:
        yield
    finally:
        copy.write(mutant.file, original)


class Copy:
    """A copy of the tree in which one mutant after the other is built and tested."""

    def __init__(self, number, say):
        self.tree = WORK / f'tree{number}'
        self.say = say
        self.tests = {}
        self.unchanged = {}  # the libraries' code without a change
        self.synchronise()

    def synchronise(self):
        """Makes the copy equal to the tree, without touching what is equal already."""
        wanted = files_below(ROOT)
        for name in files_below(self.tree) - wanted:
            (self.tree / name).unlink()
        for name in wanted:
            self.write(name, (ROOT / name).read_bytes())

    def write(self, name, content):
        path = self.tree / name
        if path.exists() and path.read_bytes() == content:
            return
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)

    def folder(self, build):
        return self.tree / 'build' / build.name

    def make(self, build, *command):
        folder = self.folder(build)
        folder.mkdir(parents=True, exist_ok=True)
        if run(command, self.tree, folder / 'build.log') != 0:
            raise Failed(f'{build.name}: does not build')

    def ninja(self, build, *targets):
        self.make(build, 'ninja', '-C', self.folder(build), '-j', '1', *targets)

    def code(self, build):
        """What was made of the libraries' sources."""
        return [hashlib.sha256(path.read_bytes()).digest()
                for path in sorted(self.folder(build).rglob('*.so.*')) if not path.is_symlink()]

    def prepare(self, build):
        """Builds the unchanged source and runs its tests."""
        self.say(f'{self.tree.name}: {build.name} build of the unchanged sources')
        self.make(build, 'cmake', '-S', '.', '-B', self.folder(build), '-G', 'Ninja',
                  '-DCMAKE_BUILD_TYPE=None', '-DBUILD_SHARED_LIBS=ON', '-DBUILD_TESTING=ON',
                  '-DCMAKE_LINK_DEPENDS_NO_SHARED=ON',  # the programs need no new link
                  '-DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST',
                  f'-DCMAKE_PROJECT_INCLUDE={Path(__file__).parent / "faster.cmake"}',
                  *build.arguments)
        self.ninja(build)
        self.unchanged[build.name] = self.code(build)
        self.tests[build.name] = Tests(self.folder(build), build)

    def judge(self, mutant):
        """How a mutant fares in the plain build, and why."""
        tests = self.tests[PLAIN.name]
        with changed(self, mutant):
            started = time.time()
            try:
                self.ninja(PLAIN, *LIBRARIES, *UNITS)
            except Failed:
                return 'does not build', ''
            try:
                tests.quick(started)
                if self.code(PLAIN) == self.unchanged[PLAIN.name]:
                    return 'survived', 'the code is the same'
                tests.quick()
                built = time.time()
                self.ninja(PLAIN)  # the other programs that compile the sources once more
                tests.quick(built)
                tests.slow(FEW_TEXTS)
                tests.rest()
            except Failed as failed:
                return 'killed', str(failed)
        return 'survived', ''

    def judge_again(self, mutant, build):
        """How a survivor of the plain build fares in another."""
        with changed(self, mutant):
            try:
                self.ninja(build, *LIBRARIES)
                if self.code(build) == self.unchanged[build.name]:
                    return 'survived', ''
                self.tests[build.name].quick()
                self.tests[build.name].slow(FEW_TEXTS)
            except Failed as failed:
                return 'killed', str(failed)
        return 'survived', ''
