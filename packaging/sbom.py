#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
"""Lists what a package of Korvane is made of, as SPDX 2.3 in JSON.

What is inside comes from the command line; what programs are linked with is looked up in the system's list of
packages. The same parts make the same bytes.
"""
import argparse
import datetime
import json
import os
import pathlib
import re
import subprocess
import time
import uuid

# Of what Debian's packages hold that the programs link; the terms of others are in their copyright files.
LICENSES = {
    "libassimp": "BSD-3-Clause",
    "libc6": "LGPL-2.1-or-later",
    "gcc-mingw-w64": "GPL-3.0-or-later WITH GCC-exception-3.1",
    "libgcc-s1": "GPL-3.0-or-later WITH GCC-exception-3.1",
    "libgl1": "MIT",
    "libopengl0": "MIT",
    "libminizip1": "Zlib",
    "libqt5": "LGPL-3.0-only",
    "libseccomp2": "LGPL-2.1-only",
    "libstb": "MIT OR Unlicense",
    "libstdc++6": "GPL-3.0-or-later WITH GCC-exception-3.1",
    "libutfcpp": "BSL-1.0",
    "libz-mingw-w64": "Zlib",
    "qttranslations5": "GPL-3.0-only WITH Qt-GPL-exception-1.0",
    "zlib1g": "Zlib",
}


# What every package has in its programs.
ALWAYS_INSIDE = [("Lucide", "1.62.0", "ISC AND MIT")]


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def installed(name):
    """What package() asks of one of the system's packages."""
    version = output("dpkg-query", "-W", "-f", "${Version}", name)
    licence = next((terms for part, terms in LICENSES.items() if name.startswith(part)), "NOASSERTION")
    return name, version, licence, f"pkg:deb/debian/{name}@{version}"


def linked(programs):
    """The names of the system's packages that have a library that one of the programs names."""
    where = dict(re.findall(r"^\s*(\S+) \(libc6,x86-64[^)]*\) => (\S+)$", output("/sbin/ldconfig", "-p"), re.M))
    names = set()
    for program in programs:
        for library in re.findall(r"NEEDED +(\S+)", output("objdump", "-p", program)):
            if library not in where:
                raise SystemExit(f"sbom: {program} is linked with {library}, which is nowhere")
            path = pathlib.Path(where[library])
            # The list of packages may still have the folder that /usr/lib was merged with.
            found = [p for p in (path, path.resolve(), pathlib.Path("/usr") / str(path.resolve())[1:],
                                 pathlib.Path(str(path.resolve()).removeprefix("/usr")))
                     if subprocess.run(["dpkg", "-S", p], capture_output=True, check=False).returncode == 0]
            if not found:
                raise SystemExit(f"sbom: no package has {path}")
            names.add(output("dpkg", "-S", str(found[0])).split(":")[0])
    return sorted(names)


def package(name, version, licence, locator=None):
    entry = {
        "SPDXID": "SPDXRef-" + re.sub(r"[^A-Za-z0-9.-]", "-", name),
        "name": name,
        "versionInfo": version,
        "downloadLocation": "NOASSERTION",
        "filesAnalyzed": False,
        "licenseConcluded": licence,
        "licenseDeclared": licence,
        "copyrightText": "NOASSERTION",
    }
    if locator:
        entry["externalRefs"] = [{"referenceCategory": "PACKAGE-MANAGER", "referenceType": "purl",
                                  "referenceLocator": locator}]
    return entry


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--version", required=True, help="of Korvane")
    parser.add_argument("--inside", action="append", default=[], metavar="NAME|VERSION|LICENCE[|LOCATOR]",
                        help="something that the package holds, and where others find it (a purl)")
    parser.add_argument("--built-in", action="append", default=[], metavar="PACKAGE",
                        help="a package of the system, parts of which are in the programs")
    parser.add_argument("--linked", nargs="*", default=[], metavar="PROGRAM",
                        help="a program whose libraries are those of the system")
    parser.add_argument("-o", "--output", type=pathlib.Path, required=True)
    options = parser.parse_args()

    parts = [package("Korvane", options.version, "MIT")]
    relations = [("SPDXRef-DOCUMENT", "DESCRIBES", parts[0]["SPDXID"])]
    for each in ALWAYS_INSIDE + [part.split("|") for part in options.inside]:
        parts.append(package(*each))
        relations.append((parts[0]["SPDXID"], "CONTAINS", parts[-1]["SPDXID"]))
    for name in options.built_in:
        parts.append(package(*installed(name)))
        relations.append((parts[0]["SPDXID"], "CONTAINS", parts[-1]["SPDXID"]))
    for name in linked(options.linked):
        parts.append(package(*installed(name)))
        relations.append((parts[0]["SPDXID"], "DYNAMIC_LINK", parts[-1]["SPDXID"]))

    time_of_sources = int(os.environ.get("SOURCE_DATE_EPOCH", time.time()))
    created = datetime.datetime.fromtimestamp(time_of_sources, datetime.timezone.utc)
    document = {
        "spdxVersion": "SPDX-2.3",
        "dataLicense": "CC0-1.0",
        "SPDXID": "SPDXRef-DOCUMENT",
        "name": f"Korvane-{options.version}",
        # One for each list of parts.
        "documentNamespace": "urn:uuid:" + str(uuid.uuid5(uuid.NAMESPACE_OID, json.dumps([parts, time_of_sources]))),
        "creationInfo": {"created": created.strftime("%Y-%m-%dT%H:%M:%SZ"),
                         "creators": ["Organization: The Korvane developers", "Tool: sbom.py"]},
        "packages": parts,
        "relationships": [{"spdxElementId": a, "relationshipType": kind, "relatedSpdxElement": b}
                          for a, kind, b in relations],
    }
    options.output.write_text(json.dumps(document, indent=2) + "\n", encoding="utf-8")


if __name__ == "__main__":
    main()
