"""Reads what the tests need of an ELF file: segments, sections, dynamic entries and dynamic symbols."""

import struct
from dataclasses import dataclass

ET_DYN = 3
PT_LOAD, PT_DYNAMIC, PT_GNU_STACK, PT_GNU_RELRO = 1, 2, 0x6474E551, 0x6474E552
PF_X, PF_W = 1, 2
SHT_DYNSYM, SHT_NOBITS = 11, 8
SHF_WRITE, SHF_ALLOC = 1, 2
SHN_UNDEF = 0
STV_DEFAULT = 0
DT = {
    "NULL": 0,
    "NEEDED": 1,
    "STRTAB": 5,
    "INIT": 12,
    "FINI": 13,
    "SONAME": 14,
    "RPATH": 15,
    "TEXTREL": 22,
    "INIT_ARRAY": 25,
    "FINI_ARRAY": 26,
    "RUNPATH": 29,
    "FLAGS": 30,
    "PREINIT_ARRAY": 32,
}
DF_TEXTREL = 4


@dataclass(frozen=True)
class Segment:
    type: int
    flags: int
    offset: int
    address: int
    file_size: int
    size: int


@dataclass(frozen=True)
class Section:
    name: str
    type: int
    flags: int
    address: int
    offset: int
    size: int
    link: int
    entry_size: int


@dataclass(frozen=True)
class Symbol:
    name: str
    section: int
    visibility: int


class Elf:
    def __init__(self, path):
        with open(path, "rb") as file:
            self.data = file.read()
        if self.data[:4] != b"\x7fELF" or self.data[5] != 1:
            raise ValueError(f"{path} is not a little-endian ELF file")
        self.wide = self.data[4] == 2
        word = "Q" if self.wide else "I"
        (self.type, self.machine, _, _, phoff, shoff, _, _, phentsize, phnum, shentsize, shnum, shstrndx) = self._unpack(
            f"HHI{word}{word}{word}IHHHHHH", 16
        )
        self.segments = [self._segment(phoff + i * phentsize) for i in range(phnum)]
        raw = [self._unpack(f"II{word * 4}II{word}{word}", shoff + i * shentsize) for i in range(shnum)]
        names = raw[shstrndx][4]
        self.sections = [Section(self._text(names + r[0]), r[1], r[2], r[3], r[4], r[5], r[6], r[9]) for r in raw]
        self.dynamic = self._dynamic()

    def _unpack(self, layout, offset):
        return struct.unpack_from("<" + layout, self.data, offset)

    def _text(self, offset):
        return self.data[offset : self.data.index(b"\0", offset)].decode()

    def _segment(self, offset):
        if self.wide:
            kind, flags, start, address, _, file_size, size, _ = self._unpack("IIQQQQQQ", offset)
        else:
            kind, start, address, _, file_size, size, flags, _ = self._unpack("IIIIIIII", offset)
        return Segment(kind, flags, start, address, file_size, size)

    def _dynamic(self):
        """(tag, value) of every entry in front of the closing one."""
        for segment in self.segments:
            if segment.type == PT_DYNAMIC:
                size = 16 if self.wide else 8
                entries = [
                    self._unpack("qQ" if self.wide else "iI", segment.offset + i * size)
                    for i in range(segment.file_size // size)
                ]
                tags = [tag for tag, _ in entries]
                return entries[: tags.index(DT["NULL"])]
        return []

    def file_offset(self, address):
        for segment in self.segments:
            if segment.type == PT_LOAD and segment.address <= address < segment.address + segment.file_size:
                return address - segment.address + segment.offset
        raise ValueError(f"address {address:#x} is in no segment")

    def dynamic_values(self, tag):
        return [value for t, value in self.dynamic if t == DT[tag]]

    def dynamic_texts(self, tag):
        strings = self.file_offset(self.dynamic_values("STRTAB")[0])
        return [self._text(strings + value) for value in self.dynamic_values(tag)]

    def dynamic_symbols(self):
        """All dynamic symbols behind the null symbol."""
        symbols = []
        for section in self.sections:
            if section.type != SHT_DYNSYM:
                continue
            strings = self.sections[section.link].offset
            for i in range(1, section.size // section.entry_size):
                offset = section.offset + i * section.entry_size
                if self.wide:
                    name, _, other, index, _, _ = self._unpack("IBBHQQ", offset)
                else:
                    name, _, _, _, other, index = self._unpack("IIIBBH", offset)
                symbols.append(Symbol(self._text(strings + name), index, other & 3))
        return symbols
