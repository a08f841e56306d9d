"""How members, parameters and constants are spelled in each language; the bindings and the reference pages are written with it.

"C++ interface", "C# interface" and "Pascal interface" are calls by vtable, the others the bindings' own plain calls.
"""
import json
import pathlib
import re
import textwrap
import uuid

LANGUAGES = ("VBScript", "C#", "Pascal", "C++", "Python")

TYPES = ("flag", "byte", "int16", "int32", "text", "variant")


def _by_type(*spelled):
    return dict(zip(TYPES, spelled))


PARAMETER_TYPES = {
    "C++": _by_type("bool", "unsigned char", "short", "long", "const std::wstring&", "long"),
    "C++ interface": _by_type("VARIANT_BOOL", "BYTE", "SHORT", "LONG", "BSTR", "VARIANT"),
    "C#": _by_type("bool", "byte", "short", "int", "string", "int"),
    "C# interface": _by_type("bool", "byte", "short", "int", "string", "object"),
    "Pascal": _by_type("WordBool", "Byte", "SmallInt", "Integer", "WideString", "SmallInt"),
    "Pascal interface": _by_type("WordBool", "Byte", "SmallInt", "Integer", "WideString", "OleVariant"),
    "Python": _by_type("bool", "int", "int", "int", "str", "int"),
}

# A byte result is 1 for success and 0 for failure, a variant result is always empty.
RESULT_TYPES = {
    "C++": _by_type("bool", "bool", "short", "long", "std::wstring", "void"),
    "C++ interface": PARAMETER_TYPES["C++ interface"],
    "C#": _by_type("bool", "bool", "short", "int", "string", "void"),
    "C# interface": PARAMETER_TYPES["C# interface"],
    "Pascal": _by_type("Boolean", "Boolean", "SmallInt", "Integer", "WideString", None),
    "Pascal interface": PARAMETER_TYPES["Pascal interface"],
    "Python": _by_type("bool", "bool", "int", "int", "str", "None"),
}

TRUTH = {"C++": ("false", "true"), "C#": ("false", "true"), "Pascal": ("False", "True"), "Python": ("False", "True")}
EMPTY_TEXT = {"C++": 'L""', "C#": '""', "Pascal": "''", "Python": '""'}
OBJECTS = {"ZORBWord": "word", "ZORBOutlook": "outlook", "OpenWriter": "writer"}

with open(pathlib.Path(__file__).with_name("constants.json"), encoding="utf-8") as _file:
    CONSTANTS = json.load(_file)
_ENUMERATIONS = {row["parameter"]: row for row in CONSTANTS if row["parameter"] and row["type"] != "text"}


def enumeration_of(parameter):
    """The enumeration whose values a parameter takes, or None."""
    return _ENUMERATIONS.get(parameter["name"])


def identifier(text):
    """A property key as a name: keys have blanks."""
    return re.sub(r"\W", "", text)


def names_of_keys(item):
    """Name, key and sentence of each key of one kind of item; a key may have a row for reading and one for writing."""
    sentences = {}
    for row in item["keys"]:
        sentences.setdefault(row["key"], []).append(row["sentence"])
    return [(identifier(key), key, " ".join(dict.fromkeys(found))) for key, found in sentences.items()]


def guid_initializer(text):
    """An identifier as C++ initialises a GUID."""
    first, second, third, *rest = uuid.UUID(text).fields[:3] + tuple(uuid.UUID(text).bytes[8:])
    return f"{{0x{first:08x}, 0x{second:04x}, 0x{third:04x}, {{{', '.join(f'0x{byte:02x}' for byte in rest)}}}}}"


def guid_arguments(text):
    """The same as eleven arguments."""
    return re.sub(r"[{}]", "", guid_initializer(text))


def comment(text, prefix, width=120):
    """A text in lines that all begin with the prefix, which brings its own indentation."""
    return textwrap.fill(" ".join(text.split()), width, initial_indent=prefix, subsequent_indent=prefix,
                         break_long_words=False, break_on_hyphens=False)


def described(code, sentence, beside, above):
    """A line of code with its sentence as a comment: beside it, or above where it is too long."""
    line = f"{code}  {beside} {sentence}"
    if len(line) <= 128:
        return line
    indent = code[: len(code) - len(code.lstrip())]
    return comment(sentence, f"{indent}{above} ") + "\n" + code


def wrapped(code, indent, hanging=4, width=110):
    """A declaration or call, broken between its parameters where it is too long for one line."""
    parts = re.sub(r"(?<![,;]) ", "\0", code)
    lines = textwrap.fill(parts, width, initial_indent=" " * indent, subsequent_indent=" " * (indent + hanging),
                          break_long_words=False, break_on_hyphens=False)
    return lines.replace("\0", " ")


def xml_text(text):
    """A text as it stands in XML."""
    return text.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;")


def type_name(kind, language):
    """The name of one of the published types."""
    return PARAMETER_TYPES[language][kind]


def converted(member):
    """A member's arguments on their way from plain C++ values to the published types, with a comma at the end."""
    return "".join(f"detail::{parameter['type'].capitalize()}({parameter['name']}), " for parameter in member["parameters"])


def following(member):
    """A member's arguments in a call, each after a comma."""
    return "".join(f", {parameter['name']}" for parameter in member["parameters"])


def handed_on(member, language="C#"):
    """A member's arguments as a class of C# or Pascal hands them to the interface; a variant is a variable of its own."""
    def name_of(parameter):
        if parameter["type"] == "variant":
            return "given" if language == "C#" else "Given"
        return parameter_name(parameter, language)

    if language == "Pascal":
        names = [name_of(parameter) for parameter in member["parameters"]]
        return f"({', '.join(names)})" if names else ""
    return ", ".join(("ref " if parameter["by_reference"] else "") + name_of(parameter) for parameter in member["parameters"])


def parameter_name(parameter, language):
    """A parameter's name; "Unit" is a word of Pascal's own."""
    name = parameter["name"]
    return name + "_" if language.startswith("Pascal") and name == "Unit" else name


def parameter_type(parameter, language):
    """A parameter's type in a language's plain calls: its enumeration, where the language has such types."""
    enumeration = enumeration_of(parameter)
    typed = enumeration and language in ("C++", "C#", "Python")
    return enumeration["name"] if typed else PARAMETER_TYPES[language][parameter["type"]]


def default(parameter, language):
    """What a parameter is when it is left out, or None for one that must be there."""
    if parameter["presence"] == "required":
        return None
    kind = parameter["type"]
    if kind == "text":
        return EMPTY_TEXT[language]
    if kind == "flag":
        return TRUTH[language][bool(parameter.get("default"))]
    value = int(parameter.get("default") or 0)
    enumeration = enumeration_of(parameter)
    if not enumeration:
        return str(value)
    name = next(row["name"] for row in enumeration["values"] if row["value"] == value)
    return f"{enumeration['name']}.{name}" if language in ("C#", "Python") else name


def _parameter(parameter, language):
    name = parameter_name(parameter, language)
    kind = PARAMETER_TYPES[language][parameter["type"]]
    if language == "C++ interface":
        return f"{kind}{'*' if parameter['by_reference'] else ''} {name}"
    if language == "C# interface":
        typed = parameter_type(parameter, "C#") if parameter["type"] != "variant" else kind
        return f"{'ref ' if parameter['by_reference'] else ''}{typed} {name}"
    if language == "Pascal interface":
        by_reference = "var " if parameter["by_reference"] else "const " if parameter["type"] == "text" else ""
        return f"{by_reference}{name}: {kind}"
    kind, given = parameter_type(parameter, language), default(parameter, language)
    if language in ("Pascal", "Python"):
        return f"{name}: {kind}" + (f" = {given}" if given else "")
    return f"{kind} {name}" + (f" = {given}" if given else "")


def parameters(member, language):
    """A member's parameters as a declaration has them, without parentheses."""
    separator = "; " if language.startswith("Pascal") else ", "
    return separator.join(_parameter(parameter, language) for parameter in member["parameters"])


def _basic(member, class_):
    names = [parameter["name"] for parameter in member["parameters"]]
    given = [parameter["name"] for parameter in member["parameters"] if parameter["presence"] == "required"]
    left_out = names[len(given):]
    listed = ", ".join(given)
    if left_out:
        listed += f"[{', ' if given else ''}{', '.join(left_out)}]"
    called = f"{OBJECTS[class_['name']]}.{member['name']}"
    if member["result"] == "variant":
        return f"{called} {listed}".rstrip()
    return f"result = {called}" + (f"({listed})" if listed else "")


def declaration(member, class_, language, within=""):
    """A member's call (VBScript) or declaration in one line, without a semicolon at its end; within stands before its name."""
    if language == "VBScript":
        return _basic(member, class_)
    name, result = within + member["name"], RESULT_TYPES[language][member["result"]]
    listed = parameters(member, language)
    if language == "Python":
        return f"{name}({listed}) -> {result}"
    if language == "C++ interface":
        prefix = "get_" if member["kind"] == "property_get" else ""
        return f"HRESULT {prefix}{name}({listed}{', ' if listed else ''}{result}* result)"
    if language.startswith("Pascal"):
        listed = f"({listed})" if listed else ""
        return f"function {name}{listed}: {result}" if result else f"procedure {name}{listed}"
    return f"{result} {name}({listed})"


def implementation(member, class_):
    """A Pascal member's heading in the implementation: its defaults are said in the declaration alone."""
    return re.sub(r" = [^;)]*", "", declaration(member, class_, "Pascal", f"T{class_['name']}."))
