"""Writes a .docx of that many sections, each with a paragraph and a header of its own: sections_document.py COUNT FILE"""
import sys
import zipfile

WORD = "http://schemas.openxmlformats.org/wordprocessingml/2006/main"
RELATIONS = "http://schemas.openxmlformats.org/officeDocument/2006/relationships"
PACKAGE = "http://schemas.openxmlformats.org/package/2006/"
MEDIA = "application/vnd.openxmlformats-officedocument.wordprocessingml."
DECLARATION = '<?xml version="1.0" encoding="UTF-8" standalone="yes"?>\n'


def paragraph(text, properties=""):
    return f"<w:p>{properties}<w:r><w:t>{text}</w:t></w:r></w:p>"


def section(number):
    return f'<w:sectPr><w:headerReference w:type="default" r:id="header{number}"/></w:sectPr>'


def parts(count):
    numbers = range(1, count + 1)
    headers = "".join(f'<Override PartName="/word/header{n}.xml" ContentType="{MEDIA}header+xml"/>' for n in numbers)
    yield "[Content_Types].xml", (
        f'<Types xmlns="{PACKAGE}content-types"><Default Extension="rels" ContentType="application/vnd.openxmlformats-'
        f'package.relationships+xml"/><Override PartName="/word/document.xml" ContentType="{MEDIA}document.main+xml"/>'
        f"{headers}</Types>")
    yield "_rels/.rels", (f'<Relationships xmlns="{PACKAGE}relationships"><Relationship Id="document" '
                          f'Type="{RELATIONS}/officeDocument" Target="word/document.xml"/></Relationships>')
    links = "".join(f'<Relationship Id="header{n}" Type="{RELATIONS}/header" Target="header{n}.xml"/>' for n in numbers)
    yield "word/_rels/document.xml.rels", f'<Relationships xmlns="{PACKAGE}relationships">{links}</Relationships>'
    body = "".join(paragraph(f"Section {n}", f"<w:pPr>{section(n)}</w:pPr>") for n in numbers[:-1])
    last = paragraph(f"Section {count}") + section(count)
    yield "word/document.xml", f'<w:document xmlns:w="{WORD}" xmlns:r="{RELATIONS}"><w:body>{body}{last}</w:body></w:document>'
    for number in numbers:
        yield f"word/header{number}.xml", f'<w:hdr xmlns:w="{WORD}">{paragraph(f"Header of OLD {number}")}</w:hdr>'


with zipfile.ZipFile(sys.argv[2], "w", zipfile.ZIP_DEFLATED) as archive:
    for name, content in parts(int(sys.argv[1])):
        archive.writestr(name, DECLARATION + content)
