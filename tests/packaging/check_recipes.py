"""The recipes under packaging/ parse, and agree with the project about version, license,
home page and options.
The changelogs name no version as released that is not.

    check_recipes.py SOURCE_DIR VERSION
"""

import ast
import json
import pathlib
import re
import subprocess
import sys

source = pathlib.Path(sys.argv[1])
version = sys.argv[2]
failures = []


def expect(holds, text):
    if not holds:
        failures.append(text)


def class_fields(tree, name):
    for node in tree.body:
        if isinstance(node, ast.ClassDef) and node.name == name:
            return {
                target.id: ast.literal_eval(statement.value)
                for statement in node.body
                if isinstance(statement, ast.Assign)
                for target in statement.targets
            }
    return {}


vcpkg = json.loads((source / "packaging/vcpkg/vcpkg.json").read_text())
expect(vcpkg.get("name") == "tarv", "vcpkg.json: name")
expect(vcpkg.get("version") == version, f"vcpkg.json: version {vcpkg.get('version')}, not {version}")

recipe_text = (source / "packaging/conan/conanfile.py").read_text()
recipe = class_fields(ast.parse(recipe_text), "TarvConan")
expect(recipe.get("name") == "tarv", "conanfile.py: name")
pattern = re.search(r're\.search\(r"(.*?)", project\)', recipe_text)
found = pattern and re.search(pattern.group(1), (source / "CMakeLists.txt").read_text())
expect(found and found.group(1) == version, "conanfile.py: does not find the version in CMakeLists.txt")
for folder in re.findall(r'"(\w+)/\*"', recipe_text):
    expect((source / folder).is_dir(), f"conanfile.py: no folder {folder}")

first_line = (source / "LICENSE").read_text().splitlines()[0]
for name, license_name in (("vcpkg.json", vcpkg.get("license")), ("conanfile.py", recipe.get("license"))):
    expect(first_line == f"{license_name} License", f"{name}: LICENSE is the '{first_line}'")

home = re.search(r"HOMEPAGE_URL (\S+)", (source / "CMakeLists.txt").read_text()).group(1)
for name, homepage in (("vcpkg.json", vcpkg.get("homepage")), ("conanfile.py", recipe.get("homepage"))):
    expect(homepage == home, f"{name}: home page {homepage}, not {home}")

options = set(re.findall(r"^option\((TARV_\w+)", (source / "CMakeLists.txt").read_text(), re.MULTILINE))
used = set(re.findall(r"-D(TARV_\w+)=", (source / "packaging/vcpkg/portfile.cmake").read_text()))
expect(used and used <= options, f"portfile.cmake: no such options: {sorted(used - options)}")

sections = re.findall(r"^## \[(.*?)\]", (source / "CHANGELOG.md").read_text(), re.MULTILINE)
expect(sections[:1] == ["Unreleased"], "CHANGELOG.md: the first section is not [Unreleased]")
released = sections[1:]

# A copy of the sources without their history knows no tags.
if (source / ".git").exists():
    listed = subprocess.run(["git", "-C", source, "tag"], capture_output=True, text=True, check=True)
    tags = listed.stdout.split()
    for section in released:
        expect(f"v{section}" in tags, f"CHANGELOG.md: {section} is not released: there is no tag v{section}")

entry = (source / "packaging/changelog").read_text().splitlines()[0]
distribution = "unstable" if version in released else "UNRELEASED"
expected_entry = f"tarv ({version}) {distribution}; urgency=medium"
expect(entry == expected_entry, f"packaging/changelog: begins with '{entry}', not '{expected_entry}'")

for failure in failures:
    print(failure)
sys.exit(1 if failures else 0)
