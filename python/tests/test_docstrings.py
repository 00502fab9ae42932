"""The examples in the docstrings, and that everything public has one."""
import doctest
import importlib
import inspect

import pytest

import journalmessages as jm

MODULES = [
    "_codec",
    "_inspect",
    "_messages",
    "_record",
    "requests",
    "store",
    "notifications",
    "responses",
    "lowlevel",
]


@pytest.mark.parametrize("name", MODULES)
def test_examples(name):
    module = importlib.import_module(f"journalmessages.{name}")
    result = doctest.testmod(module)
    assert result.attempted > 0 and result.failed == 0


def test_the_package():
    assert doctest.testmod(jm).failed == 0


def test_everything_public_is_documented():
    for name in jm.__all__:
        value = getattr(jm, name)
        if not inspect.isclass(value) and not callable(value) and not inspect.ismodule(value):
            continue  # the unions of types
        assert name.startswith("Any") or value.__doc__, name
    for module in (jm.requests, jm.store, jm.notifications, jm.responses):
        for name in module.__all__:
            assert getattr(module, name).__doc__, name
    assert set(jm.__all__) == {name for name in dir(jm) if not name.startswith("_")} - {
        "pytest_plugin"
    }
