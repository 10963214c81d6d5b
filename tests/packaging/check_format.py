"""Checks that every source and header is laid out as clang-format lays it out.

Generated files say so in their first line, "// clang-format off"; a test of their own holds them to
their source.
"""
import pathlib
import shutil
import subprocess
import sys


def tracked(root):
    """What git knows or would take, or, where there is no repository, what the tree holds."""
    command = ["git", "-c", "safe.directory=*", "-C", str(root), "ls-files", "--cached", "--others"]
    try:
        listing = subprocess.run(
            [*command, "--exclude-standard", "-z", "*.cpp", "*.h"], check=True, capture_output=True, text=True
        )
        files = {root / name for name in listing.stdout.split("\0") if name}
    except (OSError, subprocess.CalledProcessError):
        files = {file for file in root.rglob("*.*") if file.suffix in (".cpp", ".h")}
        files = {file for file in files if file.relative_to(root).parts[0] != "build"}
    return sorted(file for file in files if file.is_file())  # git still lists a file just removed


def is_generated(file):
    with file.open(encoding="utf-8") as lines:
        return lines.readline().strip() == "// clang-format off"


def is_laid_out(file):
    bytes_now = file.read_bytes()
    command = ["clang-format", "--style=file", str(file)]
    return subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout == bytes_now


def main():
    root = pathlib.Path(sys.argv[1]).resolve()
    if shutil.which("clang-format") is None:
        print("clang-format is not installed; the Debian package is clang-format", file=sys.stderr)
        return 1
    files = [file for file in tracked(root) if not is_generated(file)]
    faults = [file for file in files if not is_laid_out(file)]
    for file in faults:
        print(f"{file.relative_to(root)}: run clang-format -i on it", file=sys.stderr)
    print(f"{len(files)} files looked at, {len(faults)} to be laid out")
    return 1 if faults or not files else 0


if __name__ == "__main__":
    sys.exit(main())
