#!/usr/bin/env python3
"""Holds what describeAsJson writes against the installed schema, and against what was declared.

    check_schema.py SCHEMA DESCRIBING

DESCRIBING is the program made of describing.cpp.
"""

import copy
import json
import re
import subprocess
import sys
import unittest

import jsonschema

SCHEMA = {}
OUTPUT = []


def strict(schema):
    """The schema without room for members that it does not name."""
    if isinstance(schema, list):
        return [strict(part) for part in schema]
    if not isinstance(schema, dict):
        return schema
    made = {key: strict(part) for key, part in schema.items()}
    if isinstance(schema.get("properties"), dict) and schema.get("type", "object") == "object":
        if made.pop("allOf", None):
            # By reference, since a command line may have verbs, which are command lines.
            members = SCHEMA["$defs"]["commandLine"]["properties"]
            made["properties"].update({name: {"$ref": "#/$defs/commandLine/properties/" + name} for name in members})
        made.setdefault("additionalProperties", False)
    return made


def bytes_of(text):
    """The bytes that a text of a description stands for."""
    pieces = re.split("\ufffd([0-9A-F]{2})", text)
    return b"".join(
        bytes.fromhex(piece) if place % 2 else piece.encode() for place, piece in enumerate(pieces)
    )


class Written(unittest.TestCase):
    def test_is_accepted_by_the_schema(self):
        for text, _ in OUTPUT:
            jsonschema.validate(json.loads(text), SCHEMA)

    def test_has_no_member_that_the_schema_does_not_name(self):
        for text, _ in OUTPUT:
            jsonschema.validate(json.loads(text), strict(SCHEMA))

    def test_gives_every_text_back(self):
        for text, expected in OUTPUT:
            declarations = json.loads(text)["declarations"]
            found = [bytes_of(declaration.get("text", "")) for declaration in declarations]
            self.assertEqual(found, expected)

    def test_holds_all_that_one_program_declares(self):
        description = json.loads(OUTPUT[1][0])
        notes = description["declarations"][1]["notes"]
        self.assertEqual([bytes_of(key) for key in notes],
                         [b"environment", b"value", b"deprecated", b"range", b"host.\xff\x1b", b"complete",
                          b"required"])
        self.assertEqual(bytes_of(description["declarations"][3]["separator"]), b"\xff")
        self.assertEqual([bytes_of(name) for name in description["declarations"][8]["names"]], [b"d", b"\0"])
        self.assertEqual([rule["kind"] for rule in description["rules"]],
                         ["required", "atMostOne", "atLeastOne", "exactlyOne", "allOrNone", "needs"])
        self.assertEqual(description["checks"], [{"opaque": True, "by": "handlers"}])

    def test_holds_verbs_one_inside_the_other(self):
        description = json.loads(OUTPUT[-1][0])
        self.assertEqual(bytes_of(description["program"]["name"]), b"vcs\xff")
        self.assertEqual(description["settings"], [{"file": "/etc/vcs"}, {"option": "config"}])
        self.assertIn("joinedLetters", description["mends"])
        self.assertIs(description["verbRequired"], True)
        self.assertEqual([verb["names"] for verb in description["verbs"]], [["print", "p"], ["run"]])
        self.assertNotIn("verbRequired", description["verbs"][0])
        page, paper, file = description["verbs"][0]["declarations"]
        self.assertEqual(page["notes"], {"range": "1..9"})
        self.assertEqual(page["checks"], [{"opaque": True, "by": "host", "text": "must be even"}])
        self.assertEqual(paper["allowed"], ["a4", "letter"])
        self.assertEqual(file["count"], {"least": 1, "most": 3})
        self.assertEqual(description["verbs"][0]["rules"], [{"kind": "needs", "names": ["page", "user"]}])
        self.assertIn("positionalTakesRest", description["verbs"][1]["flags"])

    def test_has_no_control_characters(self):
        for text, _ in OUTPUT:
            self.assertIsNone(re.search("[\x00-\x1f\x7f-\x9f]", text))


class Schema(unittest.TestCase):
    def setUp(self):
        self.description = json.loads(OUTPUT[1][0])

    def test_is_a_schema(self):
        jsonschema.Draft202012Validator.check_schema(SCHEMA)

    def test_has_room_for_what_programs_add(self):
        verb = copy.deepcopy(self.description)
        del verb["format"], verb["version"]
        verb.update(names=["log", "history"], text="Shows.")
        self.description.update(
            program={"name": "vcs", "version": "1.0", "text": "Tracks."},
            verbRequired=False, verbs=[verb], settings=[{"file": "/etc/vcs"}, {"option": "config"}], mends=["joinedLetters"])
        self.description["declarations"][4].update(
            count={"least": 1, "most": 3}, checks=[{"opaque": True, "text": "must be even"}])
        jsonschema.validate(self.description, SCHEMA)
        jsonschema.validate(self.description, strict(SCHEMA))

    def test_lets_later_versions_add_members(self):
        self.description["version"] = "1.7"
        self.description["added"] = self.description["declarations"][0]["added"] = 1
        jsonschema.validate(self.description, SCHEMA)

    def test_refuses_what_is_wrong(self):
        def change(path, value):
            def apply(description):
                *parents, last = path
                for part in parents:
                    description = description[part]
                description[last] = value
            return apply

        wrong = [
            change(["format"], "another"),
            change(["version"], "2.0"),
            change(["version"], 1),
            change(["flags", 0], "unknownFlag"),
            change(["optionFiles"], False),
            change(["verbRequired"], 1),
            change(["topics", 0, "name"], 1),
            change(["declarations"], {}),
            change(["declarations", 0, "role"], "modifier"),
            change(["declarations", 0, "kind"], "bool"),
            change(["declarations", 0, "names"], []),
            change(["declarations", 0, "names", 0], "\ufffd"),
            change(["declarations", 0, "text"], "\ufffdf0"),
            change(["declarations", 0, "separator"], ""),
            change(["declarations", 0, "positional"], True),
            change(["declarations", 0, "hidden"], False),
            change(["declarations", 1, "notes", "complete"], "files"),
            change(["declarations", 1, "notes", "host.x"], 1),
            change(["declarations", 1, "count"], {"least": -1}),
            change(["rules", 0, "kind"], "some"),
            change(["rules", 0, "names"], None),
            change(["checks", 0, "opaque"], False),
            change(["verbs"], [{"names": ["log"]}]),
            lambda description: description.pop("rules"),
            lambda description: description["declarations"][0].pop("kind"),
        ]
        for number, apply in enumerate(wrong):
            with self.subTest(number):
                description = copy.deepcopy(self.description)
                apply(description)
                with self.assertRaises(jsonschema.ValidationError):
                    jsonschema.validate(description, SCHEMA)


def main():
    schema_file, describing = sys.argv[1:3]
    with open(schema_file, encoding="utf-8") as file:
        SCHEMA.update(json.load(file))
    lines = subprocess.run([describing], check=True, capture_output=True).stdout.decode().splitlines()
    for text, words in zip(lines[::2], lines[1::2]):
        OUTPUT.append((text, [bytes.fromhex(word) for word in words.split(" ")[:-1]]))
    unittest.main(argv=sys.argv[:1])


if __name__ == "__main__":
    main()
