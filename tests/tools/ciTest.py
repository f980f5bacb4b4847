"""What CI runs is all that there is: every preset with tests, every target of the fuzzers."""

import json
import pathlib
import re
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
# For people: the same tests as in the presets beside it, built to be looked into.
NOT_IN_CI = {"debug"}


def with_inherited(presets, preset, key):
    """A key of a preset, or of the one that it inherits it from."""
    if key in preset or "inherits" not in preset:
        return preset.get(key, {})
    return with_inherited(presets, presets[preset["inherits"]], key)


def is_on(preset, presets, variable):
    value = preset.get("cacheVariables", {}).get(variable)
    if value is None and "inherits" in preset:
        return is_on(presets[preset["inherits"]], presets, variable)
    return value == "ON"


class CiTest(unittest.TestCase):
    def setUp(self):
        presets = json.loads((ROOT / "CMakePresets.json").read_text())
        self.configured = {preset["name"]: preset for preset in presets["configurePresets"]}
        self.tested = {preset["name"]: preset for preset in presets["testPresets"]}
        self.ci = (ROOT / ".ci/run").read_text()

    def with_tests(self):
        return {name for name, preset in self.configured.items()
                if not preset.get("hidden") and is_on(preset, self.configured, "TARV_BUILD_TESTS")}

    def test_every_preset_with_tests_fails_when_it_has_none(self):
        self.assertIn("release", self.with_tests())
        for name in self.with_tests():
            with self.subTest(name):
                execution = with_inherited(self.tested, self.tested[name], "execution")
                self.assertEqual(execution["noTestsAction"], "error")

    def test_every_preset_with_tests_runs_in_ci(self):
        in_ci = set(re.search(r"^for preset in (.*); do$", self.ci, re.MULTILINE)[1].split())
        if "tools/coverage.sh" in self.ci:
            in_ci.add("coverage")
        self.assertEqual(self.with_tests() - NOT_IN_CI, in_ci)

    def test_every_target_of_the_fuzzers_runs_in_ci(self):
        lists = re.findall(r"^set\((?:program_)?targets (.*)\)$", (ROOT / "fuzz/CMakeLists.txt").read_text(), re.MULTILINE)
        targets = " ".join(sorted(" ".join(lists).split()))
        self.assertIn(f"printf '%s\\n' {targets} |", self.ci)
        for target in targets.split():
            self.assertTrue(list((ROOT / "fuzz/corpus" / target).iterdir()), target)


if __name__ == "__main__":
    unittest.main()
