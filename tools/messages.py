#!/usr/bin/env python3
"""The message table: from its English source and the catalogues to what the build needs.

    messages.py [--header MessageIds.h] [--template messages.pot] [--resource messages.res --catalogues DIR] *.mc

  --header      a C++ header with one constant a message
  --template    the texts for the translators, in gettext's form
  --resource    the compiled message table in every language, from the .mo files in the catalogues' directory

The source is in the notation of the platform's message compiler; messages/Definitions.mc tells how we use it. Each run
checks all of it: heads and ends, ids and names that exist once, inserts from %1 to %9. Translations must have the
inserts of their source. A text that a catalogue lacks becomes the open entry "XX", in whose place the library shows
English at run time.
"""

import argparse
import gettext
import os
import re
import struct
import sys
from dataclasses import dataclass, field

import resfile

SEVERITIES = {"Informational": 1, "Error": 3}
FACILITIES = {"Shared": 0, "Ui": 1}
OPEN_ENTRY = "XX"
END_MARK = "%0"

HEAD = re.compile(
    r"MessageId=(0x[0-9A-F]{4}) Severity=(\w+) Facility=(\w+) SymbolicName=(MSG_[A-Z0-9_]+) Language=English"
)
CONTEXT = re.compile(r"#msgctxt#([^#]+)#")
# An escape of the platform's message formatter: an insert with its format, or a sign.
ESCAPE = re.compile(r"%(?:(\d+)(![^!]*!)?|.?)", re.DOTALL)
SIGNS = {"%n", "%%"}


class SourceError(Exception):
    pass


@dataclass
class Message:
    id: int
    symbol: str
    context: "str | None"
    text: str  # English, without its end mark
    file: str
    note: list = field(default_factory=list)  # for the translators


def inserts(text, where):
    """The inserts of a text, sorted, as ("1", "!s!"); an error for any other escape than ours."""
    found = []
    for match in ESCAPE.finditer(text):
        number, form = match.groups()
        if number is None:
            if match.group() not in SIGNS:
                raise SourceError(f"{where}: the escape '{match.group()}' is none of ours")
        elif not 1 <= int(number) <= 9:
            raise SourceError(f"{where}: the insert %{number} is not within %1 to %9")
        else:
            found.append((number, form))
    return sorted(found, key=str)


def parse(path):
    """The messages of one source file."""
    file = os.path.basename(path)
    with open(path, encoding="utf-8") as source:
        lines = source.read().split("\n")
    messages = []
    note = []
    number = 0
    while number < len(lines):
        line = lines[number]
        number += 1
        where = f"{path}:{number}"
        if line.startswith(";"):
            note.append(line[1:].strip())
        elif not line.startswith("MessageId"):
            note = []  # blank lines, and the words of the notation
        else:
            head = HEAD.fullmatch(line)
            if not head:
                raise SourceError(f"{where}: this is no head of a message")
            id_text, severity, facility, symbol = head.groups()
            if severity not in SEVERITIES or facility not in FACILITIES:
                raise SourceError(f"{where}: unknown severity or facility")
            text, end = (lines + ["", ""])[number : number + 2]
            if end != "." or not text.endswith(END_MARK):
                raise SourceError(f"{where}: a message is one line that ends in %0, then a full stop alone")
            number += 2
            text = text[: -len(END_MARK)]
            context = CONTEXT.match(text)
            if context:
                text = text[context.end() :]
            if not text:
                raise SourceError(f"{where}: the text is empty")
            inserts(text, where)
            id = SEVERITIES[severity] << 30 | FACILITIES[facility] << 16 | int(id_text, 16)
            messages.append(Message(id, symbol, context and context.group(1), text, file, note))
            note = []
    return messages


def parse_all(paths):
    """The messages of all files, in the order of their ids."""
    messages = [message for path in sorted(paths) for message in parse(path)]
    for what in ("id", "symbol"):
        seen = {}
        for message in messages:
            other = seen.setdefault(getattr(message, what), message)
            if other is not message:
                raise SourceError(f"{message.symbol} ({message.file}) has the {what} of {other.symbol} ({other.file})")
    return sorted(messages, key=lambda message: message.id)


def header(messages):
    lines = [
        "// The ids of all messages. Made from src/resources/messages; do not edit.",
        "#pragma once",
        "",
        "#include <cstdint>",
        "",
    ]
    lines += [f"inline constexpr std::uint32_t {m.symbol} = 0x{m.id:08X};" for m in messages]
    return "\n".join(lines) + "\n"


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def template(messages):
    """The texts in gettext's form; a text that occurs more than once stands once, with all its places."""
    entries = {}
    for message in messages:
        entries.setdefault((message.context, message.text), []).append(message)
    lines = [
        'msgid ""',
        'msgstr ""',
        '"MIME-Version: 1.0\\n"',
        '"Content-Type: text/plain; charset=UTF-8\\n"',
        '"Content-Transfer-Encoding: 8bit\\n"',
    ]
    by_file = sorted(entries.items(), key=lambda entry: (entry[1][0].file, entry[1][0].id))
    for (context, text), places in by_file:
        lines.append("")
        for place in places:
            lines += [f"#. {line}" for line in place.note]
            lines.append(f"#. {place.symbol}")
        lines += [f"#: messages/{file}" for file in dict.fromkeys(place.file for place in places)]
        if context:
            lines.append(f"msgctxt {quoted(context)}")
        lines += [f"msgid {quoted(text)}", 'msgstr ""']
    return "\n".join(lines) + "\n"


class OpenEntries(gettext.NullTranslations):
    """Answers for what a catalogue lacks."""

    def gettext(self, message):
        return OPEN_ENTRY

    def pgettext(self, context, message):
        return OPEN_ENTRY


def read_catalogue(path):
    with open(path, "rb") as file:
        catalogue = gettext.GNUTranslations(file)
    catalogue.add_fallback(OpenEntries())
    return catalogue


def translated(message, catalogue, language):
    """The message's text in the language of the catalogue."""
    if message.context:
        text = catalogue.pgettext(message.context, message.text)
    else:
        text = catalogue.gettext(message.text)
    where = f"{language}.po, {message.symbol}"
    if text != OPEN_ENTRY and inserts(text, where) != inserts(message.text, where):
        raise SourceError(f"{where}: the inserts differ from those of the English text")
    return text


def table(entries):
    """The bytes of a message table: blocks of successive ids, then the entries, each aligned to four bytes."""
    blocks = []
    for id, text in sorted(entries.items()):
        if not blocks or id != blocks[-1][-1][0] + 1:
            blocks.append([])
        blocks[-1].append((id, text))
    offset = 4 + 12 * len(blocks)
    heads = struct.pack("<I", len(blocks))
    body = b""
    for block in blocks:
        heads += struct.pack("<III", block[0][0], block[-1][0], offset + len(body))
        for _, text in block:
            data = (text + END_MARK + "\0").encode("utf-16le")
            data += bytes(-len(data) % 4)
            body += struct.pack("<HH", 4 + len(data), 1) + data  # 1: wide text
    return heads + body


def message_tables(messages, catalogues):
    def resource(language, texts):
        return resfile.Resource(resfile.MESSAGETABLE, 1, language, table(texts))

    yield resource(resfile.ENGLISH, {m.id: m.text for m in messages})
    for name, language in resfile.TRANSLATIONS.items():
        catalogue = read_catalogue(os.path.join(catalogues, f"{name}.mo"))
        yield resource(language, {m.id: translated(m, catalogue, name) for m in messages})


def write_text(path, text):
    """Writes the file only when it changes, so that what is built from it stays."""
    try:
        with open(path, encoding="utf-8") as file:
            if file.read() == text:
                return
    except FileNotFoundError:
        pass
    with open(path, "w", encoding="utf-8") as file:
        file.write(text)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--header")
    parser.add_argument("--template")
    parser.add_argument("--resource")
    parser.add_argument("--catalogues")
    parser.add_argument("sources", nargs="+")
    arguments = parser.parse_args()
    try:
        messages = parse_all(arguments.sources)
        if arguments.header:
            write_text(arguments.header, header(messages))
        if arguments.template:
            write_text(arguments.template, template(messages))
        if arguments.resource:
            resfile.write(arguments.resource, message_tables(messages, arguments.catalogues))
    except SourceError as error:
        sys.exit(str(error))


if __name__ == "__main__":
    main()
