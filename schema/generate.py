#!/usr/bin/env python3
"""Turns the description of the format into its products. Writes only files that change.

    generate.py [--check] [--schema FOLDER] [--output FOLDER]

With --check nothing is written: the exit status is 1 if a file is not current.
"""

import argparse
import sys
from pathlib import Path

sys.dont_write_bytecode = True

import cpp
import model
import reference
import xsd

PRODUCTS = [cpp, xsd, reference]
PROJECT = Path(__file__).resolve().parent.parent


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", action="store_true", help="compare instead of writing")
    parser.add_argument("--schema", type=Path, default=model.HERE, help="where the description is")
    parser.add_argument("--output", type=Path, default=PROJECT, help="where the products go")
    arguments = parser.parse_args()
    try:
        schema = model.load(arguments.schema)
    except (model.DescriptionError, model.tomllib.TOMLDecodeError) as error:
        print(f"schema: {error}", file=sys.stderr)
        return 1
    stale = []
    for product in PRODUCTS:
        for path, text in product.files(schema).items():
            target = arguments.output / path
            if target.exists() and target.read_text() == text:
                continue
            stale.append(path)
            if not arguments.check:
                target.parent.mkdir(parents=True, exist_ok=True)
                target.write_text(text)
    for path in stale:
        print(f"{path} is not current" if arguments.check else f"wrote {path}")
    return 1 if arguments.check and stale else 0


if __name__ == "__main__":
    sys.exit(main())
