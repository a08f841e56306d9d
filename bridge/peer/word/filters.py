"""Which of LibreOffice's filters reads and writes a file."""

import os

import uno

BY_EXTENSION = {
    ".doc": "MS Word 97",
    ".docx": "MS Word 2007 XML",
    ".dot": "MS Word 97 Vorlage",
    ".dotx": "MS Word 2007 XML Template",
    ".odt": "writer8",
    ".ott": "writer8_template",
    ".rtf": "Rich Text Format",
    ".txt": "Text (encoded)",
}
# WdSaveFormat of the object model.
BY_FORMAT = {
    0: ".doc",
    1: ".dot",
    2: ".txt",
    6: ".rtf",
    7: ".txt",
    12: ".docx",
    14: ".dotx",
    16: ".docx",
    23: ".odt",
}
TEXT_OPTIONS = "UTF8,CRLF"


def property_value(name, value):
    result = uno.createUnoStruct("com.sun.star.beans.PropertyValue")
    result.Name, result.Value = name, value
    return result


def for_loading(file, as_template, read_only=False):
    """Return the arguments that load a file unseen and without its macros."""
    arguments = {"Hidden": True, "AsTemplate": as_template, "MacroExecutionMode": 0}
    arguments |= {"ReadOnly": True} if read_only else {}
    if os.path.splitext(file)[1].lower() == ".txt":
        arguments |= {"FilterName": BY_EXTENSION[".txt"], "FilterOptions": TEXT_OPTIONS}
    return tuple(property_value(name, value) for name, value in arguments.items())


def extension_for(file, file_format=None):
    """Return the extension that stands for the format in which a file is saved."""
    return BY_FORMAT.get(file_format, os.path.splitext(file)[1].lower())


def for_saving(file, file_format=None):
    """Return the arguments that save a file in a format or, without one, as its extension says. An extension
    that means nothing here does as under the word processor: the format is its own."""
    extension = extension_for(file, file_format)
    arguments = {"FilterName": BY_EXTENSION.get(extension, BY_EXTENSION[".docx"]), "Overwrite": True}
    if extension == ".txt":
        arguments["FilterOptions"] = TEXT_OPTIONS
    return tuple(property_value(name, value) for name, value in arguments.items())


def for_printing():
    return (property_value("FilterName", "writer_pdf_Export"), property_value("Overwrite", True))
