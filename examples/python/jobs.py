"""The three jobs of examples/README.md: jobs.py letter TEMPLATE OUTPUT NAME | table DOCUMENT | appointments [DAY]

Needs pywin32, and bindings/python on the path: set PYTHONPATH=..\\..\\bindings\\python
"""
import contextlib
import datetime
import pathlib
import sys

import pywintypes
from zorboffice import AppointmentKey, EntryType, WdReplace, WdSaveOptions, ZORBOutlook, ZORBWord


def require(holds, reason):
    if not holds:
        raise SystemExit(reason)


@contextlib.contextmanager
def document(open_it):
    """Word stays behind unless it is told to quit, and asks about changes unless the document is closed without them."""
    word = ZORBWord()
    require(word.Start(), "Word does not start")
    try:
        require(open_it(word), "the template or document cannot be opened")
        try:
            yield word
        finally:
            word.CloseDoc(WdSaveOptions.wdDoNotSaveChanges)
    finally:
        word.StopWord(True)


def letter(template, output, name):
    # Word has a current folder of its own.
    output = pathlib.Path(output).absolute()
    require(not output.exists(), f"{output} exists")
    with document(lambda word: word.CreateDoc(str(pathlib.Path(template).absolute()))) as word:
        for field, value in ("Name", name), ("Order", "12 boxes of paper, EUR 49.90 each"):
            # A "^" begins a code of Word's.
            word.Replace(f"<<{field}>>", value.replace("^", "^^"), ReplaceOption=WdReplace.wdReplaceAll)
        text = word.ReadText(0, 0)
        require(text and "<<" not in text, "a field is left in the letter")
        word.SaveDoc(str(output))
        require(output.exists(), "the letter cannot be saved")  # saving has no result
    print("saved", output.name)


def table(path):
    with document(lambda word: word.OpenDoc(str(pathlib.Path(path).absolute()))) as word:
        require(word.Search("Article") and word.InTable(), "the document has no price table")
        while word.InTable():
            # A cell's text ends in its end mark, and holds paragraph marks in between.
            cells = [word.CellText(cell + 1).replace("\r\a", "").replace("\r", " ") for cell in range(word.CellCount())]
            print(" | ".join(cells))
            # Behind a row that is selected as a whole lies the next one, or the text after the table.
            word.SelectRow()
            word.CursorRight(1)


def appointments(day=str(datetime.date.today() + datetime.timedelta(1))):
    outlook = ZORBOutlook()
    get = outlook.GetAppointmentProperty

    # Dates and times read with the separators of the user's settings: only the digits are sure.
    def start_time():
        return get(AppointmentKey.StartTime)[0:2] + ":" + get(AppointmentKey.StartTime)[3:5]

    def start_day():
        date = get(AppointmentKey.StartDate)
        return f"{date[6:10]}-{date[3:5]}-{date[0:2]}"

    # A series is one item, which begins when the series does.
    condition = f"[Start] <= '{day} 23:59' AND ([Start] >= '{day} 00:00' OR [IsRecurring] = True)"
    require(outlook.StartOutlook() and outlook.InitItems(EntryType.Appointment, condition), outlook.GetLastErrorDescription())
    lines, found = [], outlook.GetFirstItem(EntryType.Appointment)
    while found:
        begins = get(AppointmentKey.IsRecurring) != "True" or outlook.GetAppointmentInstance(f"{day} {start_time()}")
        # An occurrence that was moved may answer to the day that it had.
        if begins and start_day() == day:
            lines.append(f"{start_time()} {get(AppointmentKey.Subject)}")
        found = outlook.GetNextItem(EntryType.Appointment)
    for line in sorted(lines):
        print(line)


JOBS = {("letter", 5): letter, ("table", 3): table, ("appointments", 2): appointments, ("appointments", 3): appointments}

if __name__ == "__main__":
    job = JOBS.get((*sys.argv[1:2], len(sys.argv))) or sys.exit(__doc__)
    try:
        job(*sys.argv[2:])
    except pywintypes.com_error as failure:
        sys.exit((failure.excepinfo and failure.excepinfo[2]) or failure.strerror)
