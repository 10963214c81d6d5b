"""Checks the names that the shared library exports.

Template code of the standard library that is compiled into the library must stay inside: exported, it
could replace a host's copy of another version, or be replaced by it. Names of libxml2 would tell that it
had been linked in. With --mutable, data that changes must stand in the linker's dynamic list; with
--list, the mangled names must be those of the reviewed list.
"""
import argparse
import pathlib
import re
import subprocess
import sys
import typing

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


class Symbol(typing.NamedTuple):
    mangled: str
    demangled: str
    section: str


def exported(nm, library):
    """The exported symbols, sorted by mangled name."""

    def rows(*options):
        command = [nm, "--dynamic", "--defined-only", "--no-sort", "--format=sysv", *options, library]
        lines = subprocess.run(command, check=True, capture_output=True, text=True).stdout.splitlines()
        # "name|value|class|type|size|line|section"; a demangled name may hold a "|" of its own
        columns = [line.rsplit("|", 6) for line in lines if line.count("|") >= 6]
        return [(row[0].split("@")[0].strip(), row[6].strip()) for row in columns]

    return sorted(
        Symbol(mangled, demangled, section)
        for (mangled, section), (demangled, _) in zip(rows(), rows("--demangle"), strict=True)
    )


def foreign(symbols):
    return [
        f"not ours to export: {symbol.mangled}  {symbol.demangled}"
        for symbol in symbols
        if not FUNCTION_TYPE.match(symbol.mangled)
        and (FOREIGN_MANGLED.match(symbol.mangled) or FOREIGN_DEMANGLED.match(symbol.demangled))
    ]


def bound_to_a_copy(symbols, dynamic_list):
    """Data that can still change after loading, which a program would hold a stale copy of."""
    shared = set(re.findall(r"\b_Z\w+", dynamic_list.read_text()))
    return [
        f"mutable, but not in {dynamic_list.name}: {symbol.mangled}  {symbol.demangled}"
        for symbol in symbols
        if symbol.section in (".bss", ".data") and symbol.mangled not in shared
    ]


def differences(symbols, reviewed):
    demangled = {symbol.mangled: symbol.demangled for symbol in symbols}
    found = set(demangled)
    return [f"no longer exported: {name}" for name in sorted(reviewed - found)] + [
        f"exported but not in the list: {name}  {demangled[name]}" for name in sorted(found - reviewed)
    ]


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--library", required=True)
    parser.add_argument("--nm", default="nm")
    parser.add_argument("--list", type=pathlib.Path, help="the reviewed list")
    parser.add_argument("--mutable", type=pathlib.Path, help="the dynamic list of mutable objects")
    parser.add_argument("--write", type=pathlib.Path, help="write the list instead of comparing it")
    options = parser.parse_args()

    symbols = exported(options.nm, options.library)
    faults = foreign(symbols)
    if not symbols:
        faults.append("nothing is exported")
    if options.mutable:
        faults += bound_to_a_copy(symbols, options.mutable)
    if options.list and not faults:
        reviewed = options.list.read_text() if options.list.exists() else ""
        faults = differences(symbols, set(reviewed.split()))
        if faults:
            faults.append("if these changes are meant, run scripts/update-exports.sh")
    if options.write and not faults:
        options.write.write_text("".join(f"{symbol.mangled}\n" for symbol in symbols))

    for fault in faults:
        print(fault, file=sys.stderr)
    print(f"{len(symbols)} exported names:", "not as they should be" if faults else "as they should be")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
