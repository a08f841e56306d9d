"""Reads a mailbox from a file: what no client could create in a reasonable time, or at all."""

import base64
import datetime
import json

import binding
from outlook.attachments import File
from outlook.kinds import of_message_class
from outlook.mail import MailItem
from outlook.store import FOLDERS, Record, Store

FIRST_TIME = datetime.datetime(2007, 1, 1)
FOLDER_NUMBERS = {name: number for number, (name, _) in FOLDERS.items()}


def read_mailbox(outlook, data):
    """Return a store with what the JSON text says; ValueError or KeyError where it says nothing sensible.

    The text is a list of groups, {"rounds": NUMBER, "items": [{"folder": "Inbox", "class": "IPM.Note",
    PROPERTY: VALUE, ..., "attachments": [{"name": NAME, "text" or "base64": DATA}, ...]}, ...]}. A group's
    items come one after another, a minute apart, as many rounds as are asked for; the first "#" of a text is the
    number of the round.
    """
    store = Store()
    time = FIRST_TIME
    for group in json.loads(data):
        rows = [_row(outlook, row) for row in group["items"]]
        for number in range(1, group.get("rounds", 1) + 1):
            for kind, folder, values in rows:
                numbered = {name: _numbered(value, number) for name, value in values.items()}
                record = Record(kind, store.shelf(folder), {})
                record.keep({"CreationTime": time} | _times(kind, time) | numbered)
                record.values["LastModificationTime"] = time
                time += datetime.timedelta(minutes=1)
    return store


def _row(outlook, row):
    """Return a row's kind, folder and values; its properties go through an item, which checks them."""
    kind = of_message_class(row["class"])
    item = kind.new(outlook)
    own = {"folder", "class", "attachments"}
    for name, value in row.items():
        if name in own:
            continue
        member = kind.published(name)
        if member.fset:
            binding.put(item, name, [value])
        else:
            item.change(name, value)
    files = tuple(
        File(each["name"], base64.b64decode(each["base64"]) if "base64" in each else each["text"].encode())
        for each in row.get("attachments", ())
    )
    if files:
        item.change("files", files)
    return kind, FOLDER_NUMBERS[row["folder"]], item.values() | {"MessageClass": row["class"]}


def _times(kind, time):
    """Return when a mail was sent and received, unless its row says."""
    return {"ReceivedTime": time, "SentOn": time, "Sent": True} if kind is MailItem else {}


def _numbered(value, number):
    return value.replace("#", str(number), 1) if isinstance(value, str) else value
