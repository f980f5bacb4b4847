#!/usr/bin/env python3
"""Lists what headers declare in the library's namespaces, by mangled name, as Clang reads them.

    declarations.py declared CLANG INCLUDE-DIRECTORY... -- HEADER...
    declarations.py helpers  CLANG INCLUDE-DIRECTORY... -- HEADER...

"declared" prints every function and variable that a header declares and does not define: whoever uses
it needs a library to define it. "helpers" prints the private functions of classes that are not virtual.
"""
import json
import subprocess
import sys

NAMESPACES = ("tarv_3_3", "dovel2", "MERO_2_16")
FUNCTIONS = ("FunctionDecl", "CXXMethodDecl", "CXXConstructorDecl", "CXXDestructorDecl", "CXXConversionDecl")
CLASSES = ("CXXRecordDecl", "ClassTemplateSpecializationDecl")


def main():
    what, clang, *rest = sys.argv[1:]
    directories, headers = rest[:rest.index("--")], rest[rest.index("--") + 1:]
    names = set()
    for namespace in NAMESPACES:
        for declaration in declarations_of(namespace, clang, directories, headers):
            names.update({"declared": declared, "helpers": helpers}[what](declaration))
    if not names:
        sys.exit("The headers declare nothing.")
    print("\n".join(sorted(names)))


def declarations_of(namespace, clang, directories, headers):
    """The syntax trees of all parts of the namespace."""
    command = [clang, "-x", "c++", "-std=c++17", "-fsyntax-only", *("-I" + path for path in directories),
               "-Xclang", "-ast-dump=json", "-Xclang", "-ast-dump-filter=" + namespace, "-"]
    source = "".join(f'#include "{header}"\n' for header in headers)
    text = subprocess.run(command, input=source, check=True, capture_output=True, text=True).stdout
    decoder = json.JSONDecoder()
    place = 0
    while text[place:].strip():
        place += len(text[place:]) - len(text[place:].lstrip())
        tree, place = decoder.raw_decode(text, place)
        if tree["kind"] == "NamespaceDecl" and tree["name"] == namespace:
            yield tree


def declared(node, in_class=False):
    kind = node["kind"]
    if kind in FUNCTIONS:
        if not (node.get("isImplicit") or node.get("pure") or node.get("explicitlyDeleted")
                or node.get("explicitlyDefaulted") or has_body(node)):
            yield node["mangledName"]
    elif kind == "VarDecl":
        is_declaration = "init" not in node and not node.get("inline")
        if node.get("storageClass") == ("static" if in_class else "extern") and is_declaration:
            yield node["mangledName"]
    elif kind == "ClassTemplateDecl":
        # Only what is instantiated; and where the template defines everything, the compiler does so for whoever
        # uses it.
        if not defines_everything(node):
            for child in node.get("inner", []):
                if child["kind"] != "CXXRecordDecl":
                    yield from declared(child, True)
    elif kind != "FunctionTemplateDecl":
        for child in node.get("inner", []):
            yield from declared(child, kind in CLASSES)


def defines_everything(template):
    """Whether all functions of a class template have their bodies in it."""
    patterns = [part for part in template.get("inner", []) if part["kind"] == "CXXRecordDecl"]
    functions = [part for pattern in patterns for part in pattern.get("inner", []) if part["kind"] in FUNCTIONS]
    return all(part.get("isImplicit") or part.get("explicitlyDeleted") or part.get("explicitlyDefaulted")
               or has_body(part) for part in functions)


def has_body(function):
    return any(part["kind"] in ("CompoundStmt", "CXXTryStmt") for part in function.get("inner", []))


def helpers(node, is_private=False):
    kind = node["kind"]
    if kind in FUNCTIONS:
        # A function that overrides one is virtual without saying so.
        is_virtual = node.get("virtual") or any(part["kind"] == "OverrideAttr" for part in node.get("inner", []))
        if is_private and not is_virtual and "mangledName" in node:
            yield node["mangledName"]
        return
    access = node.get("tagUsed") == "class"
    for child in node.get("inner", []):
        if child["kind"] == "AccessSpecDecl":
            access = child["access"] == "private"
        yield from helpers(child, access if kind in CLASSES else is_private)


main()
