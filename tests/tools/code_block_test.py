#!/usr/bin/env python3
"""What tools/code_block.py takes out of a document, and what it refuses."""

import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))

from code_block import NoSuchExample, extract

DOCUMENT = """# Title

<!-- example: a.c -->

```c
int a;

int b;
```

<!-- example: b.c -->
```c
int c;
```
"""


class CodeBlock(unittest.TestCase):
    def refused(self, document, name="a.c"):
        with self.assertRaises(NoSuchExample):
            extract(document, name)

    def test_the_block_keeps_its_lines(self):
        code = extract(DOCUMENT, "a.c")
        self.assertEqual(code.strip(), "int a;\n\nint b;")
        self.assertEqual(code.splitlines().index("int a;"), DOCUMENT.splitlines().index("int a;"))

    def test_names_are_whole(self):
        self.assertEqual(extract(DOCUMENT, "b.c").strip(), "int c;")
        self.refused(DOCUMENT, "a")
        self.refused(DOCUMENT, "c.c")

    def test_a_name_stands_once(self):
        self.refused(DOCUMENT + DOCUMENT)

    def test_the_block_follows_its_mark(self):
        self.refused("<!-- example: a.c -->\n\nText\n\n```c\nint a;\n```\n")
        self.refused("<!-- example: a.c -->\n")

    def test_the_block_ends(self):
        self.refused("<!-- example: a.c -->\n```c\nint a;\n")


if __name__ == "__main__":
    unittest.main()
