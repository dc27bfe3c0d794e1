#!/usr/bin/env python3
"""What tools/messages.py and tools/join_resources.py refuse, and what they put right."""

import contextlib
import io
import os
import pathlib
import struct
import subprocess
import sys
import tempfile
import unittest
from unittest import mock

TOOLS = pathlib.Path(__file__).resolve().parents[2] / "tools"
sys.path.insert(0, str(TOOLS))

import join_resources
import messages
import resfile


def message(id=0x0001, symbol="MSG_A", text="x%0", severity="Informational"):
    return f"MessageId=0x{id:04X} Severity={severity} Facility=Ui SymbolicName={symbol} Language=English\n{text}\n.\n"


def parse(*sources):
    with tempfile.TemporaryDirectory() as folder:
        paths = [os.path.join(folder, f"{number}.mc") for number in range(len(sources))]
        for path, source in zip(paths, sources):
            pathlib.Path(path).write_text(source, encoding="utf-8")
        return messages.parse_all(paths)


def catalogue(entries):
    """A catalogue object with these translations, from (context, text) to text."""
    lines = ['msgid ""', 'msgstr "Content-Type: text/plain; charset=UTF-8\\n"']
    for (context, text), translation in entries.items():
        lines += [""] + ([f'msgctxt "{context}"'] if context else []) + [f'msgid "{text}"', f'msgstr "{translation}"']
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "x.mo")
        subprocess.run(["msgfmt", "-o", path, "-"], input="\n".join(lines).encode(), check=True)
        return messages.read_catalogue(path)


class MessageSource(unittest.TestCase):
    def refused(self, *sources):
        with self.assertRaises(messages.SourceError):
            parse(*sources)

    def test_an_id_exists_once_in_all_files(self):
        self.refused(message(1, "MSG_A"), message(1, "MSG_B"))
        parse(message(1, "MSG_A"), message(1, "MSG_B", severity="Error"))

    def test_a_name_exists_once_in_all_files(self):
        self.refused(message(1, "MSG_A"), message(2, "MSG_A"))

    def test_inserts_are_one_to_nine(self):
        parse(message(text="%1!s! %9!d!%0"))
        self.refused(message(text="%10!s!%0"))

    def test_other_escapes_are_refused(self):
        parse(message(text="50%% %n low%0"))
        self.refused(message(text="5% of it%0"))
        self.refused(message(text="first%0 second%0"))

    def test_a_text_is_one_line_with_its_end_mark(self):
        self.refused(message(text="x"))
        self.refused(message(text="x\ny%0"))
        self.refused(message(text="%0"))

    def test_a_head_is_complete(self):
        self.refused(message().replace(" Facility=Ui", ""))
        self.refused(message().replace("0x0001", "1"))

    def test_ids_are_severity_facility_and_number(self):
        self.assertEqual([m.id for m in parse(message(0x83A))], [0x4001083A])
        self.assertEqual([m.id for m in parse(message(0x1139, severity="Error"))], [0xC0011139])

    def test_the_comment_directly_above_is_for_the_translators(self):
        self.assertEqual(parse("; far\n\n; near\n; by\n" + message())[0].note, ["near", "by"])


class Translation(unittest.TestCase):
    def translate(self, text, entries):
        return messages.translated(parse(message(text=text))[0], catalogue(entries), "de")

    def test_comes_from_the_catalogue(self):
        self.assertEqual(self.translate("Page%0", {(None, "Page"): "Seite"}), "Seite")

    def test_is_told_apart_by_its_context(self):
        entries = {("size", "small"): "klein", ("quality", "small"): "gering"}
        self.assertEqual(self.translate("#msgctxt#size#small%0", entries), "klein")
        self.assertEqual(self.translate("#msgctxt#quality#small%0", entries), "gering")

    def test_that_is_missing_leaves_the_entry_open(self):
        self.assertEqual(self.translate("Page%0", {}), "XX")
        self.assertEqual(self.translate("#msgctxt#size#small%0", {(None, "small"): "gering"}), "XX")

    def test_that_is_equal_to_english_is_kept(self):
        self.assertEqual(self.translate("Info%0", {(None, "Info"): "Info"}), "Info")

    def test_with_other_inserts_is_refused(self):
        with self.assertRaises(messages.SourceError):
            self.translate("%1!s!%0", {(None, "%1!s!"): "%1!d!"})
        with self.assertRaises(messages.SourceError):
            self.translate("%1!s!%0", {(None, "%1!s!"): "nothing"})


def dialog(language, text=b"", number=100, style=join_resources.DS_SETFONT):
    head = join_resources.DIALOG_HEAD.pack(1, 0xFFFF, 0, 0, style, 0, 0, 0, 10, 10)
    font = struct.pack("<HHBB", 8, 400, 0, 0) + "MS Shell Dlg\0".encode("utf-16le")
    return resfile.Resource(resfile.DIALOG, number, language, head + bytes(6) + font + text)


class Joining(unittest.TestCase):
    def join(self, *resources):
        with tempfile.TemporaryDirectory() as folder:
            source, output = os.path.join(folder, "in.res"), os.path.join(folder, "out.res")
            resfile.write(source, resources)
            with mock.patch.object(sys, "argv", ["join_resources.py", "--output", output, source]):
                join_resources.main()
            return {r.language: r for r in resfile.read(output)}

    def refused(self, *resources):
        with self.assertRaises(SystemExit), contextlib.redirect_stderr(io.StringIO()):
            self.join(*resources)

    def test_english_is_nine(self):
        self.assertIn(9, self.join(dialog(0x409)))
        self.assertNotIn(0x409, self.join(dialog(0x409), dialog(9)))

    def test_a_missing_language_gets_the_english_form(self):
        joined = self.join(dialog(9, b"en"), dialog(7, b"de"))
        self.assertEqual(set(joined), {1, 7, 9, 12})
        self.assertTrue(joined[7].data.endswith(b"de") and joined[12].data.endswith(b"en"))

    def test_neutral_resources_stay_neutral(self):
        self.assertEqual(set(self.join(dialog(0))), {0})

    def test_arabic_dialogs_alone_are_mirrored(self):
        joined = self.join(dialog(9), dialog(7), dialog(1))
        ex_style = {language: join_resources.DIALOG_HEAD.unpack_from(r.data)[3] for language, r in joined.items()}
        self.assertEqual(ex_style, {1: join_resources.WS_EX_LAYOUTRTL, 7: 0, 9: 0, 12: 0})

    def test_dialog_fonts_have_the_default_charset(self):
        font_offset = join_resources.DIALOG_HEAD.size + 6
        self.assertEqual({r.data[font_offset + 5] for r in self.join(dialog(9)).values()}, {1})

    def test_another_language_is_refused(self):
        self.refused(dialog(0x410))

    def test_a_context_mark_left_over_is_refused(self):
        self.refused(dialog(9, "#msgctxt#verb#Open".encode("utf-16le")))

    def test_a_resource_that_exists_twice_is_refused(self):
        self.refused(dialog(9), dialog(9))

    def test_an_old_dialog_form_is_refused(self):
        self.refused(resfile.Resource(resfile.DIALOG, 100, 9, bytes(32)))


if __name__ == "__main__":
    unittest.main()
