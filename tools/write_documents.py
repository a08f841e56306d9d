#!/usr/bin/env python3
"""Writes the reference and the bindings from the surface's description (build/win32/surface.json), the longer texts of the
members (docs/members/) and the templates, into the places where they are checked in; with --check it writes nothing and names
what is stale: write_documents.py [--check] SURFACE"""
import argparse
import difflib
import json
import pathlib
import re
import sys

import jinja2

import spellings

ROOT = pathlib.Path(__file__).resolve().parent.parent
BULLETS = ("Result", "Shown", "Last error", "Works with")
BINDINGS = {
    "bindings/cpp/ZORBOffice.h": "ZORBOffice.h.j2",
    "bindings/csharp/ZORBOffice.cs": "ZORBOffice.cs.j2",
    "bindings/pascal/ZORBOffice.pas": "ZORBOffice.pas.j2",
    "bindings/python/zorboffice.py": "zorboffice.py.j2",
    "bindings/python/zorboffice.pyi": "zorboffice.pyi.j2",
}


class Incomplete(Exception):
    """A member whose text lacks something."""


def member_texts(class_):
    """The page's head and each member's text, from docs/members/; every member has one with all that belongs to it."""
    page = (ROOT / f"docs/members/{class_['name']}.md").read_text(encoding="utf-8")
    head, *sections = re.split(r"(?m)^## ", page)
    texts = dict(section.split("\n", 1) for section in sections)
    names = [member["name"] for member in class_["members"]]
    for name in names:
        text = texts.get(name, "")
        missing = [f"**{bullet}:**" for bullet in BULLETS if f"- **{bullet}:** " not in text]
        missing += [] if "```vb\n" in text else ["an example"]
        if missing:
            raise Incomplete(f"docs/members/{class_['name']}.md: {name} lacks {', '.join(missing)}")
    if list(texts) != names:
        raise Incomplete(f"docs/members/{class_['name']}.md has other members than the table, or in another order")
    return head.split("\n", 1)[1].strip(), {name: text.strip() for name, text in texts.items()}


def documents(surface):
    """Each file's path in the project, and its text."""
    templates = jinja2.Environment(
        loader=jinja2.FileSystemLoader(ROOT / "tools/templates"),
        undefined=jinja2.StrictUndefined,
        trim_blocks=True,
        lstrip_blocks=True,
        keep_trailing_newline=True,
    )
    templates.globals.update(
        surface=surface,
        constants=json.loads((ROOT / "tools/constants.json").read_text(encoding="utf-8")),
        spellings=spellings,
    )
    for class_ in surface["classes"]:
        head, texts = member_texts(class_)
        page = templates.get_template("reference.md.j2").render(class_=class_, head=head, texts=texts)
        yield f"docs/reference/{class_['name'].lower()}.md", page
    yield "docs/reference/properties.md", templates.get_template("properties.md.j2").render()
    for path, template in BINDINGS.items():
        yield path, templates.get_template(template).render()


def differences(path, text):
    there = path.read_text(encoding="utf-8").splitlines() if path.exists() else []
    return list(difflib.unified_diff(there, text.splitlines(), "checked in", "as written now", n=0, lineterm=""))


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--check", action="store_true", help="write nothing, and fail where a file is stale")
    parser.add_argument("surface", type=pathlib.Path)
    arguments = parser.parse_args()
    stale = []
    try:
        for name, text in documents(json.loads(arguments.surface.read_text(encoding="utf-8"))):
            path = ROOT / name
            changed = differences(path, text)
            if changed and not arguments.check:
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8", newline="\n")
            elif changed:
                stale += [f"{name} is stale:", *changed[:12]]
    except Incomplete as failure:
        sys.exit(str(failure))
    if stale:
        sys.exit("\n".join([*stale, "write it anew with tools/write_documents.py build/win32/surface.json"]))


if __name__ == "__main__":
    main()
