"""Checks the names that the shared library exports.

Template code of the standard library that is compiled into the library must stay inside: exported, it
could replace a host's copy of another version, or be replaced by it. Names of libxml2 would tell that it
had been linked in. With --list, the mangled names must also be those of the reviewed list.
"""
import argparse
import pathlib
import re
import subprocess
import sys

# By mangled name, since a demangled template function begins with its result: virtual tables, type
# information (also of pointers), guards, temporaries, thunks and entities within functions included.
FOREIGN_MANGLED = re.compile(
    r"""_Z
        (?: GV | GR | T[VTISC][PKRO]* | T(?:h n?\d+ | v n?\d+_n?\d+ | c.*? )_ | Z )*
        N? [rVK]* [RO]?
        (?: S[tabsiod] | 9__gnu_cxx | 10__cxxabiv1 )""",
    re.VERBOSE,
)
FOREIGN_DEMANGLED = re.compile(
    r"""(?: (?:construction\ )?vtable\ for\ | VTT\ for\ | typeinfo\ (?:name\ )?for\ | guard\ variable\ for\ |
            reference\ temporary\ .*\ for\ | (?:non-)?virtual\ thunk\ to\ )?
        (?: std:: | __gnu_cxx:: | __cxxabiv1:: | xml[A-Z_] )""",
    re.VERBOSE,
)


# What clang's function sanitizer compares when a pointer is called; two libraries must share it.
FUNCTION_TYPE = re.compile(r"_ZT[IS]P*F")


def exported(nm, library):
    """Pairs of mangled and demangled name, sorted by the former."""

    def names(*options):
        command = [nm, "--dynamic", "--defined-only", "--no-sort", "--format=posix", *options, library]
        lines = subprocess.run(command, check=True, capture_output=True, text=True).stdout.splitlines()
        # "name type value size"; only a demangled name holds blanks
        return [re.sub(r" [A-Za-z] [0-9a-f ]*$", "", line).split("@")[0] for line in lines]

    return sorted(zip(names(), names("--demangle"), strict=True))


def foreign(symbols):
    return [
        f"{mangled}  {demangled}"
        for mangled, demangled in symbols
        if not FUNCTION_TYPE.match(mangled)
        and (FOREIGN_MANGLED.match(mangled) or FOREIGN_DEMANGLED.match(demangled))
    ]


def differences(symbols, reviewed):
    demangled = dict(symbols)
    found = set(demangled)
    return [f"no longer exported: {name}" for name in sorted(reviewed - found)] + [
        f"exported but not in the list: {name}  {demangled[name]}" for name in sorted(found - reviewed)
    ]


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--library", required=True)
    parser.add_argument("--nm", default="nm")
    parser.add_argument("--list", type=pathlib.Path, help="the reviewed list")
    parser.add_argument("--write", type=pathlib.Path, help="write the list instead of comparing it")
    options = parser.parse_args()

    symbols = exported(options.nm, options.library)
    faults = [f"not ours to export: {name}" for name in foreign(symbols)]
    if not symbols:
        faults.append("nothing is exported")
    if options.list and not faults:
        reviewed = options.list.read_text() if options.list.exists() else ""
        faults = differences(symbols, set(reviewed.split()))
        if faults:
            faults.append("if these changes are meant, run scripts/update-exports.sh")
    if options.write and not faults:
        options.write.write_text("".join(f"{mangled}\n" for mangled, _ in symbols))

    for fault in faults:
        print(fault, file=sys.stderr)
    print(f"{len(symbols)} exported names:", "not as they should be" if faults else "as they should be")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
