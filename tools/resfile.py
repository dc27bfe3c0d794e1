"""Compiled resources (.res files) as a list of records.

A .res file is a row of records, each aligned to four bytes: the size of its data and of its header, type and name
(0xFFFF and a number, or a zero-terminated wide text, together aligned again), then data version, memory flags,
language, version and characteristics. The first record is empty and marks the 32-bit form.
"""

import struct
from dataclasses import dataclass

DIALOG = 5
MESSAGETABLE = 11

ENGLISH = 9
GERMAN = 7
FRENCH = 12
ARABIC = 1
NEUTRAL = 0
# The languages that the product speaks, by primary language alone, and their catalogues. English is the source.
TRANSLATIONS = {"de": GERMAN, "fr": FRENCH, "ar": ARABIC}

_FIRST_RECORD = struct.pack("<II4H", 0, 32, 0xFFFF, 0, 0xFFFF, 0) + bytes(16)
_TAIL = struct.Struct("<IHHII")
_DEFAULT_MEMORY_FLAGS = 0x30  # movable, pure


@dataclass
class Resource:
    """One resource. `type` and `name` are a number or a text; `data` is the bare content."""

    type: "int | str"
    name: "int | str"
    language: int
    data: bytes
    memory_flags: int = _DEFAULT_MEMORY_FLAGS

    def key(self):
        """What identifies the resource among those of its language. Sorts numbers before texts."""
        return tuple((isinstance(part, str), part) for part in (self.type, self.name))

    def __str__(self):
        return f"resource {self.name} of type {self.type}, language {self.language:#x}"


def _aligned(offset):
    return (offset + 3) & ~3


def read_name(data, offset):
    """The number or text at the offset, and the offset behind it."""
    if data[offset : offset + 2] == b"\xff\xff":
        return struct.unpack_from("<H", data, offset + 2)[0], offset + 4
    end = offset
    while data[end : end + 2] != b"\0\0":
        end += 2
    return data[offset:end].decode("utf-16le"), end + 2


def _name_bytes(name):
    if isinstance(name, int):
        return struct.pack("<HH", 0xFFFF, name)
    return (name + "\0").encode("utf-16le")


def read(path):
    """All resources of the file, in its order."""
    with open(path, "rb") as file:
        data = file.read()
    resources = []
    offset = 0
    while offset < len(data):
        data_size, header_size = struct.unpack_from("<II", data, offset)
        kind, cursor = read_name(data, offset + 8)
        name, cursor = read_name(data, cursor)
        _, memory_flags, language, _, _ = _TAIL.unpack_from(data, _aligned(cursor))
        start = offset + header_size
        if data_size:
            resources.append(Resource(kind, name, language, data[start : start + data_size], memory_flags))
        offset = _aligned(start + data_size)
    return resources


def write(path, resources):
    """Writes the resources in the order that the platform's loader expects: by type, name and language."""
    with open(path, "wb") as file:
        file.write(_FIRST_RECORD)
        for resource in sorted(resources, key=lambda r: (r.key(), r.language)):
            names = _name_bytes(resource.type) + _name_bytes(resource.name)
            names += bytes(-len(names) % 4)
            header_size = 8 + len(names) + _TAIL.size
            file.write(struct.pack("<II", len(resource.data), header_size) + names)
            file.write(_TAIL.pack(0, resource.memory_flags, resource.language, 0, 0))
            file.write(resource.data + bytes(-len(resource.data) % 4))
