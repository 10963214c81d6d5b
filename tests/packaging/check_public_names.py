"""Checks that every name of the interface can be reached by a host that has the installed headers alone.

The list has one name a line, behind how it is reached:

  name        a type, function, object or template of a namespace: by a using-declaration
  member      a public member that is not overloaded: by its address
  overloaded  operations of one name: by a using-declaration in a derived class
  protected   what derived classes reach: by a using-declaration there
  type        a type within a class
  value       an enumerator and its number
  makes       a class and, in parentheses, the types of the arguments that it can be made from
  expression  what can be written, such as an operator; its operands are named by their types

Each becomes one line of C++ that does not compile when the name is gone. Names that can not be reached, some of
each kind, show that every probe can fail.
"""
import argparse
import concurrent.futures
import os
import pathlib
import re
import subprocess
import sys

HEADERS = (
    "GenLibrarySupportFiles/lmxinternals.h",
    "GenLibrarySupportFiles/lmxparse.h",
    "GenLibrarySupportFiles/lmxtypes.h",
    "isoxmllib/isoxmllib.h",
    "transfer/IsoDDIConstants.h",
    "transfer/IsoXmlParser.h",
    "transfer/reader/xmlReader.h",
)
UNREACHABLE = (
    ("name", "::lmx::no_such_name"),
    ("member", "::Task::no_such_member"),
    ("member", "::lmx::c_unmarshal_helper::mr_reader"),  # there, but not public
    ("overloaded", "::lmx::c_xml_reader::no_such_operation"),
    ("protected", "::lmx::c_xml_reader::mp_known_in"),  # there, but private
    ("type", "::IsoXmlParser::no_such_type"),
    ("value", "::lmx::EXE_EOM 1"),
    ("value", "::lmx::no_such_value 0"),
    ("makes", "::lmx::c_check_tracker (int)"),
    ("expression", "std::declval<::lmx::c_error&>() == 1"),
)


def probe(number, kind, text):
    """The declaration that compiles as long as the name is there."""
    owner, _, last = text.rpartition("::")
    match kind:
        case "name":
            return f"namespace probe_{number} {{ using {text}; }}"
        case "member":
            return f"using probe_{number} = decltype(&{text});"
        case "overloaded" | "protected":
            return f"struct probe_{number} : {owner} {{ using {owner}::{last}; }};"
        case "type":
            return f"using probe_{number} = {text};"
        case "value":
            name, value = text.split()
            return f'static_assert(static_cast<int>({name}) == {value}, "");'
        case "makes":
            made, _, arguments = text.partition(" (")
            types = ", ".join(filter(None, (made, arguments.removesuffix(")"))))
            return f'static_assert(std::is_constructible_v<{types}>, "");'
        case "expression":
            return f"using probe_{number} = decltype({text});"
    raise ValueError(f"line {number}: no kind {kind!r}")


def read_list(path):
    """(line number, kind, text) of each name."""
    names = []
    for number, line in enumerate(path.read_text().splitlines(), start=1):
        if line and not line.startswith("#"):
            kind, _, text = line.partition(" ")
            names.append((number, kind, text))
    return names


def compile_probes(compiler, include, names, caption):
    """The compiler's word on each line that it refuses, by line number."""
    includes = "\n".join(f"#include <{header}>" for header in HEADERS)
    lines = [f'#line {number} "{caption}"\n{probe(number, kind, text)}' for number, kind, text in names]
    source = "\n".join((includes, "#include <type_traits>", "#include <utility>", *lines, ""))
    command = [*compiler, "-std=c++17", "-fsyntax-only", "-x", "c++", f"-I{include}", "-"]
    # Every fault, and each on a line of its own.
    command.append("-ferror-limit=0" if "clang" in pathlib.Path(compiler[0]).name else "-fmax-errors=0")
    environment = {**os.environ, "LC_ALL": "C"}
    result = subprocess.run(command, input=source, text=True, capture_output=True, env=environment)
    errors = re.findall(rf"^{re.escape(caption)}:(\d+):(?:\d+:)? error: (.*)$", result.stderr, re.MULTILINE)
    if (result.returncode == 0) == bool(errors):
        sys.exit(f"{' '.join(command)} failed otherwise:\n{result.stderr}")
    faults = {}
    for number, message in errors:
        faults.setdefault(int(number), message)
    return faults


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--list", type=pathlib.Path, required=True)
    parser.add_argument("--include", type=pathlib.Path, required=True, help="where the headers are installed")
    parser.add_argument("compiler", nargs="+", help="with the flags of the build")
    options = parser.parse_args()

    names = read_list(options.list)
    doubles = len(names) - len({entry[1:] for entry in names})
    if not names or doubles:
        sys.exit(f"{options.list}: {len(names)} names, {doubles} of them twice")

    unreachable = [(number, *entry) for number, entry in enumerate(UNREACHABLE, start=1)]
    sources = ((names, options.list.name), (unreachable, "unreachable"))
    with concurrent.futures.ThreadPoolExecutor() as pool:
        faults, missed = pool.map(
            lambda source: compile_probes(options.compiler, options.include, *source), sources
        )

    for number, kind, text in names:
        if number in faults:
            print(f"{options.list.name}:{number}: {kind} {text}: {faults[number]}", file=sys.stderr)
    for number, kind, text in unreachable:
        if number not in missed:
            print(f"a probe that can not fail: {kind} {text}", file=sys.stderr)
    print(f"{len(names)} names, of which {len(faults)} can not be reached")
    return 1 if faults or len(missed) != len(unreachable) else 0


if __name__ == "__main__":
    sys.exit(main())
