#!/usr/bin/env python3
"""Takes an example out of a document: the fenced block behind the line "<!-- example: NAME -->".

  code_block.py DOCUMENT NAME OUTPUT

Line numbers stay those of the document, so that a compiler complains about the right line.
"""

import pathlib
import sys


class NoSuchExample(Exception):
    pass


def extract(document, name):
    """The lines of the block, behind as many empty ones as stand before it in the document."""
    lines = document.splitlines()
    marks = [number for number, line in enumerate(lines) if line.strip() == f"<!-- example: {name} -->"]
    if len(marks) != 1:
        raise NoSuchExample(f"{len(marks)} examples are named {name}")
    begin = next((n for n in range(marks[0] + 1, len(lines)) if lines[n].strip()), len(lines))
    if begin == len(lines) or not lines[begin].startswith("```"):
        raise NoSuchExample(f"behind the mark of {name} there is no block")
    end = next((n for n in range(begin + 1, len(lines)) if lines[n] == "```"), None)
    if end is None:
        raise NoSuchExample(f"the block of {name} does not end")
    return "\n" * (begin + 1) + "\n".join(lines[begin + 1:end]) + "\n"


def main(arguments):
    document, name, output = arguments
    try:
        code = extract(pathlib.Path(document).read_text(encoding="utf-8"), name)
    except NoSuchExample as problem:
        sys.exit(f"{document}: {problem}")
    pathlib.Path(output).write_text(code, encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main(sys.argv[1:])
