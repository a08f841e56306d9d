"""What others wrote and the packages contain, with its versions and texts as the installed Debian packages have them:
  parts.py notices OUT.txt
  parts.py bill VERSION EPOCH OUT.spdx.json FILE...    a software bill of materials (SPDX 2.3) of the files"""
import datetime
import hashlib
import json
import os
import subprocess
import sys

COMPILERS = {"32-bit": "i686-w64-mingw32-g++", "64-bit": "x86_64-w64-mingw32-g++"}
# A part, the file of it that is linked in, its licence, and which of the files have it.
LINKED = [
    ("libstdc++", "libstdc++.a", "GPL-3.0-or-later WITH GCC-exception-3.1"),
    ("libgcc", "libgcc.a", "GPL-3.0-or-later WITH GCC-exception-3.1"),
    ("mingw-w64 runtime", "libmingw32.a", "ZPL-2.1 AND LicenseRef-mingw-w64"),
]
# In the installer's own program, and in the test programs of the check.
OTHERS = [("NSIS", "nsis", "Zlib AND CPL-1.0", "setup.exe"), ("GoogleTest", "googletest", "BSD-3-Clause", "check.zip")]
WHY = {
    "libstdc++": "Parts of it are linked into ZORBOffice.ocx, as the GCC Runtime Library Exception, below, permits.",
    "mingw-w64 runtime": "Parts of it are linked into ZORBOffice.ocx.",
    "NSIS": "The installer's own program and the uninstaller are made of it.",
    "GoogleTest": "It is linked into the test programs of the check for Windows.",
}


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout.strip()


def package_of(path):
    return output("dpkg", "-S", os.path.realpath(path)).split(":")[0]


def version_of(package):
    return output("dpkg-query", "-W", "-f", "${Version}", package)


def linked_parts():
    for name, file, licence in LINKED:
        for bits, compiler in COMPILERS.items():
            package = package_of(output(compiler, f"-print-file-name={file}"))
            yield name, bits, package, licence


def notices(out):
    packages = {name: package for name, bits, package, _ in linked_parts() if name in WHY}
    packages |= {name: package for name, package, _, _ in OTHERS}
    with open(out, "w", encoding="utf-8", newline="\r\n") as file:
        file.write("Parts of these files were written by others. Their notices and licences follow, as Debian hands them on.\n")
        for name, package in packages.items():
            with open(f"/usr/share/doc/{package}/copyright", encoding="utf-8", errors="replace") as text:
                rule = "=" * 100
                file.write(f"\n{rule}\n{name} (package {package} {version_of(package)})\n{WHY[name]}\n{rule}\n\n{text.read()}")


def identifier(*words):
    return "SPDXRef-" + "-".join("".join(c if c.isalnum() else "-" for c in word) for word in words)


def bill(version, epoch, out, *files):
    def package(key, name, number, licence, comment=""):
        row = {"SPDXID": key, "name": name, "versionInfo": number, "downloadLocation": "NOASSERTION", "filesAnalyzed": False,
               "licenseConcluded": licence, "licenseDeclared": licence, "copyrightText": "NOASSERTION"}
        return row | ({"comment": comment} if comment else {})

    def relation(one, kind, other):
        return {"spdxElementId": one, "relationshipType": kind, "relatedSpdxElement": other}

    product = identifier("ZORBOffice")
    packages = [package(product, "ZORBOffice", version, "NOASSERTION")]
    relations = [relation("SPDXRef-DOCUMENT", "DESCRIBES", product)]
    for name, bits, debian, licence in linked_parts():
        key = identifier(name, bits)
        packages.append(package(key, f"{name} ({bits})", version_of(debian), licence, f"of Debian's package {debian}"))
        relations.append(relation(product, "STATIC_LINK", key))
    for name, debian, licence, where in OTHERS:
        key = identifier(name)
        packages.append(package(key, name, version_of(debian), licence, f"of Debian's package {debian}; in {where} only"))
        relations += [relation(identifier(os.path.basename(path)), "CONTAINS", key) for path in files if path.endswith(where)]
    rows = []
    for path in files:
        content = open(path, "rb").read()
        sums = [{"algorithm": kind, "checksumValue": hashlib.new(kind, content).hexdigest()} for kind in ("SHA1", "SHA256")]
        rows.append({"SPDXID": identifier(os.path.basename(path)), "fileName": "./" + os.path.basename(path),
                     "copyrightText": "NOASSERTION", "licenseConcluded": "NOASSERTION", "checksums": sums})
        relations.append(relation(product, "CONTAINS", rows[-1]["SPDXID"]))
    digest = hashlib.sha256(json.dumps(rows).encode()).hexdigest()
    created = datetime.datetime.fromtimestamp(int(epoch), datetime.timezone.utc).strftime("%Y-%m-%dT%H:%M:%SZ")
    notices_of_mingw = open("/usr/share/doc/mingw-w64-common/copyright", encoding="utf-8").read()
    document = {
        "spdxVersion": "SPDX-2.3", "dataLicense": "CC0-1.0", "SPDXID": "SPDXRef-DOCUMENT", "name": f"ZORBOffice-{version}",
        "documentNamespace": f"urn:zorboffice:spdx:{version}:{digest[:32]}",
        "creationInfo": {"created": created, "creators": ["Tool: script/package"]},
        "hasExtractedLicensingInfos": [{"licenseId": "LicenseRef-mingw-w64", "name": "mingw-w64's further notices",
                                        "extractedText": notices_of_mingw}],
        "packages": packages, "files": rows, "relationships": relations}
    with open(out, "w", encoding="utf-8") as file:
        json.dump(document, file, indent=1, sort_keys=True)
        file.write("\n")


{"notices": notices, "bill": bill}[sys.argv[1]](*sys.argv[2:])
