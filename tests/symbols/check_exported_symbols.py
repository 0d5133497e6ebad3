#!/usr/bin/env python3
"""Fails when a kornum shared library exports a name outside its public API.

Usage: check_exported_symbols.py LIBRARY...

Every defined dynamic symbol, demangled, must belong to the public namespaces (Platform and
the Kornum* modules), not to an internal namespace of theirs (detail, special), or be one
of the internal interface the base library exports on purpose
(core/detail/BaseLibraryInterface.hpp). A library that exports nothing of the public
namespaces also fails: a lost export macro would otherwise pass unseen.
"""
import re
import subprocess
import sys

# What the statistics library takes from the base library beyond the public headers.
INTERNAL_INTERFACE = {
    "Kornummath::special::IncompleteBeta(Kornummath::special::TwoFloat const&, long double, long double)",
    "Kornummath::special::BetaDensity(Kornummath::special::TwoFloat, Kornummath::special::TwoFloat, long double, long double)",
    "Kornummath::special::InverseIncompleteBeta(long double, long double, long double, bool)",
}

# Compiler-made companions of a class or variable name the check reads through.
COMPANION = re.compile(r"^(typeinfo name for|typeinfo for|vtable for|VTT for|guard variable for) ")
PUBLIC = re.compile(r"^(?:[\w:<>, *&]+ )?(Platform|Kornum\w*)::")
INTERNAL = re.compile(r"::(detail|special)::")


def exported_names(library):
    listing = subprocess.run(["nm", "-D", "--defined-only", "-C", library], check=True,
                             capture_output=True, text=True).stdout
    for line in listing.splitlines():
        parts = line.split(" ", 2)
        if len(parts) == 3:
            yield parts[2]


def stray_names(names):
    for name in names:
        if name in INTERNAL_INTERFACE:
            continue
        bare = COMPANION.sub("", name)
        if not PUBLIC.match(bare) or INTERNAL.search(bare.split("(")[0]):
            yield name


def main(libraries):
    failed = False
    for library in libraries:
        names = list(exported_names(library))
        stray = list(stray_names(names))
        public = len(names) - len(stray)
        print(f"{library}: {len(names)} exported, {len(stray)} outside the public API")
        for name in stray:
            print(f"  {name}")
        if stray or public == 0:
            failed = True
    return 1 if failed else 0


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1:]))
