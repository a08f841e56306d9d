#!/usr/bin/env python3
"""Checks the texts of the reference, docs/members/CONTROL.md, and runs their examples:

    tools/member_examples.py [CONTROL[.MEMBER]]...

Each example runs in a script host of its own, over LibreOffice and the stand-in for Outlook, with a fresh copy of
docs/members/samples; what it prints must be what the text says. Wanted before: script/build --without-tests win32,
script/register, script/bridge start. An example whose first line is "' not run here" is counted, and not run. A box that
waits for somebody ends an example after a minute.
"""

import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
TEXTS = ROOT / "docs/members"
RUNS = ROOT / "build/member_examples"
SURFACE = ROOT / "ZORBOffice/surface"
CONTROLS = {"ZORBWord": "word_processor", "ZORBOutlook": "outlook", "OpenWriter": "word_processor"}
BULLETS = ["Result", "Shown", "Last error", "Works with"]
LONGEST = 60  # Seconds that an example may take.

START = 'folder = WScript.Arguments(0) & "\\"\nOn Error Resume Next\n'
BEFORE = {
    "ZORBWord": """Set word = CreateObject("ZORBOffice.ZORBWord")
Need word.Start = 1, "Word does not start"
Need word.OpenDoc(folder & "sample.docx") = 1, "sample.docx is not opened"
""",
    "ZORBOutlook": """CreateObject("Outlook.Application").GetNamespace("MAPI").Logon folder & "mailbox.json", "", False, True
Set outlook = CreateObject("ZORBOffice.ZORBOutlook")
Need outlook.StartOutlook, "Outlook does not start"
""",
    "OpenWriter": """Set writer = CreateObject("ZORBOffice.OpenWriter")
Need writer.Start = 1, "the suite does not start"
""",
}
# CloseDoc would show a box where the example has closed the document; NumberOfSections fails there without one.
AFTER = {
    "ZORBWord": """sections = word.NumberOfSections
If Err.Number = 0 Then word.CloseDoc 0
word.StopWord True
""",
    "ZORBOutlook": "",
    "OpenWriter": "",
}
CAN_BEGIN = 'If Err.Number <> 0 Then Need False, "it cannot begin:"\n'
REPORT = 'If Err.Number <> 0 Then WScript.Echo "raised " & Err.Number & ": " & Err.Description\nErr.Clear\n'
NEED = """Sub Need(done, otherwise)
  If Err.Number = 0 And done Then Exit Sub
  WScript.Echo "before the example: " & otherwise & " " & Err.Description
  WScript.Quit
End Sub
"""


class Example:
    """A member's example, and what is missing in its text."""

    def __init__(self, control, member, section):
        self.control = control
        self.name = f"{control}.{member}"
        counts = {bullet: section.count(f"\n- **{bullet}:** ") for bullet in BULLETS}
        self.complaints = [f'has {count} bullets "{bullet}"' for bullet, count in counts.items() if count != 1]
        blocks = re.findall(r"^```(\w*)\n(.*?)^```$", section, re.MULTILINE | re.DOTALL)
        if [kind for kind, _ in blocks] not in (["vb"], ["vb", "text"]):
            self.complaints.append("has not one vb block, with at most one text block")
        self.code = blocks[0][1] if blocks else ""
        self.wanted = blocks[1][1].splitlines() if len(blocks) > 1 else []
        self.is_run = not self.code.startswith("' not run here")
        if len(self.code.splitlines()) > 9 - self.is_run:
            self.complaints.append("has an example of more than 8 lines")

    def run(self):
        """Returns what is wrong with what the example prints, or None."""
        folder = RUNS / self.name
        shutil.rmtree(folder, ignore_errors=True)
        shutil.copytree(TEXTS / "samples", folder)
        script = folder / "example.vbs"
        parts = [START, BEFORE[self.control], CAN_BEGIN, "Example\n", REPORT, AFTER[self.control]]
        end = 'WScript.Echo "example.vbs: done"\n'
        script.write_text("".join([*parts, end, "Sub Example\n", self.code, "End Sub\n", NEED]), encoding="cp1252")
        process = subprocess.Popen([ROOT / "script/in-cscript", script, folder], stdout=subprocess.PIPE,
                                   stderr=subprocess.PIPE, text=True, start_new_session=True)
        try:
            said, failed = process.communicate(timeout=LONGEST)
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL)
            process.communicate()
            return f"did not end within {LONGEST} s: does it show a box?"
        if process.returncode:
            return f"broke off: {said}{failed}".rstrip()
        if said.splitlines() != self.wanted:
            return "\n  ".join(["prints", *said.splitlines(), "instead of", *self.wanted])
        return None


def examples(control):
    rows = (SURFACE / f"{CONTROLS[control]}_members.cpp").read_text()
    members = re.findall(r'\{L"(\w+)",\s+0x', rows)
    file = TEXTS / f"{control}.md"
    parts = re.split(r"^## (.*)\n", file.read_text() if file.exists() else "", flags=re.MULTILINE)
    names, sections = parts[1::2], dict(zip(parts[1::2], parts[2::2]))
    result = [Example(control, member, sections.get(member, "")) for member in members]
    for example, member in zip(result, members):
        if member not in names:
            example.complaints = ["has no section"]
    if names != [member for member in members if member in names]:
        result[0].complaints.append(f"or another section of {file.name} does not stand where the table of members has it")
    return result


def main():
    wanted = sys.argv[1:] or list(CONTROLS)
    every = [example for control in CONTROLS for example in examples(control)]
    chosen = [example for example in every if example.control in wanted or example.name in wanted]
    unknown = set(wanted) - {example.name for example in every} - set(CONTROLS)
    complaints = [f"{example.name} {complaint}" for example in chosen for complaint in example.complaints]
    complaints += [f"{name} is no control or member" for name in sorted(unknown)]
    if complaints:
        sys.exit("\n".join(complaints))
    ran = failed = 0
    said = time.monotonic()
    for number, example in enumerate(chosen, 1):
        if time.monotonic() - said > 10:
            said = time.monotonic()
            print(f"member_examples: {number} of {len(chosen)} examples, {example.name}", file=sys.stderr, flush=True)
        if not example.is_run:
            continue
        wrong = example.run()
        ran += 1
        if wrong:
            failed += 1
            print(f"{example.name} {wrong}", flush=True)
    print(f"{ran} of {len(chosen)} examples ran, {len(chosen) - ran} are marked as not run here"
          + (f"; {failed} failed" if failed else ""))
    sys.exit(1 if failed else 0)


main()
