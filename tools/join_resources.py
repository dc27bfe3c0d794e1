#!/usr/bin/env python3
"""Joins compiled resources into one file, so that each language has every one of them.

    join_resources.py --output all.res a.res b.res ...

The resource compiler translates English (US, 0x409) with the catalogues, among which is an identical one for plain
English (9); what it writes is set right here:

  * English is 9. The source's 0x409 form goes wherever 9 exists, and becomes 9 where it does not.
  * A resource of which no text is translated is left out of that language by the compiler; it gets the English form.
  * Every Arabic dialog is mirrored (WS_EX_LAYOUTRTL), those with an English form included.
  * The font of a dialog has the default character set, which the compiler reads from the template and then drops.

Language-neutral resources (pictures, version, manifest, the host page) stay as they are. It is an error, and nothing is
written, when a language is none of ours, when a resource exists twice, or when a context mark of the source
(#msgctxt#) is left in a text.
"""

import argparse
import dataclasses
import struct
import sys

import resfile

US_ENGLISH = 0x409
WS_EX_LAYOUTRTL = 0x00400000
DS_SETFONT = 0x40
DEFAULT_CHARSET = 1
CONTEXT_MARK = "#msgctxt#".encode("utf-16le")
LANGUAGES = (resfile.ENGLISH, *resfile.TRANSLATIONS.values())


def plain_english(resources):
    """The resources with 9 in the place of 0x409."""
    plain = {r.key() for r in resources if r.language == resfile.ENGLISH}
    for resource in resources:
        if resource.language != US_ENGLISH:
            yield resource
        elif resource.key() not in plain:
            yield dataclasses.replace(resource, language=resfile.ENGLISH)


def filled(resources):
    """The resources, and the English form of each in every language that lacks it."""
    present = {(r.key(), r.language) for r in resources}
    for resource in resources:
        yield resource
        if resource.language == resfile.ENGLISH:
            for language in resfile.TRANSLATIONS.values():
                if (resource.key(), language) not in present:
                    yield dataclasses.replace(resource, language=language)


# The head of a DLGTEMPLATEEX: version 1, signature, help id, extended style, style, count of controls, rectangle. Then
# follow menu, class and title, each a number or a text, and with DS_SETFONT point size, weight, italic and charset.
DIALOG_HEAD = struct.Struct("<HHIIIHhhhh")


def is_extended_dialog(dialog):
    return dialog.data[:4] == b"\x01\0\xff\xff"


def finished_dialog(dialog):
    """The dialog template with its character set and, if Arabic, from right to left."""
    data = bytearray(dialog.data)
    version, signature, help_id, ex_style, style, *rest = DIALOG_HEAD.unpack_from(data)
    if dialog.language == resfile.ARABIC:
        ex_style |= WS_EX_LAYOUTRTL
    DIALOG_HEAD.pack_into(data, 0, version, signature, help_id, ex_style, style, *rest)
    if style & DS_SETFONT:
        offset = DIALOG_HEAD.size
        for _ in ("menu", "class", "title"):
            _, offset = resfile.read_name(data, offset)
        data[offset + 5] = DEFAULT_CHARSET
    return dataclasses.replace(dialog, data=bytes(data))


def faults(resources):
    """What must not be in the joined resources, one text each."""
    seen = set()
    for resource in resources:
        if resource.language not in (resfile.NEUTRAL, *LANGUAGES):
            yield f"{resource}: no language of ours"
        if resource.type == resfile.DIALOG and not is_extended_dialog(resource):
            yield f"{resource}: not a DIALOGEX"
        if CONTEXT_MARK in resource.data:
            yield f"{resource}: a context mark is left in a text"
        if (resource.key(), resource.language) in seen:
            yield f"{resource}: exists twice"
        seen.add((resource.key(), resource.language))


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--output", required=True)
    parser.add_argument("inputs", nargs="+")
    arguments = parser.parse_args()

    resources = [resource for path in arguments.inputs for resource in resfile.read(path)]
    resources = list(plain_english(resources))
    resources = list(filled(resources))
    errors = list(faults(resources))
    if errors:
        sys.exit("\n".join(f"{arguments.output}: {error}" for error in errors))
    resources = [finished_dialog(r) if r.type == resfile.DIALOG else r for r in resources]
    resfile.write(arguments.output, resources)


if __name__ == "__main__":
    main()
