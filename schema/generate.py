#!/usr/bin/env python3
"""Turns the description of the format into its products. Writes only files that change.

    generate.py            write
    generate.py --check    compare, and fail if a file is not current
"""

import sys
from pathlib import Path

import cpp
import model

PRODUCTS = [cpp]
PROJECT = Path(__file__).resolve().parent.parent


def main(arguments):
    check = arguments == ["--check"]
    if arguments and not check:
        print(__doc__, file=sys.stderr)
        return 2
    try:
        schema = model.load()
    except model.DescriptionError as error:
        print(f"schema: {error}", file=sys.stderr)
        return 1
    stale = []
    for product in PRODUCTS:
        for path, text in product.files(schema).items():
            target = PROJECT / path
            if target.exists() and target.read_text() == text:
                continue
            stale.append(path)
            if not check:
                target.write_text(text)
    for path in stale:
        print(f"{path} is not current" if check else f"wrote {path}")
    return 1 if check and stale else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
