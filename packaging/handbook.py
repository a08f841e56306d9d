"""Puts the pages into one HTML file in which the links between them work: handbook.py TITLE OUT.html PAGE.md...

Links to what is not among the pages become plain text. Needs pandoc."""
import html
import pathlib
import posixpath
import re
import subprocess
import sys

STYLE = """body { font: 16px/1.5 sans-serif; max-width: 60em; margin: 2em auto; padding: 0 1em }
table { border-collapse: collapse; margin: 1em 0 }
td, th { border: 1px solid #bbb; padding: .2em .5em; vertical-align: top; text-align: left }
pre, code { background: #f3f3f3 }
pre { padding: .7em; overflow-x: auto }
section { border-top: 2px solid #888; margin-top: 3em }"""


def prefix(page):
    return re.sub("[^a-z0-9]+", "-", page.lower()) + "--"


def converted(page, pages):
    command = ["pandoc", "-f", "gfm", "-t", "html5", "--wrap=none", "--no-highlight", "--id-prefix", prefix(page), page]
    body = subprocess.run(command, check=True, capture_output=True, text=True).stdout

    def link(match):
        target, text = html.unescape(match[1]), match[2]
        if re.match("[a-z]+:|#", target):
            return match[0]
        path, _, part = target.partition("#")
        path = posixpath.normpath(posixpath.join(posixpath.dirname(page), path))
        return f'<a href="#{prefix(path)}{part}">{text}</a>' if path in pages else text

    return re.sub(r'<a\s+href="([^"]*)"[^>]*>(.*?)</a>', link, body, flags=re.S)


def title_of(page):
    return next((line[2:].strip() for line in open(page, encoding="utf-8") if line.startswith("# ")), page)


def main(title, out, *pages):
    contents = "".join(f'<li><a href="#{prefix(page)}">{html.escape(title_of(page))}</a></li>\n' for page in pages)
    sections = "".join(f'<section id="{prefix(page)}">\n{converted(page, pages)}</section>\n' for page in pages)
    pathlib.Path(out).write_text(f'<!DOCTYPE html>\n<html lang="en"><head><meta charset="utf-8"><title>{title}</title>\n'
                                 f"<style>{STYLE}</style></head>\n<body>\n<h1>{title}</h1>\n<ul>\n{contents}</ul>\n{sections}"
                                 "</body></html>\n", encoding="utf-8", newline="\n")


main(*sys.argv[1:])
