#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
# SPDX-License-Identifier: Apache-2.0
"""Writes the bill of materials of a release as SPDX 2.3 JSON.

A file like components.json declares what the programs contain and link. This script compares it with
the libraries recorded by the linker in each program and with the objects and archives that it read.
It fails on anything undeclared, and on a declared library that no program links. A library with code
in its headers has its C++ namespace in the declaration: a program that defines functions of that
namespace contains the library. Libraries of the operating system, which no package contains, are
declared by their names only.
"""
import argparse
import datetime
import fnmatch
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys

SUPPLIER = "Organization: The Tarn-Mobile User authors"
SHARED = re.compile(r"^\s*(?:NEEDED|DLL Name:)\s+(\S+)", re.MULTILINE)


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--components", type=pathlib.Path, required=True)
    parser.add_argument("--release", required=True, help="version of the product")
    parser.add_argument("--date", required=True, help="date of the release, as in 2026-11-22")
    parser.add_argument("--homepage", required=True)
    parser.add_argument("--build", type=pathlib.Path, required=True, help="build folder")
    parser.add_argument("--program", action="append", nargs=3, default=[],
                        metavar=("ID", "FILE", "INPUTS"),
                        help="a linked program and the dependency file that its linker wrote")
    parser.add_argument("--version", action="append", nargs=2, default=[],
                        metavar=("ID", "VERSION"), help="version of a component")
    parser.add_argument("--objdump", default="objdump")
    parser.add_argument("--nm", default="nm")
    parser.add_argument("--out", type=pathlib.Path, required=True)
    return parser.parse_args()


def shared_libraries(objdump, program):
    """The names of the shared libraries that a program loads."""
    dump = subprocess.run([objdump, "-p", program], check=True, capture_output=True, text=True)
    return set(SHARED.findall(dump.stdout))


def included(nm, program, linked):
    """The declared libraries from whose headers a program took functions."""
    wanted = [component for component in linked if "namespace" in component]
    if not wanted:
        return set()
    names = subprocess.run([nm, "--demangle", "--defined-only", "--format=posix", program],
                           check=True, capture_output=True, text=True).stdout
    if not names:
        sys.exit(f"{program}: no symbols; the bill of materials needs the program before it is stripped")
    return {component["id"] for component in wanted
            if re.search(rf"^{re.escape(component['namespace'])}::", names, re.MULTILINE)}


def linked_in(inputs, build):
    """The names of the archives and objects from outside the build that the linker read."""
    text = pathlib.Path(inputs).read_text(encoding="utf-8").replace("\\\n", " ")
    prerequisites = text.split("\n\n")[0].split(":", 1)[1].split()
    outside = (path for path in prerequisites
               if path.endswith((".a", ".o", ".obj")) and (build / path).resolve().is_file())
    return {os.path.basename(path) for path in outside
            if build.resolve() not in (build / path).resolve().parents}


def owner(linked, name):
    """The declared component that a linked file belongs to, or None."""
    for component in linked:
        if any(fnmatch.fnmatch(name, pattern) for pattern in component["files"]):
            return component["id"]
    return None


def taken_components(options, linked, system):
    """The linked components of each program. Ends the process on a mismatch."""
    taken, problems = {}, []
    for program, file, inputs in options.program:
        names = shared_libraries(options.objdump, file) | linked_in(inputs, options.build)
        names -= set(system)
        owners = {name: owner(linked, name) for name in names}
        problems += [f"{program} links {name}, which no component declares"
                     for name in sorted(names) if owners[name] is None]
        found = {component for component in owners.values() if component}
        taken[program] = sorted(found | included(options.nm, file, linked))
    used = {component for components in taken.values() for component in components}
    problems += [f"no program links {component['id']}, which is declared"
                 for component in linked if component["id"] not in used]
    if problems:
        sys.exit("\n".join(f"{options.components}: {problem}" for problem in problems))
    return taken


def package(component, version, homepage):
    return {
        "SPDXID": f"SPDXRef-{component['id']}",
        "name": component["name"],
        "versionInfo": version,
        "supplier": SUPPLIER if "homepage" not in component else "NOASSERTION",
        "downloadLocation": "NOASSERTION",
        "homepage": component.get("homepage", homepage),
        "filesAnalyzed": False,
        "licenseConcluded": component["license"],
        "licenseDeclared": component["license"],
        "copyrightText": "NOASSERTION",
        **({"summary": component["summary"]} if "summary" in component else {}),
    }


def relation(element, kind, other):
    return {"spdxElementId": f"SPDXRef-{element}", "relationshipType": kind,
            "relatedSpdxElement": f"SPDXRef-{other}"}


def created(date):
    """SOURCE_DATE_EPOCH if set, otherwise the release date, so that builds are reproducible."""
    epoch = os.environ.get("SOURCE_DATE_EPOCH")
    if epoch:
        moment = datetime.datetime.fromtimestamp(int(epoch), datetime.timezone.utc)
        return moment.strftime("%Y-%m-%dT%H:%M:%SZ")
    return f"{date}T00:00:00Z"


def document(options, declared, taken):
    others = declared["contained"] + declared["linked"]
    versions = {component["id"]: component.get("version") for component in others}
    versions.update(options.version)
    missing = [component["id"] for component in others if not versions.get(component["id"])]
    if missing:
        sys.exit(f"{options.components}: no version of {', '.join(missing)}")
    packages = [package(program, options.release, options.homepage)
                for program in declared["programs"]]
    packages += [package(component, versions[component["id"]], options.homepage)
                 for component in others]
    relations = [relation("DOCUMENT", "DESCRIBES", program["id"])
                 for program in declared["programs"]]
    relations += [relation(container, "CONTAINS", component["id"])
                  for component in declared["contained"] for container in component["in"]]
    relations += [relation(program, "DEPENDS_ON", component)
                  for program, components in taken.items() for component in components]
    digest = hashlib.sha256(json.dumps([packages, relations]).encode()).hexdigest()[:16]
    name = f"tarn-mobile-user-{options.release}"
    return {
        "spdxVersion": "SPDX-2.3",
        "dataLicense": "CC0-1.0",
        "SPDXID": "SPDXRef-DOCUMENT",
        "name": name,
        "documentNamespace": f"{options.homepage}spdx/{name}-{digest}",
        "creationInfo": {"created": created(options.date), "creators": [SUPPLIER]},
        "packages": packages,
        "relationships": relations,
    }


def main():
    options = parse_arguments()
    declared = json.loads(options.components.read_text(encoding="utf-8"))
    taken = taken_components(options, declared["linked"], declared.get("system", []))
    text = json.dumps(document(options, declared, taken), indent=2) + "\n"
    options.out.write_text(text, encoding="utf-8")


if __name__ == "__main__":
    main()
