"""Places in LibreOffice's texts, and how many of the word processor's positions lie between them."""

import uno

UNIT = "utf-16-le"
LONGEST_STEP = 32767  # Cursors take their distance as a 16-bit number.


def units(text):
    """Return how many positions a text takes."""
    return len(text.encode(UNIT, "surrogatepass")) // 2


def text_cursor(place):
    """Return a text cursor of the place's own text that spans the place. What returns an object of the office
    takes ten times as long as other calls."""
    return place.getText().createTextCursorByRange(place)


def distance(start, end):
    """Return the number of positions between two places of the same text."""
    cursor = text_cursor(start)
    cursor.collapseToStart()
    cursor.gotoRange(end, True)
    return units(cursor.getString())


def cell_of(place):
    """Return the table and the name of the cell that hold the place, or None outside tables."""
    return cell_at(text_cursor(place))


def cell_at(cursor):
    """Return what cell_of does, for the place of a text cursor."""
    cell = cursor.getPropertyValue("Cell")
    return (cursor.getPropertyValue("TextTable"), cell.CellName) if cell else None


def copy_text(source, target):
    """Copy all of a text to the beginning of another one of the same document. Texts have the method, but do
    not tell of it when asked for their members."""
    local = uno.getComponentContext()
    reflection = local.ServiceManager.createInstance("com.sun.star.reflection.CoreReflection")
    reflection.forName("com.sun.star.text.XTextCopy").getMethod("copyText").invoke(target, (source,))


def cross(cursor, text, backward=False):
    """Extend a collapsed cursor over the text that stands behind it, or in front of it. A field is one step
    for a cursor, but as long as its text: one that the text ends in is crossed whole."""
    go = cursor.goLeft if backward else cursor.goRight
    wanted = units(text)
    if _steps(go, len(text)) and units(cursor.getString()) == wanted:
        return
    origin = cursor.getEnd() if backward else cursor.getStart()

    def crosses_enough(steps):
        cursor.gotoRange(origin, False)
        return not _steps(go, steps) or units(cursor.getString()) >= wanted

    # The least number of steps that is enough. What is anchored in the text takes steps and no positions.
    most = max(len(text), 1)
    while not crosses_enough(most):
        most *= 2
    least = 0
    while least < most:
        middle = (least + most) // 2
        least, most = (least, middle) if crosses_enough(middle) else (middle + 1, most)
    cursor.gotoRange(origin, False)
    while not _steps(go, least):  # The text's end came first.
        least -= 1
        cursor.gotoRange(origin, False)


def _steps(go, steps):
    """Extend by any number of steps; False when the text ends before."""
    while steps > 0:
        if not go(min(steps, LONGEST_STEP), True):
            return False
        steps -= LONGEST_STEP
    return True
